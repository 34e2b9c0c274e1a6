#pragma once

#include <QSystemTrayIcon>
#include <memory>

#include "platform/StatusBar.h"
#include "platform/qt/PaletteWatch.h"
#include "platform/qt/TrayMenu.h"
#include "platform/qt/TrayPresence.h"

namespace tessarin::ui {

/// The tray item: a StatusNotifierItem, or an icon in an old-style tray. Where the desktop has neither,
/// nothing is shown until one appears. The symbol follows the desktop's colours. A click with the left button
/// opens the menu as one with the right does.
class QtStatusBar final : public StatusBar {
 public:
  /// The item appears as soon as there is a tray.
  void createItem(const std::string& description) override;
  void setMenu(const std::vector<MenuItem>& menu) override;
  void setDimmed(bool dimmed) override;
  void setVisible(bool visible) override;
  void onMenuOpening(std::function<void()> callback) override { menuOpening_ = std::move(callback); }

 private:
  void makeItem();
  void handleActivation(QSystemTrayIcon::ActivationReason reason);
  void showItem();

  std::unique_ptr<TrayMenu> menu_;  ///< before the item, which refers to it
  std::unique_ptr<QSystemTrayIcon> item_;
  TrayPresence presence_;
  PaletteWatch palette_{[this] { showItem(); }};
  std::function<void()> menuOpening_;
  QString description_;
  bool isDimmed_ = false;
  bool isVisible_ = true;
};

}  // namespace tessarin::ui
