#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/StatusBar.h"

namespace tessarin::testing {

/// A tray that remembers its item and its menus.
class FakeStatusBar final : public StatusBar {
 public:
  void createItem(const std::string& text) override { descriptions.push_back(text); }
  void setMenu(const std::vector<MenuItem>& menu) override { menus.push_back(menu); }
  void setDimmed(bool isDimmed) override { dimmed.push_back(isDimmed); }
  void setVisible(bool isVisible) override { visible = isVisible; }
  void onMenuOpening(std::function<void()> callback) override { menuOpening_ = std::move(callback); }

  /// The user opens the menu.
  void openMenu() {
    if (menuOpening_) menuOpening_();
  }

  /// The item of the menu last set, by its title; none when there is no such item.
  std::optional<MenuItem> item(const std::string& title) const {
    if (menus.empty()) return std::nullopt;
    const auto found = std::ranges::find(menus.back(), title, &MenuItem::title);
    return found == menus.back().end() ? std::nullopt : std::optional(*found);
  }
  /// Chooses an item as the user does; one that is missing or disabled fails the test.
  void choose(const std::string& title) {
    const auto chosen = item(title);
    if (!chosen || !chosen->action) {
      ADD_FAILURE() << "cannot be chosen: " << title;
      return;
    }
    chosen->action();
  }

  std::vector<std::string> descriptions;
  std::vector<std::vector<MenuItem>> menus;
  std::vector<bool> dimmed;
  bool visible = true;

 private:
  std::function<void()> menuOpening_;
};

}  // namespace tessarin::testing
