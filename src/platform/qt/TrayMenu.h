#pragma once

#include <QMenu>

namespace tessarin::ui {

/// The tray item's menu where we show it ourselves. While it is open, the key of an item's shortcut chooses
/// the item, with Ctrl or alone.
class TrayMenu final : public QMenu {
  Q_OBJECT

 public:
  using QMenu::QMenu;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tessarin::ui
