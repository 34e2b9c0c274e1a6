#pragma once

#include "platform/Workspace.h"

namespace tessarin::none {

/// The workspace of a session that tells nothing about its applications.
class NoWorkspace final : public Workspace {
 public:
  std::optional<Application> frontmostApplication() override { return std::nullopt; }
  std::vector<Application> runningApplications() override { return {}; }
  std::optional<ApplicationInfo> application(const std::string&) override { return std::nullopt; }
  void openUrl(const std::string&) override {}
  Subscription onContextChanged(std::function<void()>) override { return {}; }
};

}  // namespace tessarin::none
