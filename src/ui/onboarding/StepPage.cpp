#include "ui/onboarding/StepPage.h"

#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QStringList>
#include <QVBoxLayout>

#include "ui/style/SymbolLabel.h"

namespace tessarin::ui {
namespace {

constexpr int widestSpacing = 20;
constexpr int narrowestSpacing = 4;
constexpr int edge = 6;

/// As high as its texts are at the width that it has; labels that wrap ask for more on their own.
class Content final : public QWidget {
 public:
  QSize minimumSizeHint() const override { return {0, 0}; }

 protected:
  void resizeEvent(QResizeEvent* /*event*/) override {
    // Resized while its layout is being measured, the toolkit would leave everything where it was.
    if (layout()->geometry() != rect()) layout()->setGeometry(rect());
  }
};

}  // namespace

StepPage::StepPage(QWidget* parent) : ScrollPane(new Content, parent), column_(new QVBoxLayout(widget())) {
  column_->setContentsMargins(0, edge, 0, edge);
  column_->setSpacing(widestSpacing);
  column_->addStretch(1);
  column_->addStretch(1);
}

void StepPage::add(QWidget* widget, int sidePadding) {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(sidePadding, 0, sidePadding, 0);
  row->addWidget(widget);
  column_->insertLayout(column_->count() - 1, row);
}

void StepPage::addSymbol(const QString& name, int size, ColorRole color) {
  symbol_ = new SymbolLabel(name, size, color);
  column_->insertWidget(column_->count() - 1, symbol_, 0, Qt::AlignHCenter);
}

QString StepPage::text() const {
  QStringList texts;
  for (const QLabel* label : findChildren<QLabel*>()) texts << label->text();
  return texts.join(' ');
}

void StepPage::resizeEvent(QResizeEvent* event) {
  ScrollPane::resizeEvent(event);
  fit();
}

bool StepPage::event(QEvent* event) {
  const bool isHandled = QScrollArea::event(event);
  if (event->type() == QEvent::ApplicationFontChange || event->type() == QEvent::Polish) fit();
  return isHandled;
}

void StepPage::fit() {
  if (symbol_ != nullptr) symbol_->show();
  if (!fitsMovedTogether() && symbol_ != nullptr) {
    symbol_->hide();
    fitsMovedTogether();
  }
}

bool StepPage::fitsMovedTogether() {
  for (int spacing = widestSpacing; spacing >= narrowestSpacing; spacing -= 2) {
    column_->setSpacing(spacing);
    if (column_->totalHeightForWidth(width()) <= height()) return true;
  }
  return false;
}

}  // namespace tessarin::ui
