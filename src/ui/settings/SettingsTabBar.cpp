#include "ui/settings/SettingsTabBar.h"

#include <QStyleOptionTab>
#include <QStylePainter>

#include "ui/style/TextStyle.h"

namespace tessarin::ui {
namespace {

constexpr int tabSymbolSize = 16;
constexpr int sides = 11;
constexpr int above = 3;
constexpr int belowSymbol = 1;

}  // namespace

SettingsTabBar::SettingsTabBar(QWidget* parent) : QTabBar(parent) {
  setIconSize(QSize(tabSymbolSize, tabSymbolSize));
  setExpanding(false);
  setUsesScrollButtons(true);
}

QSize SettingsTabBar::tabSizeHint(int index) const {
  const QFontMetrics metrics(fontOf(TextStyle::subheadline, font()));
  const int text = metrics.horizontalAdvance(tabText(index).remove('&'));
  return {text + 2 * sides, above + tabSymbolSize + belowSymbol + metrics.height() + above};
}

void SettingsTabBar::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionTab option;
  const auto paint = [&](int index) {
    initStyleOption(&option, index);
    painter.drawControl(QStyle::CE_TabBarTabShape, option);
    paintLabel(painter, index);
  };
  for (int index = 0; index < count(); ++index) {
    if (index != currentIndex()) paint(index);
  }
  if (currentIndex() < 0) return;
  paint(currentIndex());
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = tabRect(currentIndex()).adjusted(4, 4, -4, -3);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

void SettingsTabBar::paintLabel(QPainter& painter, int index) const {
  const QRect tab = tabRect(index);
  QRect symbol(0, 0, tabSymbolSize, tabSymbolSize);
  symbol.moveCenter(QPoint(tab.center().x(), 0));
  symbol.moveTop(tab.top() + above);
  tabIcon(index).paint(&painter, symbol);
  painter.setFont(fontOf(TextStyle::subheadline, font()));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(tab.adjusted(0, 0, 0, -above), Qt::AlignHCenter | Qt::AlignBottom, tabText(index));
}

}  // namespace tessarin::ui
