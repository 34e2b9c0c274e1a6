#include "platform/qt/QtStatusBar.h"

#include <QAction>
#include <QCursor>
#include <utility>

#include "platform/qt/TextCursorIcon.h"

namespace tessarin::ui {
void QtStatusBar::createItem(const std::string& description) {
  description_ = QString::fromStdString(description);
  presence_.waitForTray([this] { makeItem(); });
}

void QtStatusBar::makeItem() {
  item_ = std::make_unique<QSystemTrayIcon>();
  item_->setToolTip(description_);
  if (menu_) item_->setContextMenu(menu_.get());
  QObject::connect(item_.get(), &QSystemTrayIcon::activated, item_.get(),
                   [this](QSystemTrayIcon::ActivationReason reason) { handleActivation(reason); });
  showItem();
}

// Hosts open the menu themselves for the right button only.
void QtStatusBar::handleActivation(QSystemTrayIcon::ActivationReason reason) {
  const bool isLeftClick = reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick;
  if (isLeftClick && menu_) menu_->popup(QCursor::pos());
}

void QtStatusBar::setMenu(const std::vector<MenuItem>& items) {
  auto menu = std::make_unique<TrayMenu>();
  QObject::connect(menu.get(), &QMenu::aboutToShow, menu.get(), [this] {
    if (menuOpening_) menuOpening_();
  });
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
  showItem();
}

void QtStatusBar::setVisible(bool visible) {
  if (std::exchange(isVisible_, visible) != visible) showItem();
}

void QtStatusBar::showItem() {
  if (!item_) return;
  item_->setIcon(textCursorIcon(isDimmed_));
  item_->setVisible(isVisible_);
}

}  // namespace tessarin::ui
