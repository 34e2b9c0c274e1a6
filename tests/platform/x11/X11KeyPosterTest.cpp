#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "DocumentWindow.h"
#include "LiveMainQueue.h"
#include "Typist.h"
#include "platform/KeyCodes.h"
#include "platform/x11/X11InputMonitoring.h"
#include "platform/x11/X11KeyPoster.h"
#include "support/desktop/PrivateDisplay.h"

namespace tessarin::testing {
namespace {

struct Layout {
  std::vector<std::string> arguments;
  std::uint8_t group;
};

class X11KeyPosterTest : public ::testing::TestWithParam<Layout> {};

INSTANTIATE_TEST_SUITE_P(Layouts, X11KeyPosterTest,
                         ::testing::Values(Layout{{"us"}, 0}, Layout{{"us", "dvorak"}, 0}, Layout{{"fr"}, 0},
                                           Layout{{"us,ru"}, 1}, Layout{{"ru,us"}, 0}));

TEST_P(X11KeyPosterTest, PressesTheKeysOfTheLayoutInForce) {
  const PrivateDisplay display;
  std::vector<std::string> command{"setxkbmap"};
  command.insert(command.end(), GetParam().arguments.begin(), GetParam().arguments.end());
  ASSERT_EQ(display.run(command), 0);
  DocumentWindow document(display.name());
  document.clipboard = "P";
  Typist typist(display.name());
  typist.lock(GetParam().group, x11::ModifierBits::capsLock);
  typist.tap(XKB_KEY_1);
  typist.tap(XKB_KEY_2);
  LiveMainQueue queue;
  x11::X11KeyPoster poster(std::make_shared<x11::X11Keyboard>(queue, display.name()));
  typist.press(XKB_KEY_Shift_R);
  poster.post({{keycode::deleteBackward, 0},
               {keycode::v, keyflag::control},
               {keycode::insert, keyflag::shift},
               {keycode::deleteBackward, keyflag::control | keyflag::shift}});
  const auto isDone = [&] { return document.text().ends_with("<Control-Shift-BackSpace>"); };
  ASSERT_TRUE(queue.runUntil(isDone)) << document.text();
  EXPECT_TRUE(document.text().ends_with("P<Shift-Insert><Control-Shift-BackSpace>")) << document.text();
  EXPECT_EQ(document.pastes(), 1);
}

TEST(X11InputMonitoring, IsGrantedWhereKeysCanBeHeld) {
  const PrivateDisplay display;
  EXPECT_TRUE(x11::X11InputMonitoring(display.name()).isGranted());
  const PrivateDisplay without("640x480x24", {"-extension", "XTEST"});
  EXPECT_FALSE(x11::X11InputMonitoring(without.name()).isGranted());
  EXPECT_FALSE(x11::X11InputMonitoring(":99999").isGranted());
  LiveMainQueue queue;
  EXPECT_FALSE(x11::X11Keyboard(queue, without.name()).start());
}

}  // namespace
}  // namespace tessarin::testing
