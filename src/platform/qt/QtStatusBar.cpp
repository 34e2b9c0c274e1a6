#include "platform/qt/QtStatusBar.h"

#include <QAction>

#include "platform/qt/TextCursorIcon.h"

namespace tessarin::ui {

void QtStatusBar::createItem(const std::string& description) {
  item_ = std::make_unique<QSystemTrayIcon>();
  item_->setToolTip(QString::fromStdString(description));
  showIcon();
}

void QtStatusBar::setMenu(const std::vector<MenuItem>& items) {
  auto menu = std::make_unique<QMenu>();
  for (const MenuItem& item : items) {
    if (item.isSeparator()) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(QString::fromStdString(item.title));
    action->setEnabled(static_cast<bool>(item.action));
    if (!item.keyEquivalent.empty()) {
      action->setShortcut(QKeySequence("Ctrl+" + QString::fromStdString(item.keyEquivalent)));
    }
    if (item.action) QObject::connect(action, &QAction::triggered, menu.get(), item.action);
  }
  if (item_) item_->setContextMenu(menu.get());
  // The action that led here belongs to the menu that goes: it goes once the loop is reached again.
  if (menu_) menu_.release()->deleteLater();
  menu_ = std::move(menu);
}

void QtStatusBar::setDimmed(bool dimmed) {
  isDimmed_ = dimmed;
  showIcon();
}

void QtStatusBar::showIcon() {
  if (!item_) return;
  item_->setIcon(textCursorIcon(isDimmed_));
  item_->show();
}

}  // namespace tessarin::ui
