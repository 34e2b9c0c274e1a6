#include <algorithm>

#include "Matchers.h"
#include "insertion/ReplacerWorld.h"
#include "platform/KeyCodes.h"
#include "support/LogRecorder.h"

namespace tessarin::testing {
namespace {

using std::chrono::milliseconds;

constexpr const char* direct = "[TextReplacer] Replaced via Accessibility API";
constexpr const char* fallback = "[TextReplacer] Falling back to paste method";

class TextReplacerTest : public ::testing::Test, protected ReplacerWorld {
 protected:
  TextInsertion::Completion keep() {
    return [this](InsertionOutcome outcome) { outcomes.push_back(outcome); };
  }
  void replace(const std::string& text) { replacer->replace({6, text, false, ":smile"}, keep()); }
  std::size_t countOf(std::int64_t keyCode) const {
    return static_cast<std::size_t>(std::ranges::count_if(
        keys.posted, [keyCode](const auto& posted) { return posted.press.keyCode == keyCode; }));
  }

  LogRecorder log;
  std::vector<InsertionOutcome> outcomes;
};

TEST_F(TextReplacerTest, insertsDirectlyWhereThatWorksAndErasesATriggerThatConfirmedToo) {
  field->type("a:smile");
  replace("😀");
  EXPECT_EQ(field->document(), "a😀");
  field->type(":smile:");
  replacer->replace({6, "😀", true, ":smile:"}, keep());
  EXPECT_EQ(field->document(), "a😀😀");
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted, InsertionOutcome::inserted));
  EXPECT_THAT(log.lines(), ElementsAre(direct, direct));
  EXPECT_THAT(keys.posted, IsEmpty());
  EXPECT_EQ(general.snapshots, 0);

  refuseDirectInsertion();
  replacer->replace({6, "😀", true, ":smile:"}, keep());
  EXPECT_EQ(countOf(keycode::deleteBackward), 7U);
}

TEST_F(TextReplacerTest, erasesNothingWhereTheApplicationHasChangedTheShortcode) {
  for (const char* text : {"abcdefgh ☺", "abcdefgh :smile ", "abcdefgh ☺ile"}) {
    accessibility.focus(field = FakeTextField::create());
    field->type(text);
    outcomes.clear();
    replace("😀");
    EXPECT_THAT(outcomes, IsEmpty()) << "letters may be on their way";
    queue.advance(milliseconds(3000));
    EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::differs));
    EXPECT_EQ(field->document(), text);
    EXPECT_THAT(keys.posted, IsEmpty());
    EXPECT_EQ(general.snapshots, 0);
  }
}

TEST_F(TextReplacerTest, waitsForLettersThatComeLate) {
  field->type("abcdefgh :smi");
  replace("😀");
  queue.advance(milliseconds(200));
  field->failing = {std::string(attribute::stringForRange)};
  queue.advance(milliseconds(1000));
  field->failing.clear();
  field->type("le");
  queue.advance(milliseconds(5));
  EXPECT_EQ(field->document(), "abcdefgh 😀");
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted));
  EXPECT_THAT(log.lines(), ElementsAre(direct));
}

TEST_F(TextReplacerTest, pastesWhereTheApplicationHasFallenSilentMeanwhile) {
  field->type("abcdefgh :smi");
  replace("😀");
  field->failing = {std::string(attribute::value)};
  queue.advance(milliseconds(3000));
  EXPECT_EQ(countOf(keycode::deleteBackward), 6U);
}

TEST_F(TextReplacerTest, answersAtOnceWhenTheUserGoesElsewhere) {
  replacer->stopWaiting();
  field->type("abcdefgh ☺");
  replace("😀");
  replacer->stopWaiting();
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::differs));

  refuseDirectInsertion();
  replace("😀");
  queue.advance(milliseconds(200));
  replacer->stopWaiting();
  EXPECT_EQ(outcomes.back(), InsertionOutcome::erasedOnly);
  EXPECT_EQ(pasteHelper.userText(), "user's");
  queue.advance(milliseconds(500));
  EXPECT_EQ(countOf(keycode::v), 0U) << "it would have pasted elsewhere";

  replace("😀");
  queue.advance(milliseconds(500));
  replacer->stopWaiting();
  EXPECT_EQ(outcomes.back(), InsertionOutcome::erasedOnly);
  EXPECT_EQ(general.readByApplication(), "😀") << "it may still read the text";

  replace("😀");
  queue.advance(milliseconds(500));
  general.readByApplication();
  EXPECT_THAT(outcomes, SizeIs(3)) << "the text does not stand there yet";
  replacer->stopWaiting();
  EXPECT_EQ(outcomes.back(), InsertionOutcome::inserted);
  queue.advance(milliseconds(5000));
  EXPECT_THAT(outcomes, SizeIs(4));
  EXPECT_EQ(pasteHelper.userText(), "user's");
}

TEST(TextReplacerArrival, isWaitedForAsFarAsItCanBeTold) {
  constexpr milliseconds never{9999};
  const struct {
    const char* name;
    milliseconds standsAfter;  ///< counted from the reading
    milliseconds answeredAfter;
    void (*arrange)(ReplacerWorld&);
  } cases[] = {
      {"soon", milliseconds(3), milliseconds(5), [](auto&) {}},
      {"late", milliseconds(111), milliseconds(115), [](auto&) {}},
      {"as something else", never, milliseconds(495), [](auto&) {}},
      {"in a hung application", never, milliseconds(1995),
       [](auto& world) {
         world.accessibility.busy = true;
         world.field->failing.insert(std::string(attribute::value));
       }},
      {"nothing focused", never, milliseconds(0),
       [](auto& world) {
         world.accessibility.application->failing.insert(std::string(attribute::focusedElement));
       }},
      {"not trusted", never, milliseconds(0), [](auto& world) { world.accessibility.trusted = false; }},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    ReplacerWorld world;
    c.arrange(world);
    world.refuseDirectInsertion();
    std::vector<std::pair<InsertionOutcome, milliseconds>> answers;
    ManualMainQueue::Clock::time_point read;
    world.replacer->replace({6, "😀", false, ":smile"}, [&](InsertionOutcome outcome) {
      answers.emplace_back(outcome, std::chrono::duration_cast<milliseconds>(world.queue.now() - read));
    });
    world.queue.advance(milliseconds(220));
    read = world.queue.now();
    world.queue.after(c.standsAfter, [&] { world.field->type("😀"); });
    world.general.readByApplication();
    world.queue.advance(milliseconds(3000));
    EXPECT_THAT(answers, ElementsAre(std::pair(InsertionOutcome::inserted, c.answeredAfter)));
  }
}

TEST_F(TextReplacerTest, doesNotEraseTwice) {
  field->type("a:smile");
  field->writeResult = AccessibilityStatus::erasedOnly;
  replace("😀");
  EXPECT_EQ(field->document(), "a");
  EXPECT_THAT(log.lines(), ElementsAre(fallback));
  queue.advance(milliseconds(100));
  EXPECT_EQ(countOf(keycode::deleteBackward), 0U);
  EXPECT_EQ(paste(), "😀");
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted));
}

TEST_F(TextReplacerTest, erasesNothingUnseenOnceTheCaretMayHaveMoved) {
  field->type("a:smile");
  replacer->replace({6, "😀", false, ":smile", true}, keep());
  EXPECT_EQ(field->document(), "a😀");
  refuseDirectInsertion();
  replacer->replace({6, "😀", false, ":smile", true}, keep());
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted, InsertionOutcome::unchanged));
  EXPECT_THAT(keys.posted, IsEmpty());
  EXPECT_EQ(general.snapshots, 0);
}

TEST_F(TextReplacerTest, fillsInTemplateVariablesOnceForBothMethods) {
  field->type(":smile");
  replace("<{{clipboard}}>");
  EXPECT_EQ(field->document(), "<user's>");

  refuseDirectInsertion();
  for (const int reads : {2, 2}) {
    replace("<{{clipboard}}>");
    EXPECT_EQ(general.stringReads, reads) << "once a replacement, and none while our text is there";
    queue.advance(milliseconds(220));
    EXPECT_EQ(paste(), "<user's>");
    EXPECT_TRUE(general.isOurText());
  }
}

TEST_F(TextReplacerTest, replacementsWaitUntilTheTextBeforeThemStands) {
  const auto texts = {"first", "second", "third"};
  refuseDirectInsertion();
  for (const char* text : texts) replace(text);
  for (const char* text : texts) {
    EXPECT_THAT(log.lines(), SizeIs(outcomes.size() + 1)) << "one at a time";
    queue.advance(milliseconds(220));
    EXPECT_EQ(general.readByApplication(), text);
    queue.advance(milliseconds(100));
    EXPECT_EQ(countOf(keycode::deleteBackward), 6 * (outcomes.size() + 1));
    field->type(text);
    queue.advance(milliseconds(5));
  }
  EXPECT_THAT(outcomes, SizeIs(3));
  queue.advance(milliseconds(200));
  EXPECT_EQ(general.contents(), (std::vector<PasteboardItem>{{"UTF8_STRING", "user's"}}));
}

TEST_F(TextReplacerTest, mayGoAwayWithinADoneCallback) {
  field->type(":smile");
  replacer->replace({6, "😀", false, ":smile"}, [this](InsertionOutcome) { replacer.reset(); });
  EXPECT_FALSE(replacer.has_value());
}

TEST_F(TextReplacerTest, goesOnAfterAnApplicationThatIgnoresThePaste) {
  refuseDirectInsertion();
  replace("first");
  replace("second");
  queue.advance(milliseconds(2220));
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::unchanged)) << "the shortcode was typed again";
  queue.advance(milliseconds(220));
  EXPECT_EQ(paste(), "second");
  workspace.frontmost->isReadForByAnother = true;
  replace("third");
  const auto typed = countOf(0);
  queue.advance(milliseconds(9999));
  EXPECT_EQ(countOf(0), typed) << "it may have been pasted for all we know";
}

}  // namespace
}  // namespace tessarin::testing
