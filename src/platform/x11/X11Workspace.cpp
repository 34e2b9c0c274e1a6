#include "platform/x11/X11Workspace.h"

#include <algorithm>
#include <mutex>
#include <utility>

#include "base/Signal.h"
#include "platform/MainQueue.h"
#include "platform/freedesktop/OpenUrl.h"
#include "platform/x11/ActiveWindow.h"
#include "platform/x11/Atoms.h"
#include "platform/x11/Handles.h"
#include "platform/x11/PointerPresses.h"
#include "platform/x11/PopupOutline.h"
#include "platform/x11/WindowProperties.h"
#include "platform/x11/XThread.h"

namespace tessarin::x11 {
namespace {

/// For a list in a window of ours, not for anything that a key waits for.
constexpr std::chrono::milliseconds listPatience{500};

}  // namespace

class X11Workspace::Impl {
 public:
  Impl(MainQueue& queue, std::shared_ptr<const freedesktop::ApplicationMatcher> matcher,
       std::unique_ptr<XThread> thread)
      : queue_(queue),
        matcher_(std::move(matcher)),
        thread_(std::move(thread)),
        root_(thread_->screen()->root),
        atoms_(thread_->connection()),
        properties_(thread_->connection(), atoms_, root_),
        presses_(thread_->connection(), root_),
        ownPopup_(thread_->connection()),
        active_(thread_->connection(), atoms_, properties_, root_,
                [this](ActiveWindow::Change change) { followActiveWindow(change); }) {
    active_.refresh();
    thread_->start([this](const xcb_generic_event_t& event) { handle(event); });
  }

  ~Impl() { thread_->stop(); }
  Impl(const Impl&) = delete;
  Impl& operator=(const Impl&) = delete;

  std::optional<Application> frontmost() const {
    const std::lock_guard lock(mutex_);
    return frontmost_;
  }

  std::vector<freedesktop::WindowIdentity> taskBarWindows() {
    auto identities = std::make_shared<std::vector<freedesktop::WindowIdentity>>();
    const bool done = thread_->call(
        [this, identities] {
          for (const xcb_window_t window : properties_.managedWindows()) {
            if (properties_.belongsInTaskBar(window)) identities->push_back(properties_.identity(window));
          }
        },
        listPatience);
    return done ? *identities : std::vector<freedesktop::WindowIdentity>();
  }

  const freedesktop::ApplicationMatcher& matcher() const { return *matcher_; }
  Subscription subscribe(std::function<void()> callback) { return changed_->subscribe(std::move(callback)); }
  void setOwnPopup(xcb_window_t window) {
    thread_->post([this, window] { ownPopup_.follow(window); });
  }

 private:
  void handle(const xcb_generic_event_t& event) {
    if (presses_.isPress(event)) {
      handlePress();
    } else {
      ownPopup_.handle(event);
      active_.handle(event);
    }
  }

  void handlePress() {
    const Owned<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
        thread_->connection(), xcb_query_pointer(thread_->connection(), root_), nullptr));
    if (pointer && ownPopup_.contains(pointer->root_x, pointer->root_y)) return;
    if (!active_.isManaged()) active_.refresh();  // where the focus follows the pointer, nothing else tells
    tellMain();
  }

  void followActiveWindow(ActiveWindow::Change change) {
    auto application = active_.window() == XCB_WINDOW_NONE
                           ? std::nullopt
                           : matcher_->applicationOf(properties_.identity(active_.window()));
    {
      const std::lock_guard lock(mutex_);
      frontmost_ = std::move(application);
    }
    if (change == ActiveWindow::Change::otherWindow) tellMain();
  }

  void tellMain() {
    queue_.async([weak = std::weak_ptr(changed_)] {
      if (const auto changed = weak.lock()) changed->emit();
    });
  }

  MainQueue& queue_;
  std::shared_ptr<const freedesktop::ApplicationMatcher> matcher_;
  std::shared_ptr<Signal<>> changed_ = std::make_shared<Signal<>>();
  mutable std::mutex mutex_;
  std::optional<Application> frontmost_;
  std::unique_ptr<XThread> thread_;
  xcb_window_t root_;
  Atoms atoms_;
  WindowProperties properties_;
  PointerPresses presses_;
  PopupOutline ownPopup_;
  ActiveWindow active_;
};

std::unique_ptr<X11Workspace> X11Workspace::connect(
    MainQueue& queue, std::shared_ptr<const freedesktop::ApplicationMatcher> matcher,
    const std::string& display) {
  auto thread = XThread::connect(display);
  if (!thread) return nullptr;
  return std::unique_ptr<X11Workspace>(
      new X11Workspace(std::make_unique<Impl>(queue, std::move(matcher), std::move(thread))));
}

X11Workspace::X11Workspace(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
X11Workspace::~X11Workspace() = default;

std::optional<Application> X11Workspace::frontmostApplication() {
  return impl_->frontmost();
}

std::vector<Application> X11Workspace::runningApplications() {
  std::vector<Application> applications;
  for (const auto& identity : impl_->taskBarWindows()) {
    const auto application = impl_->matcher().applicationOf(identity);
    const bool isKnown =
        application && std::ranges::find(applications, application->bundleIdentifier,
                                         &Application::bundleIdentifier) != applications.end();
    if (application && !isKnown) applications.push_back(*application);
  }
  return applications;
}

std::optional<ApplicationInfo> X11Workspace::application(const std::string& bundleIdentifier) {
  return impl_->matcher().installed(bundleIdentifier);
}

void X11Workspace::openUrl(const std::string& url) {
  freedesktop::openUrl(url);
}

Subscription X11Workspace::onContextChanged(std::function<void()> callback) {
  return impl_->subscribe(std::move(callback));
}

void X11Workspace::setOwnPopup(xcb_window_t window) {
  impl_->setOwnPopup(window);
}

}  // namespace tessarin::x11
