#pragma once

#include <QDBusServiceWatcher>
#include <QMenu>
#include <QSystemTrayIcon>
#include <memory>

#include "platform/StatusBar.h"

namespace tessarin::ui {

/// The tray item: a StatusNotifierItem, or an icon in an old-style tray. Where the desktop has neither,
/// nothing is shown until one appears.
class QtStatusBar final : public StatusBar {
 public:
  QtStatusBar();

  void createItem(const std::string& description) override;
  void setMenu(const std::vector<MenuItem>& menu) override;
  void setDimmed(bool dimmed) override;
  void setVisible(bool visible) override;
  void onMenuOpening(std::function<void()> callback) override { menuOpening_ = std::move(callback); }

 private:
  void makeItem();
  void showItem();

  std::unique_ptr<QMenu> menu_;  ///< before the item, which refers to it
  std::unique_ptr<QSystemTrayIcon> item_;
  QDBusServiceWatcher trayWatcher_;
  std::function<void()> menuOpening_;
  QString description_;
  bool isCreated_ = false;
  bool isDimmed_ = false;
  bool isVisible_ = true;
};

}  // namespace tessarin::ui
