#include <xkbcommon/xkbcommon-keysyms.h>

#include "TapFixture.h"
#include "platform/KeyCodes.h"

namespace tessarin::testing {
namespace {

/// Keys typed on the synthetic device (as by remote desktops) and on a keyboard.
class X11EventTapModifierTest : public TapFixture, public ::testing::WithParamInterface<Typist::Keyboard> {
 protected:
  void startPasting() {
    insertion = Insertion::paste;
    start();
    typeAs(GetParam());
  }
};

INSTANTIATE_TEST_SUITE_P(Keyboards, X11EventTapModifierTest,
                         ::testing::Values(Typist::Keyboard::synthetic, Typist::Keyboard::real),
                         [](const auto& param) {
                           return param.param == Typist::Keyboard::real ? "Real" : "Synthetic";
                         });

TEST_P(X11EventTapModifierTest, KeepsWhatEachKeyWasTypedWith) {
  startPasting();
  for (int i = 0; i < 20; ++i) {
    typist->type(":ab");
    typist->press(XKB_KEY_Shift_L);
    typist->tap(XKB_KEY_semicolon);
    typist->tap(XKB_KEY_c);
    typist->release(XKB_KEY_Shift_L);
    typist->tap(XKB_KEY_d);
    typist->press(XKB_KEY_Shift_R);
    typist->tap(XKB_KEY_e);
    typist->release(XKB_KEY_Shift_R);
    typist->type("f ");
  }
  std::string expected;
  for (int i = 0; i < 20; ++i) expected += "😀CdEf ";
  expectDocument(expected);
}

TEST_P(X11EventTapModifierTest, LeavesNoModifierBehind) {
  startPasting();
  holdBack();
  typist->press(XKB_KEY_Shift_L);
  typist->tap(XKB_KEY_a);
  typist->release(XKB_KEY_Shift_L);
  typist->tap(XKB_KEY_b);
  typist->press(XKB_KEY_Shift_L);
  attend(KeyAttention::triggerOnly);
  expectDocument("Ab");
  typist->tap(XKB_KEY_c);
  typist->release(XKB_KEY_Shift_L);
  typist->tap(XKB_KEY_d);
  expectDocument("AbCd");
  // Whoever types synthetic keys next finds the device as it was.
  Typist other(display.name());
  other.type("Ef");
  expectDocument("AbCdEf");
}

TEST_P(X11EventTapModifierTest, RestoresCapsLockAndGroup) {
  insertion = Insertion::paste;
  start({"us,ru", "-option", "grp:menu_toggle"});
  typeAs(GetParam());
  holdBack();
  const int before = document->presses();
  typist->tap(XKB_KEY_Caps_Lock);
  typist->type("a");
  typist->tap(XKB_KEY_Caps_Lock);
  typist->type("b");
  typist->switchGroup(1);
  typist->type("й");
  typist->tap(XKB_KEY_Shift_L);
  // Keys that type nothing are not kept, so they tell how far it has got.
  ASSERT_TRUE(queue.runUntil([&] { return document->text().empty() && document->presses() == before + 4; }));
  attend(KeyAttention::triggerOnly);
  expectDocument("Abй");
  typist->type("ц");
  expectDocument("Abйц");
  typist->switchGroup(0);
  typist->type("d");
  expectDocument("Abйцd");
}

TEST_P(X11EventTapModifierTest, TellsChordsFromLevels) {
  start({"de"});
  typeAs(GetParam());
  typist->type(":@");
  typist->press(XKB_KEY_Control_L);
  typist->tap(XKB_KEY_q);
  typist->release(XKB_KEY_Control_L);
  expectDocument(":@<Control-q>");
  ASSERT_GE(seen.size(), 2U);
  EXPECT_EQ(seen[1].text, u"@");
  EXPECT_EQ(seen[1].flags & keyflag::chord, 0U);
}

}  // namespace
}  // namespace tessarin::testing
