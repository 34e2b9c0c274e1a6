#include "Matchers.h"
#include "insertion/PasteHelper.h"
#include "platform/KeyCodes.h"
#include "support/FakeKeyPoster.h"
#include "support/FakePasteboard.h"
#include "support/ManualMainQueue.h"

namespace tessarin::testing {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;
using Items = std::vector<PasteboardItem>;

constexpr auto inserted = InsertionOutcome::inserted;
constexpr KeyPress backspace{keycode::deleteBackward, 0};
constexpr KeyPress controlV{keycode::v, keyflag::control};
constexpr KeyPress shiftInsert{keycode::insert, keyflag::shift};

class PasteHelperTest : public ::testing::Test {
 protected:
  PasteHelperTest() {
    general.copyElsewhere(saved);
    primary.copyElsewhere("selected");
  }

  void paste(std::int64_t count, const std::string& text, PasteChord chord = PasteChord::controlV) {
    paste({count, text, chord});
  }
  void paste(const PasteSession::Job& job) {
    helper->pasteText(job, [this](InsertionOutcome outcome) { outcomes.push_back(outcome); });
  }
  bool isRestored() const { return general.contents() == saved; }
  /// Whether the user's contents come back after this time, and not a millisecond earlier.
  bool isRestoredJustAfter(milliseconds time) {
    queue.advance(time - 1ms);
    const bool wasRestored = isRestored();
    queue.advance(1ms);
    return !wasRestored && isRestored();
  }
  std::optional<std::string> readAfter(milliseconds time) {
    queue.advance(time);
    return general.readByApplication();
  }

  const Items saved{
      {"UTF8_STRING", "user's"}, {"text/html", "<b>user's</b>"}, {"image/png", {"\x89P\0G", 4}}};
  const Items selected{{"UTF8_STRING", "selected"}};
  ManualMainQueue queue;
  FakePasteboard general{queue};
  FakePasteboard primary{queue};
  FakeKeyPoster keys{queue};
  std::vector<InsertionOutcome> outcomes;
  std::optional<PasteHelper> helper{std::in_place, general, primary, keys, queue};
};

TEST_F(PasteHelperTest, givesTheDeletionsTime) {
  paste(2, "😀");
  const FakeKeyPoster::Posted erasing{backspace, {}};
  EXPECT_THAT(keys.posted, ElementsAre(erasing, erasing));

  queue.advance(89ms);
  EXPECT_TRUE(isRestored());
  queue.advance(1ms);
  EXPECT_EQ(general.contents(), (Items{{"UTF8_STRING", "😀"}}));

  queue.advance(50ms);
  EXPECT_THAT(keys.posted, ElementsAre(erasing, erasing, FakeKeyPoster::Posted{controlV, 140ms}));
  EXPECT_THAT(outcomes, IsEmpty());
  EXPECT_EQ(general.readByApplication(), "😀");
  EXPECT_THAT(outcomes, ElementsAre(inserted));
  EXPECT_TRUE(isRestoredJustAfter(200ms));
  EXPECT_EQ(primary.snapshots, 0) << "of no use outside terminals";
}

TEST_F(PasteHelperTest, countsFromWhenTheKeysWereMade) {
  keys.takes = 3000ms;
  paste(2, "x");
  queue.advance(3000ms + 89ms);
  EXPECT_TRUE(isRestored());
  queue.advance(1ms + 50ms);
  EXPECT_EQ(keys.posted.size(), 3U);
  queue.advance(3000ms + 1999ms);
  EXPECT_FALSE(isRestored()) << "the application has just got the chord";
  EXPECT_EQ(general.readByApplication(), "x");
  EXPECT_THAT(outcomes, ElementsAre(inserted));

  paste(2, "");
  queue.advance(2999ms);
  EXPECT_THAT(outcomes, SizeIs(1));
  queue.advance(1ms);
  EXPECT_THAT(outcomes, SizeIs(2));
}

TEST_F(PasteHelperTest, waitsForALateReader) {
  paste(1, "x");
  queue.advance(120ms + 1500ms);
  EXPECT_THAT(outcomes, IsEmpty());
  EXPECT_EQ(general.readByApplication(), "x");
  EXPECT_THAT(outcomes, ElementsAre(inserted));
  EXPECT_EQ(readAfter(60ms), "x") << "some look first, and read then";
  EXPECT_TRUE(isRestoredJustAfter(100ms));
}

TEST_F(PasteHelperTest, aReadAheadIsNotThePaste) {
  general.manner = ReadManner::ahead;
  paste(1, "x");
  readAfter(120ms + 20ms);
  general.manner = ReadManner::checking;
  EXPECT_EQ(readAfter(480ms), "x") << "a page that is given the processor late";
  queue.advance(475ms);
  EXPECT_THAT(outcomes, IsEmpty());
  ++general.requests;
  queue.advance(500ms);
  EXPECT_THAT(outcomes, IsEmpty()) << "it has been taken off its processor, and is still at it";
  ++general.requests;
  general.manner = ReadManner::checked;
  EXPECT_TRUE(isRestoredJustAfter(125ms));
  EXPECT_THAT(outcomes, ElementsAre(inserted));
  general.manner = ReadManner::ahead;
  paste(1, "y");
  readAfter(120ms + 10ms);
  queue.advance(2000ms);
  EXPECT_THAT(outcomes, SizeIs(2)) << "keys need not wait longer for a page, which gets them in order";
  paste(1, "next");
  queue.advance(2900ms);
  general.manner = ReadManner::checked;
  EXPECT_EQ(general.readByApplication(), "y") << "nor does the next text take its place";
  EXPECT_EQ(readAfter(200ms), "next");
  EXPECT_FALSE(isRestored());
  queue.advance(200ms);
  EXPECT_TRUE(isRestored());
  general.manner = ReadManner::ahead;
  paste(1, "once");
  readAfter(120ms + 10ms);
  EXPECT_TRUE(isRestoredJustAfter(5100ms)) << "one that reads once after all";
  general.manner = ReadManner::likely;
  paste(1, "z");
  readAfter(120ms + 20ms);
  queue.advance(299ms);
  EXPECT_THAT(outcomes, SizeIs(4));
  queue.advance(1ms);
  EXPECT_THAT(outcomes, SizeIs(5)) << "keys need not wait longer for an address bar";
  EXPECT_TRUE(isRestoredJustAfter(1800ms)) << "should it be a page after all";
  general.manner = ReadManner::checking;
  paste(1, "w");
  readAfter(120ms + 1000ms);
  for (int i = 0; i < 30; ++i, ++general.requests) queue.advance(100ms);
  EXPECT_THAT(outcomes, SizeIs(6)) << "somebody asks all the time";
}

TEST_F(PasteHelperTest, doesNotTakeAReadBeforeTheChordForThePaste) {
  paste(1, "x");
  readAfter(80ms);
  queue.advance(40ms + 199ms);
  EXPECT_THAT(outcomes, IsEmpty());
  queue.advance(1ms);
  EXPECT_THAT(outcomes, ElementsAre(inserted)) << "it may have kept what it read";
  EXPECT_EQ(readAfter(1300ms), "x") << "or it may read again";
  queue.advance(100ms);
  EXPECT_TRUE(isRestored());
}

TEST_F(PasteHelperTest, doesNotPasteBeforeTheTextIsThere) {
  general.isHeldUp = true;
  paste(0, "x");
  queue.advance(100ms + 500ms);
  EXPECT_THAT(keys.posted, IsEmpty()) << "would paste what the user had copied";
  general.carryOutHeldWrite();
  queue.advance(20ms);
  EXPECT_THAT(keys.posted, SizeIs(1));
  EXPECT_EQ(general.readByApplication(), "x");
  EXPECT_TRUE(isRestoredJustAfter(200ms));
  general.isHeldUp = true;
  paste(1, "x");
  queue.advance(5000ms);
  EXPECT_THAT(keys.posted, SizeIs(2)) << "the backspace, and no chord";
  EXPECT_THAT(outcomes, ElementsAre(inserted, InsertionOutcome::erasedOnly));
}

TEST_F(PasteHelperTest, givesUpAfterTwoSeconds) {
  paste(1, "x");
  queue.advance(120ms + 1999ms);
  EXPECT_THAT(outcomes, IsEmpty());
  EXPECT_TRUE(isRestoredJustAfter(1ms));
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::erasedOnly));
  queue.advance(5000ms);
  EXPECT_THAT(outcomes, SizeIs(1));
}

TEST_F(PasteHelperTest, typesTheShortcodeAgainWhereNobodyTakesTheText) {
  const PasteSession::Job job{2, "x", PasteChord::controlV, ":s"};
  paste(job);
  ++general.textRequests;
  queue.advance(140ms + 1999ms);
  EXPECT_THAT(outcomes, IsEmpty());
  queue.advance(1ms);
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::unchanged));
  ASSERT_THAT(keys.posted, SizeIs(5));
  EXPECT_EQ(keys.posted[3].press, (KeyPress{0, 0, ":"}));
  EXPECT_EQ(keys.posted[4].press, (KeyPress{0, 0, "s"}));
  EXPECT_EQ(general.readByApplication(), "") << "who wakes late finds nothing to paste";
  EXPECT_EQ(helper->userText(), "user's");
  EXPECT_TRUE(isRestoredJustAfter(3000ms));
  paste(job);
  queue.advance(1000ms);
  general.copyElsewhere("newer");
  queue.advance(9999ms);
  EXPECT_EQ(general.contents(), (Items{{"UTF8_STRING", "newer"}}));
  general.copyElsewhere(saved);

  for (const bool goesElsewhere : {true, false}) {
    paste(job);
    queue.advance(140ms + 1000ms);
    if (goesElsewhere) helper->stopWaiting();
    if (!goesElsewhere) ++general.textRequests;
    queue.advance(1000ms);
    EXPECT_EQ(outcomes.back(), InsertionOutcome::erasedOnly);
    EXPECT_TRUE(isRestored());
    EXPECT_EQ(keys.posted.back().press, controlV);
  }
}

TEST_F(PasteHelperTest, restoresWhatAHungOwnerStillDelivered) {
  general.readyAfter = 200ms;
  general.completeAfter = 1000ms;
  general.lateItems = {{"image/tiff", "late"}};
  paste(0, "x");
  queue.advance(199ms);
  EXPECT_THAT(general.writtenTexts, IsEmpty());
  EXPECT_EQ(readAfter(61ms), "x");
  EXPECT_THAT(outcomes, ElementsAre(inserted));
  queue.advance(999ms - 260ms);
  EXPECT_TRUE(general.isOurText());
  queue.advance(60ms);
  Items all = saved;
  all.push_back({"image/tiff", "late"});
  EXPECT_EQ(general.contents(), all);
}

TEST_F(PasteHelperTest, leavesWhatTheUserCopiesAtAnyMoment) {
  for (const milliseconds moment : {30ms, 150ms}) {
    SCOPED_TRACE(moment.count());
    const std::string newer = "newer at " + std::to_string(moment.count());
    general.writtenTexts.clear();
    paste(0, "x");
    readAfter(moment);
    general.copyElsewhere(newer);
    EXPECT_EQ(helper->userText(), newer);
    queue.advance(3000ms);
    EXPECT_THAT(general.writtenTexts, ElementsAre("x"));
    EXPECT_EQ(general.contents(), (Items{{"UTF8_STRING", newer}}));
  }
}

TEST_F(PasteHelperTest, pastesOnceThoughEveryoneKeepsCopying) {
  general.readyAfter = 20ms;
  const auto copying = queue.repeat(5ms, [this] {
    if (general.writtenTexts.empty()) general.copyElsewhere("again");
  });
  paste(0, "x");
  queue.advance(1000ms);
  EXPECT_THAT(general.writtenTexts, ElementsAre("x"));
  EXPECT_THAT(keys.posted, SizeIs(1));
}

TEST_F(PasteHelperTest, pastesInTerminalsFromBothPasteboards) {
  paste(1, "x", PasteChord::shiftInsert);
  queue.advance(120ms);
  EXPECT_EQ(keys.posted.back().press, shiftInsert);
  EXPECT_TRUE(general.isOurText());
  EXPECT_EQ(primary.readByApplication(), "x");
  EXPECT_THAT(outcomes, ElementsAre(inserted));
  queue.advance(200ms);
  EXPECT_TRUE(isRestored());
  EXPECT_EQ(primary.contents(), selected);
}

TEST_F(PasteHelperTest, pastesIntoVimFromTheRegisterOfTheClipboard) {
  paste(0, "x", PasteChord::registerPlus);
  queue.advance(100ms);
  std::vector<KeyPress> presses;
  for (const auto& posted : keys.posted) presses.push_back(posted.press);
  EXPECT_THAT(presses, ElementsAre(KeyPress{keycode::r, keyflag::control},
                                   KeyPress{keycode::o, keyflag::control}, KeyPress{0, 0, "+"}));
  EXPECT_EQ(primary.snapshots, 0);
}

TEST_F(PasteHelperTest, aSecondPasteKeepsTheFirstsSavedContents) {
  paste(0, "first");
  readAfter(100ms);
  paste(0, "second");
  queue.advance(100ms);
  EXPECT_EQ(general.snapshots, 1);
  EXPECT_EQ(readAfter(1000ms), "second") << "the first paste's restore must not come in between";
  EXPECT_THAT(outcomes, ElementsAre(inserted, inserted));
  queue.advance(100ms);
  EXPECT_TRUE(isRestored());
}

TEST_F(PasteHelperTest, aSecondPasteSavesWhatWasCopiedSinceTheFirst) {
  paste(0, "first");
  readAfter(100ms);
  general.copyElsewhere("newer");
  paste(0, "second");
  queue.advance(3000ms);
  EXPECT_EQ(general.snapshots, 2);
  EXPECT_EQ(general.contents(), (Items{{"UTF8_STRING", "newer"}}));
}

TEST_F(PasteHelperTest, aSecondPasteElsewhereStillRestoresTheTerminalsSelection) {
  paste(0, "first", PasteChord::shiftInsert);
  queue.advance(100ms);
  primary.readByApplication();
  paste(0, "second");
  readAfter(100ms);
  queue.advance(200ms);
  EXPECT_TRUE(isRestored());
  EXPECT_EQ(primary.contents(), selected);
}

TEST_F(PasteHelperTest, itsEndGivesTheContentsBackAtOnce) {
  for (const milliseconds moment : {0ms, 100ms, 130ms, 1000ms}) {
    SCOPED_TRACE(moment.count());
    outcomes.clear();
    helper.emplace(general, primary, keys, queue);
    paste(1, "x", PasteChord::shiftInsert);
    queue.advance(moment);
    helper.reset();
    EXPECT_TRUE(isRestored());
    EXPECT_EQ(primary.contents(), selected);
    EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::erasedOnly));
    const auto atTheEnd = std::pair(general.writtenTexts, keys.posted);
    queue.advance(5000ms);
    EXPECT_EQ(std::pair(general.writtenTexts, keys.posted), atTheEnd);
  }
}

}  // namespace
}  // namespace tessarin::testing
