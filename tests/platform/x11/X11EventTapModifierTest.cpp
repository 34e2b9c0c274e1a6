#include "TapFixture.h"
#include "platform/KeyCodes.h"

namespace tessarin::testing {
namespace {

/// Keys typed on the synthetic device (as by remote desktops) and on a keyboard.
class X11EventTapModifierTest : public TapFixture, public ::testing::WithParamInterface<Typist::Keyboard> {
 protected:
  void startPasting(const std::vector<std::string>& layout = {"us"}) {
    insertion = Insertion::paste;
    start(layout);
    typeAs(GetParam());
  }
};

INSTANTIATE_TEST_SUITE_P(Keyboards, X11EventTapModifierTest,
                         ::testing::Values(Typist::Keyboard::synthetic, Typist::Keyboard::real),
                         [](const auto& param) {
                           return param.param == Typist::Keyboard::real ? "Real" : "Synthetic";
                         });

TEST_P(X11EventTapModifierTest, KeepsWhatEachKeyWasTypedWithAndLeavesNothingBehind) {
  struct Case {
    const char* name;
    bool areKept;  ///< the first keys, until all of them have been typed
    std::vector<std::pair<std::string, std::string>> steps;  ///< keys and the document then
  };
  const Case cases[] = {
      {"pastes without the Shift that is held",
       false,
       {{":ab<+Shift_L><semicolon>", "😀"}, {"<c>", "😀C"}, {"<-Shift_L><d>", "😀Cd"}}},
      {"each key with its own",
       false,
       {{repeated(":ab<+Shift_L><semicolon><c><-Shift_L><d><+Shift_R><e><-Shift_R>f ", 20),
         repeated("😀CdEf ", 20)}}},
      {"held again when it is over",
       true,
       {{"<+Shift_L><a><-Shift_L><b><+Shift_L>", "Ab"}, {"<c><-Shift_L><d>", "AbCd"}}},
      {"let go before it is over", true, {{"<+Shift_L>12<-Shift_L>", "!@"}, {"<a>", "!@a"}}},
      {"a chord stays one", true, {{"<+Control_L><s><-Control_L><a>", "<Control-s>a"}}},
  };
  startPasting();
  for (const auto& [name, areKept, steps] : cases) {
    SCOPED_TRACE(name);
    document->clear();
    if (areKept) holdBack();
    for (const auto& [keys, expected] : steps) {
      typist->type(keys);
      if (areKept) attend(KeyAttention::triggerOnly);
      expectDocument(expected);
    }
    // Whoever types synthetic keys next finds the device as it was.
    Typist other(display.name());
    other.type("Ef");
    expectDocument(steps.back().second + "Ef");
  }
}

TEST_P(X11EventTapModifierTest, RestoresCapsLockAndGroup) {
  startPasting({"us,ru", "-option", "grp:menu_toggle"});
  holdBack();
  const int before = document->presses();
  typist->type("<Caps_Lock>a<Caps_Lock>b");
  typist->switchGroup(1);
  typist->type("й<Shift_L>");
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
  typist->type(":@<+Control_L><q><-Control_L>");
  expectDocument(":@<Control-q>");
  ASSERT_GE(seen.size(), 2U);
  EXPECT_EQ(seen[1].text, u"@");
  EXPECT_EQ(seen[1].flags & keyflag::chord, 0U);
}

}  // namespace
}  // namespace tessarin::testing
