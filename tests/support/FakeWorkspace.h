#pragma once

#include <map>
#include <utility>

#include "base/Signal.h"
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

}  // namespace tessarin::testing
