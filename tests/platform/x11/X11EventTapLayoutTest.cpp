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
    display.setLayout({layout});
    typist->readLayout();
    waitUntilWatching();
    typist->type(repeated("a:qzy\nm ", 5));
    expectDocument(repeated("a😀m ", 5));
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

TEST_F(X11EventTapLayoutTest, SendsNoEventForModifiersLocksAndMediaKeys) {
  start();
  typist->type(":<Shift_L><Control_R><Caps_Lock><Caps_Lock><XF86AudioMute><Super_L>a");
  ASSERT_TRUE(queue.runUntil([this] { return seen.size() >= 2; }));
  EXPECT_EQ(seen[1].text, u"a");
}

}  // namespace
}  // namespace tessarin::testing
