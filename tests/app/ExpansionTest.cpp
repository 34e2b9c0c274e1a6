// Whole expansions, from the first key to what stands in the document.

#include <cstdint>
#include <random>

#include "Matchers.h"
#include "app/TestApp.h"
#include "input/Preferences.h"
#include "platform/KeyCodes.h"

namespace tessarin::testing {
namespace {

struct Expansion {
  const char* name;
  std::string keys;
  std::string document;
};

const Expansion expansions[] = {
    {"ByReturn", "a:smile⏎b", "a😄b"},
    {"ByTab", "a:smile⇥b", "a😄b"},
    {"ByTrigger", "a:smile:b", "a😄b"},
    {"InOtherLetterCase", ":SMILE⏎", "😄"},
    {"OfTheLastRowByWrapping", ":smi↑⏎", "😏"},
    {"OfTheFirstRowByWrapping", ":smi↓↓⏎", "😄"},
    {"OfASkinTone", ":wave→→→⏎", "👋\U0001F3FC"},
    {"OfTheBaseAfterLeavingThePicker", ":wave→→←←⏎", "👋"},
    {"AfterTypingIntoThePicker", ":wav→→e⏎", "👋"},
    {"AfterCorrections", ":smul⌫⌫ile⏎", "😄"},
    {"TwiceByTrigger", ":smile::wave:", "😄👋"},
    {"CancelledByEscape", ":smile⎋⏎", ":smile\r"},
    {"CancelledByDeletingAll", ":s⌫⌫smile⏎", "smile\r"},
    {"WithoutMatchByReturn", ":qqq⏎", ":qqq\r"},
    {"WithoutMatchByTrigger", ":qqq:", ":qqq:"},
    {"AfterAnUnfinishedOne", ":qqq: :smile⏎", ":qqq: 😄"},
    {"NotAfterAMoveOfTheCaret", ":smi←⏎:small→⏎:smi←⌫⏎", ":smi:small:sm"},
    {"NotAfterAMoveWithoutMatch", ":smiq↑⌫⏎:smiq↓⌫⏎:smi⏎", ":smi:smi😄"},
    {"OfMoreLettersThanAreCollected", ":" + std::string(64, 'z') + "abc⏎", "long"},
    {"OfDroppedLettersAfterDelete", ":" + std::string(64, 'z') + "ab⌫⌫⌫⌫⏎", "long"},
    {"OfDroppedLettersWithoutMatch", ":" + std::string(64, 'z') + "a⌫bc⏎",
     ":" + std::string(64, 'z') + "bc\r"},
};

/// On a desktop that holds each key while it is judged, and on one where keys reach the document first; on
/// one that hands over every key, and on one that keeps quiet about all but the trigger.
TEST(Expansions, LeaveExactlyTheirTextBehind) {
  for (const auto& [name, keys, document] : expansions) {
    for (const int desktop : {0, 1, 2, 3}) {
      SCOPED_TRACE(name + (" on desktop " + std::to_string(desktop)));
      TestApp app;
      app.tap.keysReachDocumentFirst = desktop % 2;
      app.tap.isQuietWhileIdle = desktop / 2;
      app.launch();
      app.type(keys);
      EXPECT_EQ(app.document.text, document);
      EXPECT_FALSE(app.popup.visible);
    }
  }
}

class ExpansionTest : public ::testing::Test {
 protected:
  void SetUp() override { app.launch(); }
  TestApp app;
};

TEST_F(ExpansionTest, HandsOverWhatWasTypedAndATriggerThatIsNotSwallowed) {
  app.type(":smil⏎");
  EXPECT_EQ(app.timesUsed("smile"), 1);
  app.type(":smi");
  EXPECT_EQ(app.tap.press(letter(":")), KeyVerdict::swallow);
  app.tap.keysReachDocumentFirst = true;
  app.type(":smi");
  EXPECT_EQ(app.tap.press(letter(":")), KeyVerdict::pass);
  EXPECT_THAT(app.insertion.replacements,
              ElementsAre(Replacement{5, "😄", false, ":smil"}, Replacement{4, "😄", false, ":smi"},
                          Replacement{4, "😄", true, ":smi:"}));
}

TEST_F(ExpansionTest, TheTriggerThatOpenedIsTheOneErased) {
  app.type(":smi");
  app.defaults.set(preferences::key::triggerCharacter, "/");
  app.type("/");
  app.type("/smir⏎");
  EXPECT_THAT(app.insertion.replacements,
              ElementsAre(Replacement{4, "😄", false, ":smi"}, Replacement{5, "😏", false, "/smir"}));
}

TEST_F(ExpansionTest, ATriggerOfAnotherNormalFormIsErasedAsTyped) {
  app.defaults.set(preferences::key::triggerCharacter, "é");
  app.tap.keysReachDocumentFirst = true;
  app.type("e\u0301wae\u0301");
  EXPECT_THAT(app.insertion.replacements, ElementsAre(Replacement{3, "👋", true, "e\u0301wae\u0301"}));
}

TEST_F(ExpansionTest, AKeyThatWasLetByConfirmsNothing) {
  for (const char* confirming : {"⏎", ":"}) {
    app.type(":smile");
    app.tap.givesUp = true;
    app.type(confirming);
    app.tap.givesUp = false;
    EXPECT_FALSE(app.popup.visible);
    EXPECT_EQ(app.tap.attention(), KeyAttention::triggerOnly);
  }
  EXPECT_THAT(app.insertion.replacements, IsEmpty());
  EXPECT_EQ(app.document.text, ":smile\r:smile:");
  EXPECT_EQ(app.timesUsed("smile"), 0);
}

TEST_F(ExpansionTest, AClickErasesTheLettersTypedAndInsertsTheRowOrItsHighlightedVariant) {
  app.type(":sm");
  app.popup.clickRow(1);
  EXPECT_EQ(app.query(), std::nullopt);
  EXPECT_EQ(app.document.text, "😏");
  EXPECT_EQ(app.timesUsed("smirk"), 1);
  EXPECT_FALSE(app.popup.visible);
  app.type(":wave→");
  app.popup.clickVariant(5);
  EXPECT_THAT(app.insertion.replacements, SizeIs(1)) << "a variant is only highlighted";
  EXPECT_EQ(app.popup.presented.back().skinToneSelectedIndex, 5);
  app.popup.clickRow(0);
  EXPECT_THAT(app.insertion.replacements,
              ElementsAre(Replacement{3, "😏", false, ":sm"}, Replacement{5, "👋\U0001F3FF", false, ":wave"}));
}

TEST_F(ExpansionTest, KeysTypedDuringAnInsertionAreJudgedAfterItUnlessForAnotherWindow) {
  app.insertion.finishesAtOnce = false;
  app.type("a:smile⏎b:wave⏎c");
  EXPECT_EQ(app.document.text, "a:smile");
  app.insertion.finish();
  EXPECT_EQ(app.document.text, "a😄b:wave");
  app.insertion.finish();
  EXPECT_EQ(app.document.text, "a😄b👋c");
  app.type(":smile⏎");
  app.workspace.changeContext();
  app.type(":wave⏎d");
  EXPECT_EQ(app.insertion.underWay(), 1U);
  app.insertion.finish();
  EXPECT_EQ(app.document.text, "a😄b👋c:smile👋d");
}

/// Erases nothing but what was typed, whatever is typed: the document fails the test otherwise.
TEST(ExpansionStreams, NeverEraseMoreOrLessThanTheShortcode) {
  const std::string overlong(63, 'z');
  const std::vector<std::string> pieces = {
      ":", ":sm", ":wav", ":" + overlong, "i", "l", "e", "z", "zz", "⌫", "⌫⌫", "⏎", "⏎", "⇥", ":",
      " ", "⎋",   "x",    "e\u0301",      "V", ".", "::"};
  std::size_t replacements = 0;
  for (std::uint32_t seed = 0; seed < 40; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    TestApp app;
    app.tap.keysReachDocumentFirst = seed % 2;
    app.tap.isQuietWhileIdle = seed / 2 % 2;
    app.insertion.finishesAtOnce = seed / 4 % 2;
    app.launch();
    for (int i = 0; i < 300; ++i) {
      if (app.insertion.underWay() && random() % 4 == 0) app.insertion.finish();
      app.type(pieces[random() % pieces.size()]);
    }
    while (app.insertion.underWay()) app.insertion.finish();
    replacements += app.insertion.replacements.size();
  }
  EXPECT_GT(replacements, 500u) << "the streams must confirm often enough";
}

}  // namespace
}  // namespace tessarin::testing
