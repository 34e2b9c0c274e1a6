#include <xkbcommon/xkbcommon-keysyms.h>

#include "TapFixture.h"

namespace tessarin::testing {
namespace {

class X11EventTapLayoutTest : public TapFixture {};

TEST_F(X11EventTapLayoutTest, FindsTheTriggerInEachGroup) {
  start({"us,ru"});
  typist->type(":ab\n");
  expectDocument("😀");
  typist->lock(1);
  typist->type(":привет\nя ");
  expectDocument("😀😀я ");
  typist->type(":при ");
  expectDocument("😀😀я :при ");
  typist->lock(0);
  typist->type("^:ab\n");
  expectDocument("😀😀я :при ^😀");
}

TEST_F(X11EventTapLayoutTest, FollowsANewMapping) {
  start({"us"});
  typist->type(":a\n");
  expectDocument("😀");
  for (const char* layout : {"fr", "de", "us"}) {
    setLayout({layout});
    typist->readLayout();
    waitUntilWatching();
    for (int i = 0; i < 5; ++i) typist->type("a:qzy\nm ");
    expectDocument("a😀m a😀m a😀m a😀m a😀m ");
  }
}

TEST_F(X11EventTapLayoutTest, FindsTheTriggerUnderLocks) {
  start();
  const auto layout =
      x11::KeyboardLayout::read(x11::Connection(xcb_connect(display.name().c_str(), nullptr)).get());
  const auto numLock = layout->bits().numLock;
  ASSERT_NE(numLock, 0);
  for (const unsigned locks : {0x02U, unsigned{numLock}, numLock | 0x02U}) {
    typist->lock(0, static_cast<std::uint8_t>(locks));
    document->clear();
    typist->type(":ab\n:cd\n");
    expectDocument("😀😀");
  }
}

TEST_F(X11EventTapLayoutTest, ReportsAComposedCharacterOnce) {
  start({"de"});
  typist->type(":");
  typist->tap(XKB_KEY_dead_acute);
  typist->type("e");
  ASSERT_TRUE(queue.runUntil([this] { return seen.size() == 2; }));
  EXPECT_EQ(seen[1].text, u"é");
  typist->type("\n");
  ASSERT_TRUE(queue.runUntil([this] { return insertions == 1; }));
}

TEST_F(X11EventTapLayoutTest, SendsNoEventForModifiersLocksAndMediaKeys) {
  start();
  typist->type(":");
  for (const xkb_keysym_t symbol : {XKB_KEY_Shift_L, XKB_KEY_Control_R, XKB_KEY_Caps_Lock, XKB_KEY_Caps_Lock,
                                    XKB_KEY_XF86AudioMute, XKB_KEY_Super_L}) {
    typist->tap(symbol);
  }
  typist->type("a");
  ASSERT_TRUE(queue.runUntil([this] { return seen.size() >= 2; }));
  EXPECT_EQ(seen[1].text, u"a");
}

}  // namespace
}  // namespace tessarin::testing
