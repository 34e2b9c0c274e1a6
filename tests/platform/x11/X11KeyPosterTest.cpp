#include "TapFixture.h"
#include "platform/KeyCodes.h"
#include "platform/x11/X11InputMonitoring.h"
#include "platform/x11/X11KeyPoster.h"
#include "text/Graphemes.h"

namespace tessarin::testing {
namespace {

TEST(X11KeyPoster, PressesInOrderWithExactlyTheModifiersGiven) {
  const struct {
    std::vector<std::string> arguments;
    std::uint8_t group;
  } layouts[] = {{{"us"}, 0}, {{"us", "dvorak"}, 0}, {{"fr"}, 0}, {{"us,ru"}, 1}, {{"ru,us"}, 0}};
  for (const auto& [arguments, group] : layouts) {
    SCOPED_TRACE(arguments.back());
    const PrivateDisplay display;
    display.setLayout(arguments);
    DocumentWindow document(display.name());
    document.clipboard = "P";
    Typist typist(display.name());
    LiveMainQueue queue;
    x11::X11KeyPoster poster(
        std::make_shared<x11::X11Keyboard>(queue, x11::X11Keyboard::Options{display.name()}));
    typist.lock(group, x11::ModifierBits::capsLock);
    typist.type("<1><2><+Shift_R>");
    ASSERT_TRUE(queue.runUntil([&] { return !document.text().empty() && document.presses() == 3; }));
    const std::string expected =
        text::withoutLastCharacter(document.text()) + "P<Shift-Insert><Control-Shift-BackSpace>:S";
    bool isMade = false;
    poster.post({{keycode::deleteBackward, 0},
                 {keycode::v, keyflag::control},
                 {keycode::insert, keyflag::shift},
                 {keycode::deleteBackward, keyflag::control | keyflag::shift},
                 {0, 0, ":"},
                 {0, 0, "S"}},
                [&isMade] { isMade = true; });
    EXPECT_TRUE(queue.runUntil([&] { return document.text() == expected; })) << document.text();
    EXPECT_TRUE(queue.runUntil([&] { return isMade; }));
  }
}

TEST(X11InputMonitoring, IsGrantedWhereKeysCanBeHeld) {
  const PrivateDisplay display;
  EXPECT_TRUE(x11::X11InputMonitoring(display.name()).isGranted());
  const PrivateDisplay without("640x480x24", {"-extension", "XTEST"});
  EXPECT_FALSE(x11::X11InputMonitoring(without.name()).isGranted());
  EXPECT_FALSE(x11::X11InputMonitoring(":99999").isGranted());
  LiveMainQueue queue;
  EXPECT_FALSE(x11::X11Keyboard(queue, {without.name()}).start());
}

}  // namespace
}  // namespace tessarin::testing
