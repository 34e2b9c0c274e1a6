#include <filesystem>

#include "platform/x11/X11Workspace.h"
#include "support/Eventually.h"
#include "support/ManualMainQueue.h"
#include "support/TemporaryFolder.h"
#include "support/desktop/PrivateDisplay.h"
#include "support/desktop/XClient.h"

namespace tessarin::testing {
namespace {

using freedesktop::ApplicationMatcher;
using freedesktop::DesktopEntries;
using ::testing::UnorderedElementsAre;

/// A session with a window manager, or without one.
class Session {
 public:
  explicit Session(bool isManaged) {
    if (isManaged) display.startWindowManager();
    matcher = std::make_shared<ApplicationMatcher>(std::make_shared<DesktopEntries>(
        std::vector<std::filesystem::path>{applications.path()}, std::vector<std::string>{}));
    workspace = x11::X11Workspace::connect(queue, matcher, display.name());
    peer = std::make_unique<XClient>(display.name());
  }

  xcb_window_t show(const std::string& name, const WindowOptions& options = {}, double x = 0) {
    return peer->openWindow({x, 100, 200, 200}, name, options);
  }
  bool waitFor(auto condition) {
    return eventually(condition, [this] { queue.runReady(); });
  }
  std::string frontmost() {
    const auto application = workspace->frontmostApplication();
    return application ? application->bundleIdentifier : "none";
  }
  bool becomesFrontmost(const std::string& name) {
    return waitFor([&] { return frontmost() == name; });
  }

  PrivateDisplay display;
  TemporaryFolder applications;
  std::shared_ptr<ApplicationMatcher> matcher;
  ManualMainQueue queue;
  std::unique_ptr<x11::X11Workspace> workspace;
  std::unique_ptr<XClient> peer;
};

class X11WorkspaceTest : public ::testing::Test {
 protected:
  Session session{true};
};

TEST(X11Workspace, TellsWhenAnotherApplicationComesToTheFront) {
  for (const bool isManaged : {true, false}) {
    SCOPED_TRACE(isManaged);
    Session session(isManaged);
    const auto activate = [&](const char* name) {
      const auto window = session.show(name);
      if (!isManaged) session.peer->focus(window);
      return session.becomesFrontmost(name);
    };
    EXPECT_FALSE(session.workspace->application("org.example.not-installed"));
    EXPECT_TRUE(activate("first"));
    int told = 0;
    auto subscription =
        session.workspace->onContextChanged([&] { told += session.frontmost() == "second" ? 1 : 0; });
    EXPECT_TRUE(activate("second"));
    EXPECT_TRUE(session.waitFor([&] { return told > 0; })) << "the new one must be known when it is told";
    subscription.reset();
    told = 0;
    EXPECT_TRUE(activate("first"));
    EXPECT_TRUE(activate("second"));
    EXPECT_EQ(told, 0) << "unsubscribed";
  }
}

TEST_F(X11WorkspaceTest, FollowsTheWindowManager) {
  const auto first = session.show("starting");
  ASSERT_TRUE(session.becomesFrontmost("starting"));
  session.peer->rename(first, "first");
  ASSERT_TRUE(session.becomesFrontmost("first"));
  const auto later = x11::X11Workspace::connect(session.queue, session.matcher, session.display.name());
  ASSERT_TRUE(later->frontmostApplication()) << "known at once";
  EXPECT_EQ(later->frontmostApplication()->bundleIdentifier, "first");
  const auto second = session.show("second");
  ASSERT_TRUE(session.becomesFrontmost("second"));
  session.peer->activate(first);
  EXPECT_TRUE(session.becomesFrontmost("first"));
  session.peer->destroy(first);
  EXPECT_TRUE(session.becomesFrontmost("second"));
  session.peer->destroy(second);
  EXPECT_TRUE(session.becomesFrontmost("none"));
}

TEST_F(X11WorkspaceTest, TwoWindowsOfOneApplicationAreTwoContexts) {
  session.show("same");
  ASSERT_TRUE(session.becomesFrontmost("same"));
  session.queue.runReady();
  int told = 0;
  const auto subscription = session.workspace->onContextChanged([&] { ++told; });
  session.show("same");
  EXPECT_TRUE(session.waitFor([&] { return told > 0; }));
}

TEST_F(X11WorkspaceTest, ListsEachApplicationOfTheTaskBarOnce) {
  session.applications.write("one.desktop", "[Desktop Entry]\nType=Application\nName=Number One\n");
  session.show("One");
  session.show("One");
  session.show("firefox");
  session.show("Hidden", {.skipsTaskBar = true});
  session.show("Popup", {.isOverrideRedirect = true});
  EXPECT_TRUE(session.waitFor([&] { return session.workspace->runningApplications().size() == 2; }));
  EXPECT_THAT(
      session.workspace->runningApplications(),
      UnorderedElementsAre(Application{"one", "Number One"}, Application{"org.mozilla.firefox", "firefox"}));
}

class PointerPress : public X11WorkspaceTest {
 protected:
  PointerPress() {
    session.show("document");
    EXPECT_TRUE(session.becomesFrontmost("document"));
    popup = session.show("popup", {.isOverrideRedirect = true}, 600);
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
    session.peer->press(button);
    EXPECT_TRUE(session.waitFor([&] { return told > 0; })) << int{button};
  }
}

TEST_F(PointerPress, InsideThePopupDoesNotEvenWhenItHasGoneSince) {
  session.peer->movePointer(650, 150);
  session.peer->press(1);
  letItLook();
  EXPECT_EQ(told, 0);
  session.peer->pressAndHide(1, popup);
  letItLook();
  EXPECT_EQ(told, 0);
  session.peer->press(1);
  EXPECT_TRUE(session.waitFor([&] { return told > 0; }));
}

TEST_F(PointerPress, TurningTheWheelDoesNot) {
  // Over the bare root the window manager would change to another desktop.
  session.show("other", {.isOverrideRedirect = true}, 900);
  session.peer->movePointer(950, 150);
  for (const std::uint8_t button : {4, 5, 6, 7}) session.peer->press(button);
  letItLook();
  EXPECT_EQ(told, 0);
}

}  // namespace
}  // namespace tessarin::testing
