#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <string>

#include "platform/Workspace.h"
#include "platform/freedesktop/ApplicationMatcher.h"

namespace tessarin {
class MainQueue;
}

namespace tessarin::x11 {

/// The applications of an X11 session. A thread of its own follows the active window, so that asking for the
/// frontmost application is only a look at memory.
class X11Workspace final : public Workspace {
 public:
  /// `display` as in DISPLAY; empty takes DISPLAY itself. Null when no server answers. `queue` has to outlive
  /// the result.
  static std::unique_ptr<X11Workspace> connect(MainQueue& queue,
                                               std::shared_ptr<const freedesktop::ApplicationMatcher> matcher,
                                               const std::string& display = {});
  ~X11Workspace() override;

  std::optional<Application> frontmostApplication() override;
  std::vector<Application> runningApplications() override;
  std::optional<ApplicationInfo> application(const std::string& bundleIdentifier) override;
  void openUrl(const std::string& url) override;
  Subscription onContextChanged(std::function<void()> callback) override;

  /// Presses of pointer buttons in this child of the root window do not change the context.
  void setOwnPopup(xcb_window_t window);

 private:
  class Impl;
  explicit X11Workspace(std::unique_ptr<Impl> impl);
  std::unique_ptr<Impl> impl_;
};

}  // namespace tessarin::x11
