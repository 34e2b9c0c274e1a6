#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "base/Signal.h"
#include "platform/InputMonitoring.h"
#include "platform/LoginItem.h"
#include "platform/Screens.h"
#include "platform/StatusBar.h"
#include "platform/Workspace.h"

namespace tessarin::testing {

/// A desktop whose applications the test sets.
class FakeWorkspace final : public Workspace {
 public:
  std::optional<Application> frontmostApplication() override { return frontmost; }
  std::vector<Application> runningApplications() override { return running; }
  std::optional<ApplicationInfo> application(const std::string& bundleIdentifier) override {
    return installed.contains(bundleIdentifier) ? std::optional(installed.at(bundleIdentifier))
                                                : std::nullopt;
  }
  void openUrl(const std::string& url) override { openedUrls.push_back(url); }
  Subscription onContextChanged(std::function<void()> callback) override {
    return contextChanged_.subscribe(std::move(callback));
  }

  /// Another application comes to the front, and everybody is told.
  void activate(std::string bundleIdentifier) {
    frontmost.emplace();
    frontmost->bundleIdentifier = std::move(bundleIdentifier);
    changeContext();
  }
  void changeContext() { contextChanged_.emit(); }

  std::optional<Application> frontmost;
  std::vector<Application> running;
  std::map<std::string, ApplicationInfo> installed;
  std::vector<std::string> openedUrls;

 private:
  Signal<> contextChanged_;
};

/// Monitors and a pointer that the test places.
class FakeScreens final : public Screens {
 public:
  std::vector<Screen> screens() override { return all; }
  std::optional<Screen> mainScreen() override {
    if (main) return main;
    return all.empty() ? std::nullopt : std::optional(all.front());
  }
  Point mouseLocation() override { return mouse; }

  std::vector<Screen> all{{{0, 0, 1920, 1080}, {0, 40, 1920, 1010}}};
  std::optional<Screen> main;  ///< absent: the first
  Point mouse{960, 540};
};

/// A tray that remembers its item and its menus.
class FakeStatusBar final : public StatusBar {
 public:
  void createItem(const std::string&) override {}
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

  std::vector<std::vector<MenuItem>> menus;
  std::vector<bool> dimmed;
  bool visible = true;

 private:
  std::function<void()> menuOpening_;
};

class FakeInputMonitoring final : public InputMonitoring {
 public:
  bool isGranted() override { return granted; }
  void request() override {
    ++requests;
    if (!granted) ++explanations;
  }

  bool granted = true;
  int requests = 0;
  int explanations = 0;
};

/// A login item in memory. `calls` lists the operations in order.
class FakeLoginItem final : public LoginItem {
 public:
  std::optional<std::string> registerItem() override { return change("register", true); }
  std::optional<std::string> unregisterItem() override { return change("unregister", false); }
  bool isEnabled() override { return enabled; }

  bool enabled = false;
  std::optional<std::string> failure;  ///< with it both operations fail and change nothing
  std::vector<std::string> calls;

 private:
  std::optional<std::string> change(std::string call, bool isEnabled) {
    calls.push_back(std::move(call));
    if (!failure) enabled = isEnabled;
    return failure;
  }
};

}  // namespace tessarin::testing
