#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tessarin {

struct MenuItem {
  std::string title;  ///< empty for a separator
  std::string keyEquivalent;
  std::function<void()> action;  ///< absent: the item is shown disabled
  bool isSeparator() const { return title.empty(); }
};

/// The program's item in the desktop's tray. Main thread.
class StatusBar {
 public:
  virtual ~StatusBar() = default;

  /// Makes the item with the text-cursor symbol, described as `description`.
  virtual void createItem(const std::string& description) = 0;
  virtual void setMenu(const std::vector<MenuItem>& menu) = 0;
  /// The dimmed look of an item that is switched off.
  virtual void setDimmed(bool dimmed) = 0;
  /// Takes the item out of the tray, or puts it back. May come before the item is made, which is shown unless
  /// told otherwise.
  virtual void setVisible(bool visible) = 0;
  /// The callback runs each time before the user gets to see the menu, also where the desktop shows it.
  virtual void onMenuOpening(std::function<void()> callback) = 0;
};

}  // namespace tessarin
