#pragma once

#include <QMenu>
#include <QSystemTrayIcon>
#include <memory>

#include "platform/StatusBar.h"

namespace tessarin::ui {

/// The tray item: a StatusNotifierItem, or an icon in an old-style tray. Where the desktop has neither,
/// nothing is shown until one appears.
class QtStatusBar final : public StatusBar {
 public:
  void createItem(const std::string& description) override;
  void setMenu(const std::vector<MenuItem>& menu) override;
  void setDimmed(bool dimmed) override;

 private:
  void showIcon();

  std::unique_ptr<QMenu> menu_;  ///< before the item, which refers to it
  std::unique_ptr<QSystemTrayIcon> item_;
  bool isDimmed_ = false;
};

}  // namespace tessarin::ui
