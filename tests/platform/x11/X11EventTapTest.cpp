#include "TapFixture.h"
#include "platform/KeyCodes.h"
#include "text/Graphemes.h"

namespace tessarin::testing {
namespace {

class X11EventTapTest : public TapFixture {
 protected:
  static constexpr std::pair<Typist::Keyboard, Insertion> manners[] = {
      {Typist::Keyboard::synthetic, Insertion::direct},
      {Typist::Keyboard::synthetic, Insertion::paste},
      {Typist::Keyboard::real, Insertion::paste}};

  void use(const std::pair<Typist::Keyboard, Insertion>& manner) {
    typeAs(manner.first);
    insertion = manner.second;
    document->clear();
  }
};

TEST_F(X11EventTapTest, SeesAndHoldsNothingButTheTriggerWhileIdle) {
  start({"us"}, true);
  typist->type("a:eE;\n ");
  expectDocument("a😀 ");
  const int before = document->grabs();
  EXPECT_GT(before, 0);
  seen.clear();
  typist->type("hello; World 123\n;e<+Control_L><e><semicolon><-Control_L>");
  expectDocument("a😀 hello; World 123\n;e<Control-e><Control-semicolon>");
  EXPECT_EQ(document->grabs(), before);
  EXPECT_TRUE(seen.empty());
  typist->type(":");
  ASSERT_TRUE(queue.runUntil([this] { return seen.size() == 1; }));
  EXPECT_EQ(seen[0].flags, keyflag::shift);
}

TEST_F(X11EventTapTest, GoesOnWithItsWorkWhenTheKeyHasGone) {
  start();
  std::vector<std::size_t> arrived;
  onKey = [&](const KeyEvent&) { queue.async([&] { arrived.push_back(document->text().size()); }); };
  const std::string keys = ":" + std::string(40, 'a');
  typist->type(keys);
  expectDocument(keys);
  ASSERT_EQ(arrived.size(), keys.size());
  for (std::size_t i = 0; i < arrived.size(); ++i) EXPECT_GT(arrived[i], i);
}

TEST_F(X11EventTapTest, LeavesAWindowManagerItsCombinations) {
  start();
  const x11::Connection manager(xcb_connect(display.name().c_str(), nullptr));
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(manager.get())).data->root;
  constexpr xcb_keycode_t oKey = 32;
  xcb_grab_key(manager.get(), 0, root, XCB_MOD_MASK_4, oKey, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  xcb_flush(manager.get());
  typist->type(":oO");
  expectDocument(":oO");
  typist->type("<+Super_L><o><-Super_L>");
  typist->sync();
  int got = 0;
  EXPECT_TRUE(queue.runUntil([&] {
    while (const x11::Owned<xcb_generic_event_t> event{xcb_poll_for_event(manager.get())}) {
      got += event->response_type == XCB_KEY_PRESS ? 1 : 0;
    }
    return got == 1;
  }));
}

TEST_F(X11EventTapTest, HoldsEveryKeyOfEitherKeyboardAtAnySpeed) {
  start();
  for (const auto& manner : manners) {
    use(manner);
    insertions = 0;
    for (int i = 0; i < 100; ++i) typist->type("A:Smile\nb C");
    expectDocument(repeated("A😀b C", 100));
    EXPECT_EQ(insertions, 100);
  }
}

// Toolkits draw a window that has lost the focus differently, and the whole of it anew.
TEST_F(X11EventTapTest, LeavesTheProgramItsFocusWhileAKeyOfAQueryIsHeld) {
  start();
  std::string heldWithFocus;
  onKey = [&](const KeyEvent& event) {
    document->text();
    heldWithFocus += document->hasFocus() ? text::fromUtf16(event.text) : "";
  };
  typist->type(":ab:");
  expectDocument("😀:");
  typist->type(":cd\n");
  expectDocument("😀:😀");
  EXPECT_EQ(heldWithFocus, "ab:cd\r");
}

TEST_F(X11EventTapTest, HoldsKeysWhereTheFocusGoes) {
  start();
  DocumentWindow other(display.name());
  document->takeFocus();
  holdBack();
  typist->type("ab");
  settle();
  EXPECT_EQ(focusMoves, 0);
  other.takeFocus();
  ASSERT_TRUE(queue.runUntil([this] { return focusMoves == 1; }));
  typist->type("cd");
  settle();
  EXPECT_EQ(other.text(), "");
  attend(KeyAttention::triggerOnly);
  EXPECT_TRUE(queue.runUntil([&] { return other.text() == "abcd"; })) << other.text();
  EXPECT_EQ(document->text(), "");
}

// The server keeps "b" until "a" has been answered, and gives it to the window that has the focus by then.
TEST_F(X11EventTapTest, HoldsTheKeyBehindAHeldOneWhereTheFocusHasGone) {
  start();
  DocumentWindow other(display.name());
  document->takeFocus();
  onKey = [&](const KeyEvent& event) {
    if (event.text != u"a") return;
    typist->type("b");
    typist->sync();
    other.takeFocus();
    attend(KeyAttention::holdBack);
  };
  typist->type(":a");
  typist->sync();
  ASSERT_TRUE(queue.runUntil([this] { return focusMoves == 1; }));
  settle();
  EXPECT_EQ(other.text(), "a");
  attend(KeyAttention::triggerOnly);
  EXPECT_TRUE(queue.runUntil([&] { return other.text() == "ab"; })) << other.text();
  EXPECT_EQ(document->text(), ":");
}

TEST_F(X11EventTapTest, KeepsOverlappingKeysInOrderBehindAnInsertion) {
  start();
  for (const auto& manner : manners) {
    use(manner);
    typist->type(":a<+b><+Return><+c><+d><-c><+c><-b><-Return>");
    expectDocument("😀cdc");
    typist->type("<-c><-d>dc");
    expectDocument("😀cdcdc");
  }
}

TEST_F(X11EventTapTest, TakesTheKeyboardOnceForHundredsOfKeysBeforeAPost) {
  insertion = Insertion::paste;
  start();
  for (const auto device : {Typist::Keyboard::synthetic, Typist::Keyboard::real}) {
    typeAs(device);
    document->clear();
    const int before = document->grabs();
    typist->type(":a\n" + repeated("abCd", 75));
    expectDocument("😀" + repeated("abCd", 75));
    EXPECT_LE(document->grabsAtPaste(), before + 40);
  }
}

TEST_F(X11EventTapTest, GivesTheKeyboardBackWhenTheLastKeptKeyIsSwallowed) {
  insertion = Insertion::paste;
  start();
  typist->type(":a\n:bcdefghi\n");
  expectDocument("😀😀");
  document->clear();
  holdBack();
  typist->type(":bcdefghi\n");
  attend(KeyAttention::triggerOnly);
  expectDocument("😀");
}

TEST_F(X11EventTapTest, PassesEveryKeyWhileItIsSwitchedOffAndWhatItKeptWhenItIsDestroyed) {
  start();
  typist->type(":");
  expectDocument(":");
  tap->setEnabled(false);
  typist->type("a\n:");
  expectDocument(":a\n:");
  EXPECT_EQ(seen.size(), 1U);
  tap->setEnabled(true);
  waitUntilWatching();
  holdBack();
  typist->type("x:ab");
  settle();
  EXPECT_EQ(document->text(), "");
  tap->destroy();
  typist->type(":z");
  expectDocument("x:ab:z");
  EXPECT_TRUE(seen.empty());
}

TEST_F(X11EventTapTest, PassesKeptKeysOnWhenTheThreadEnds) {
  start();
  holdBack();
  typist->type("x:Ab");
  settle(std::chrono::milliseconds(50));
  tap.reset();
  poster.reset();
  keyboard.reset();
  expectDocument("x:Ab");
}

}  // namespace
}  // namespace tessarin::testing
