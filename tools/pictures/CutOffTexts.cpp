#include "CutOffTexts.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>

#include "ui/settings/ShortLabel.h"

namespace tessarin::pictures {
namespace {

bool hasRoom(const QLabel& label) {
  if (qobject_cast<const ui::ShortLabel*>(&label) != nullptr) return true;
  if (!label.wordWrap())
    return label.width() >= label.sizeHint().width() && label.height() >= label.sizeHint().height();
  // A word that is wider than its line is cut, as nothing breaks it.
  const QRect line(0, 0, label.contentsRect().width(), 0);
  const int widest = label.fontMetrics().boundingRect(line, Qt::TextWordWrap, label.text()).width();
  return widest <= line.width() && label.heightForWidth(label.width()) <= label.height();
}

bool hasRoom(const QAbstractButton& button) {
  return button.width() >= button.sizeHint().width() && button.height() >= button.sizeHint().height();
}

bool hasRoom(const QLineEdit& field) {
  constexpr int margins = 2 * 4;  // more than any style leaves
  return field.width() >= field.fontMetrics().horizontalAdvance(field.placeholderText()) + margins;
}

bool hasRoom(const QTabBar& tabs) {
  return tabs.width() >= tabs.sizeHint().width();
}

template <class Kind, class Text>
void addCutOff(QStringList& found, const QWidget& window, Text text) {
  for (const Kind* widget : window.findChildren<Kind*>()) {
    const bool isShown = widget->isVisibleTo(&window) && !text(*widget).isEmpty();
    if (isShown && !hasRoom(*widget)) found << text(*widget);
  }
}

}  // namespace

QStringList cutOffTexts(const QWidget& window) {
  QStringList found;
  addCutOff<QLabel>(found, window, [](const QLabel& label) { return label.text(); });
  addCutOff<QAbstractButton>(found, window, [](const QAbstractButton& button) { return button.text(); });
  addCutOff<QLineEdit>(found, window, [](const QLineEdit& field) { return field.placeholderText(); });
  addCutOff<QTabBar>(found, window, [](const QTabBar& tabs) { return tabs.tabText(tabs.count() - 1); });
  return found;
}

}  // namespace tessarin::pictures
