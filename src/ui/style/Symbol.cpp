#include "ui/style/Symbol.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <utility>

namespace tessarin::ui {
namespace {

class SymbolIconEngine final : public QIconEngine {
 public:
  SymbolIconEngine(QString name, std::optional<ColorRole> color) : name_(std::move(name)), color_(color) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    painter->drawPixmap(rect, symbolPixmap(name_, colorFor(mode), rect.size(), ratio));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    return symbolPixmap(name_, colorFor(mode), size, 1.0);
  }

  QIconEngine* clone() const override { return new SymbolIconEngine(name_, color_); }

 private:
  QColor colorFor(QIcon::Mode mode) const {
    const QPalette palette = QApplication::palette();
    if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, QPalette::ButtonText);
    if (mode == QIcon::Selected) return palette.color(QPalette::Active, QPalette::HighlightedText);
    return color_ ? colorOf(*color_, palette) : palette.color(QPalette::Active, QPalette::ButtonText);
  }

  QString name_;
  std::optional<ColorRole> color_;
};

}  // namespace

QPixmap symbolPixmap(const QString& name, const QColor& color, const QSize& size, qreal devicePixelRatio) {
  const QString key = QStringLiteral("tessarin|%1|%2|%3x%4|%5")
                          .arg(name)
                          .arg(color.rgba())
                          .arg(size.width())
                          .arg(size.height())
                          .arg(devicePixelRatio);
  QPixmap pixmap;
  if (QPixmapCache::find(key, &pixmap)) return pixmap;
  pixmap = QPixmap(size * devicePixelRatio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  QSvgRenderer(":/symbols/" + name + ".svg").render(&painter, QRectF(pixmap.rect()));
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(pixmap.rect(), color);
  painter.end();
  pixmap.setDevicePixelRatio(devicePixelRatio);
  QPixmapCache::insert(key, pixmap);
  return pixmap;
}

QIcon symbolIcon(const QString& name, std::optional<ColorRole> color) {
  return QIcon(new SymbolIconEngine(name, color));
}

}  // namespace tessarin::ui
