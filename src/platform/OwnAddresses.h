#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Workspace.h"

namespace tessarin {

/// A workspace that answers some addresses inside the program; all else is another workspace's.
class OwnAddresses final : public Workspace {
 public:
  using Pages = std::map<std::string, std::function<void()>>;

  /// `workspace` outlives this.
  OwnAddresses(Workspace& workspace, Pages pages) : workspace_(workspace), pages_(std::move(pages)) {}

  void openUrl(const std::string& url) override {
    const auto page = pages_.find(url);
    return page == pages_.end() ? workspace_.openUrl(url) : page->second();
  }
  std::optional<Application> frontmostApplication() override { return workspace_.frontmostApplication(); }
  std::vector<Application> runningApplications() override { return workspace_.runningApplications(); }
  std::optional<ApplicationInfo> application(const std::string& bundleIdentifier) override {
    return workspace_.application(bundleIdentifier);
  }
  Subscription onContextChanged(std::function<void()> callback) override {
    return workspace_.onContextChanged(std::move(callback));
  }

 private:
  Workspace& workspace_;
  Pages pages_;
};

}  // namespace tessarin
