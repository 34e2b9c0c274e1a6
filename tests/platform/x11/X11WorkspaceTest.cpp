#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <xcb/xtest.h>

#include <filesystem>

#include "platform/x11/Atoms.h"
#include "platform/x11/Handles.h"
#include "platform/x11/X11Workspace.h"
#include "support/Eventually.h"
#include "support/FakeWorkspace.h"
#include "support/ManualMainQueue.h"
#include "support/TemporaryFolder.h"
#include "support/WorkspaceSuite.h"
#include "support/desktop/PrivateDisplay.h"

namespace tessarin::testing {
namespace {

using freedesktop::ApplicationMatcher;
using freedesktop::DesktopEntries;
using ::testing::UnorderedElementsAre;

struct WindowOptions {
  bool isOverrideRedirect = false;
  bool skipsTaskBar = false;
  std::int16_t x = 0;
};

/// A program that shows windows.
class WindowPeer {
 public:
  explicit WindowPeer(const std::string& display)
      : connection_(xcb_connect(display.c_str(), nullptr)),
        atoms_(connection_.get()),
        screen_(xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data) {}

  xcb_window_t show(const std::string& windowClass, const WindowOptions& options = {}) {
    const xcb_window_t window = xcb_generate_id(connection_.get());
    const std::uint32_t overrideRedirect = options.isOverrideRedirect ? 1 : 0;
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window, screen_->root, options.x, 100, 200,
                      200, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                      &overrideRedirect);
    rename(window, windowClass);
    const xcb_atom_t skip = atoms_.atom("_NET_WM_STATE_SKIP_TASKBAR");
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window, atoms_.atom("_NET_WM_STATE"),
                        XCB_ATOM_ATOM, 32, options.skipsTaskBar ? 1 : 0, &skip);
    xcb_map_window(connection_.get(), window);
    synchronize();
    return window;
  }
  void rename(xcb_window_t window, const std::string& windowClass) {
    const std::string names = windowClass + '\0' + windowClass + '\0';
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING,
                        8, static_cast<std::uint32_t>(names.size()), names.data());
    synchronize();
  }
  void focus(xcb_window_t window) {
    xcb_set_input_focus(connection_.get(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    synchronize();
  }
  /// Asks the window manager for it, as a task bar does.
  void activate(xcb_window_t window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atoms_.atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = 2;
    xcb_send_event(connection_.get(), 0, screen_->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    synchronize();
  }
  void destroy(xcb_window_t window) {
    xcb_destroy_window(connection_.get(), window);
    synchronize();
  }
  void movePointer(std::int16_t x, std::int16_t y) {
    xcb_warp_pointer(connection_.get(), XCB_NONE, screen_->root, 0, 0, 0, 0, x, y);
    synchronize();
  }
  void click(std::uint8_t button) {
    for (const std::uint8_t type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE}) {
      xcb_test_fake_input(connection_.get(), type, button, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    }
    synchronize();
  }

 private:
  void synchronize() {
    const x11::Owned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
  }

  x11::Connection connection_;
  x11::Atoms atoms_;
  xcb_screen_t* screen_;
};

/// A session with a window manager, or without one.
class Session {
 public:
  explicit Session(bool isManaged) {
    if (isManaged) display.startWindowManager();
    matcher = std::make_shared<ApplicationMatcher>(std::make_shared<DesktopEntries>(
        std::vector<std::filesystem::path>{applications.path()}, std::vector<std::string>{}));
    workspace = x11::X11Workspace::connect(queue, matcher, display.name());
    peer = std::make_unique<WindowPeer>(display.name());
    if (isManaged) waitUntilWindowsAreManaged();
  }

  template <class Condition>
  bool waitFor(Condition condition) {
    return eventually(condition, [this] { queue.runReady(); });
  }
  std::string frontmost() {
    const auto application = workspace->frontmostApplication();
    return application ? application->bundleIdentifier : "none";
  }
  bool becomesFrontmost(const std::string& name) {
    return waitFor([&] { return frontmost() == name; });
  }

  /// A window manager that has just come up may pass over the first windows.
  void waitUntilWindowsAreManaged() {
    const auto probe = [this] {
      const auto window = peer->show("probe");
      const bool isManaged = eventually([this] { return frontmost() == "probe"; }, [] {}, probeTime);
      peer->destroy(window);
      return isManaged;
    };
    EXPECT_TRUE(waitFor(probe)) << "no window is ever managed";
    EXPECT_TRUE(becomesFrontmost("none"));
  }

  static constexpr std::chrono::milliseconds probeTime{300};
  PrivateDisplay display;
  TemporaryFolder applications;
  std::shared_ptr<ApplicationMatcher> matcher;
  ManualMainQueue queue;
  std::unique_ptr<x11::X11Workspace> workspace;
  std::unique_ptr<WindowPeer> peer;
};

struct ManagedWorld : Session {
  ManagedWorld() : Session(true) {}
  Workspace& workspace() { return *Session::workspace; }
  void activate(const std::string& name) { peer->show(name); }
};

struct UnmanagedWorld : Session {
  UnmanagedWorld() : Session(false) {}
  Workspace& workspace() { return *Session::workspace; }
  void activate(const std::string& name) { peer->focus(peer->show(name)); }
};

struct FakeWorld {
  Workspace& workspace() { return fake; }
  void activate(const std::string& name) { fake.activate(name); }
  template <class Condition>
  bool waitFor(Condition condition) {
    return condition();
  }
  FakeWorkspace fake;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Managed, WorkspaceSuite, ::testing::Types<ManagedWorld>);
INSTANTIATE_TYPED_TEST_SUITE_P(Unmanaged, WorkspaceSuite, ::testing::Types<UnmanagedWorld>);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, WorkspaceSuite, ::testing::Types<FakeWorld>);

class X11WorkspaceTest : public ::testing::Test {
 protected:
  Session session{true};
};

TEST_F(X11WorkspaceTest, FollowsTheWindowManager) {
  const auto first = session.peer->show("first");
  ASSERT_TRUE(session.becomesFrontmost("first"));
  const auto second = session.peer->show("second");
  ASSERT_TRUE(session.becomesFrontmost("second"));
  session.peer->activate(first);
  EXPECT_TRUE(session.becomesFrontmost("first"));
  session.peer->destroy(first);
  EXPECT_TRUE(session.becomesFrontmost("second"));
  session.peer->destroy(second);
  EXPECT_TRUE(session.becomesFrontmost("none"));
}

TEST_F(X11WorkspaceTest, NoticesAWindowThatChangesItsClass) {
  const auto window = session.peer->show("startcenter");
  ASSERT_TRUE(session.becomesFrontmost("startcenter"));
  session.peer->rename(window, "writer");
  EXPECT_TRUE(session.becomesFrontmost("writer"));
}

TEST_F(X11WorkspaceTest, TwoWindowsOfOneApplicationAreTwoContexts) {
  session.peer->show("same");
  ASSERT_TRUE(session.becomesFrontmost("same"));
  session.queue.runReady();
  int told = 0;
  const auto subscription = session.workspace->onContextChanged([&] { ++told; });
  session.peer->show("same");
  EXPECT_TRUE(session.waitFor([&] { return told > 0; }));
}

TEST_F(X11WorkspaceTest, KnowsAtOnceWhatWasThereBefore) {
  session.peer->show("first");
  ASSERT_TRUE(session.becomesFrontmost("first"));
  const auto later = x11::X11Workspace::connect(session.queue, session.matcher, session.display.name());
  ASSERT_TRUE(later->frontmostApplication());
  EXPECT_EQ(later->frontmostApplication()->bundleIdentifier, "first");
}

TEST_F(X11WorkspaceTest, ARealTerminalIsOne) {
  const ChildProcess terminal({"xterm", "-e", "sleep", "1000"}, {session.display.variable()});
  EXPECT_TRUE(session.waitFor([&] {
    const auto application = session.workspace->frontmostApplication();
    return application && application->bundleIdentifier == "XTerm" && application->isTerminal;
  }));
}

TEST_F(X11WorkspaceTest, ListsEachApplicationOfTheTaskBarOnce) {
  session.applications.write("one.desktop", "[Desktop Entry]\nType=Application\nName=Number One\n");
  session.peer->show("One");
  session.peer->show("One");
  session.peer->show("firefox");
  session.peer->show("Hidden", {.skipsTaskBar = true});
  session.peer->show("Popup", {.isOverrideRedirect = true});
  EXPECT_TRUE(session.waitFor([&] { return session.workspace->runningApplications().size() == 2; }));
  EXPECT_THAT(session.workspace->runningApplications(),
              UnorderedElementsAre(Application{"one", "Number One", false},
                                   Application{"org.mozilla.firefox", "firefox", false}));
}

TEST_F(X11WorkspaceTest, GoesByTheFocusWhenTheWindowManagerHasGone) {
  const auto window = session.peer->show("first");
  session.peer->show("second");
  ASSERT_TRUE(session.becomesFrontmost("second"));
  session.display.stopWindowManager();
  session.peer->focus(window);
  EXPECT_TRUE(session.becomesFrontmost("first"));
}

class PointerPress : public X11WorkspaceTest {
 protected:
  PointerPress() {
    session.peer->show("document");
    EXPECT_TRUE(session.becomesFrontmost("document"));
    popup = session.peer->show("popup", {.isOverrideRedirect = true, .x = 600});
    session.workspace->setOwnPopup(popup);
    letItLook();
    subscription = session.workspace->onContextChanged([this] { ++told; });
  }
  /// The workspace has looked at everything that happened before.
  void letItLook() {
    session.workspace->runningApplications();  // its thread has read all events by the time of the answer,
    session.workspace->runningApplications();  // and handled them by the time of the next
    session.queue.runReady();
  }

  xcb_window_t popup = XCB_WINDOW_NONE;
  int told = 0;
  Subscription subscription;
};

TEST_F(PointerPress, OutsideThePopupChangesTheContext) {
  session.peer->movePointer(1000, 900);
  for (const std::uint8_t button : {1, 2, 3, 8}) {
    told = 0;
    session.peer->click(button);
    EXPECT_TRUE(session.waitFor([&] { return told > 0; })) << int{button};
  }
}

TEST_F(PointerPress, InsideThePopupDoesNot) {
  session.peer->movePointer(650, 150);
  session.peer->click(1);
  letItLook();
  EXPECT_EQ(told, 0);
  session.workspace->setOwnPopup(XCB_WINDOW_NONE);
  session.peer->click(1);
  EXPECT_TRUE(session.waitFor([&] { return told > 0; }));
}

TEST_F(PointerPress, TurningTheWheelDoesNot) {
  // Over the bare root the window manager would change to another desktop.
  session.peer->show("other", {.isOverrideRedirect = true, .x = 900});
  session.peer->movePointer(950, 150);
  for (const std::uint8_t button : {4, 5, 6, 7}) session.peer->click(button);
  letItLook();
  EXPECT_EQ(told, 0);
}

TEST(X11WorkspaceConnection, AnswersThatThereIsNoServer) {
  ManualMainQueue queue;
  EXPECT_EQ(x11::X11Workspace::connect(queue, nullptr, ":99999"), nullptr);
}

}  // namespace
}  // namespace tessarin::testing
