#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "insertion/PasteHelper.h"
#include "platform/KeyCodes.h"
#include "support/FakeKeyPoster.h"
#include "support/FakePasteboard.h"
#include "support/ManualMainQueue.h"

namespace tessarin {
namespace {

using std::chrono::milliseconds;
using ::testing::ElementsAre;
using testing::FakeKeyPoster;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Items = std::vector<PasteboardItem>;

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
    helper->pasteText(count, text, chord, [this](InsertionOutcome outcome) { outcomes.push_back(outcome); });
  }

  bool isRestored() const { return general.contents() == saved; }

  const Items saved{
      {"UTF8_STRING", "user's"}, {"text/html", "<b>user's</b>"}, {"image/png", {"\x89P\0G", 4}}};
  testing::ManualMainQueue queue;
  testing::FakePasteboard general{queue};
  testing::FakePasteboard primary{queue};
  FakeKeyPoster keys{queue};
  std::vector<InsertionOutcome> outcomes;
  std::optional<PasteHelper> helper{std::in_place, general, primary, keys, queue};
};

TEST_F(PasteHelperTest, givesTheDeletionsTime) {
  paste(2, "😀");
  const FakeKeyPoster::Posted erasing{backspace, {}};
  EXPECT_THAT(keys.posted, ElementsAre(erasing, erasing));

  queue.advance(milliseconds(89));
  EXPECT_TRUE(isRestored());
  queue.advance(milliseconds(1));
  EXPECT_EQ(general.contents(), (Items{{"UTF8_STRING", "😀"}}));

  queue.advance(milliseconds(50));
  EXPECT_THAT(keys.posted, ElementsAre(erasing, erasing, FakeKeyPoster::Posted{controlV, milliseconds(140)}));
  EXPECT_THAT(outcomes, IsEmpty());
  EXPECT_EQ(general.readByApplication(), "😀");
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted));

  queue.advance(milliseconds(199));
  EXPECT_FALSE(isRestored());
  queue.advance(milliseconds(1));
  EXPECT_TRUE(isRestored());
  EXPECT_EQ(primary.snapshots, 0) << "of no use outside terminals";
}

TEST_F(PasteHelperTest, countsFromWhenTheKeysWereMade) {
  keys.takes = milliseconds(3000);
  paste(2, "x");
  queue.advance(milliseconds(3000 + 89));
  EXPECT_TRUE(isRestored());
  queue.advance(milliseconds(1 + 50));
  EXPECT_EQ(keys.posted.size(), 3U);
  queue.advance(milliseconds(3000 + 1999));
  EXPECT_FALSE(isRestored()) << "the application has just got the chord";
  EXPECT_EQ(general.readByApplication(), "x");
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted));

  paste(2, "");
  queue.advance(milliseconds(2999));
  EXPECT_THAT(outcomes, SizeIs(1));
  queue.advance(milliseconds(1));
  EXPECT_THAT(outcomes, SizeIs(2));
}

TEST_F(PasteHelperTest, waitsForALateReader) {
  paste(1, "x");
  queue.advance(milliseconds(120 + 1500));
  EXPECT_THAT(outcomes, IsEmpty());
  EXPECT_EQ(general.readByApplication(), "x");
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted));
  queue.advance(milliseconds(60));
  EXPECT_EQ(general.readByApplication(), "x") << "some look first, and read then";
  queue.advance(milliseconds(99));
  EXPECT_FALSE(isRestored());
  queue.advance(milliseconds(1));
  EXPECT_TRUE(isRestored());
}

TEST_F(PasteHelperTest, doesNotTakeAReadBeforeTheChordForThePaste) {
  paste(1, "x");
  queue.advance(milliseconds(80));
  general.readByApplication();
  queue.advance(milliseconds(40 + 199));
  EXPECT_THAT(outcomes, IsEmpty());
  queue.advance(milliseconds(1));
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted)) << "it may have kept what it read";
  queue.advance(milliseconds(1300));
  EXPECT_EQ(general.readByApplication(), "x") << "or it may read again";
  queue.advance(milliseconds(100));
  EXPECT_TRUE(isRestored());
}

TEST_F(PasteHelperTest, givesUpAfterTwoSeconds) {
  paste(1, "x");
  queue.advance(milliseconds(120 + 1999));
  EXPECT_THAT(outcomes, IsEmpty());
  EXPECT_FALSE(isRestored());
  queue.advance(milliseconds(1));
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::erasedOnly));
  EXPECT_TRUE(isRestored());
  queue.advance(milliseconds(5000));
  EXPECT_THAT(outcomes, SizeIs(1));
}

TEST_F(PasteHelperTest, restoresAnEmptyPasteboardThatNobodyRead) {
  general.copyElsewhere(Items{});
  paste(0, "x");
  queue.advance(milliseconds(3000));
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::unchanged));
  EXPECT_THAT(general.contents(), IsEmpty());
}

TEST_F(PasteHelperTest, restoresWhatAHungOwnerStillDelivered) {
  general.readyAfter = milliseconds(200);
  general.completeAfter = milliseconds(1000);
  general.lateItems = {{"image/tiff", "late"}};
  paste(0, "x");
  queue.advance(milliseconds(199));
  EXPECT_THAT(general.writtenTexts, IsEmpty());
  queue.advance(milliseconds(61));
  EXPECT_EQ(general.readByApplication(), "x");
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted));
  queue.advance(milliseconds(999 - 260));
  EXPECT_TRUE(general.isOurText());
  queue.advance(milliseconds(60));
  Items all = saved;
  all.push_back({"image/tiff", "late"});
  EXPECT_EQ(general.contents(), all);
}

TEST_F(PasteHelperTest, leavesWhatTheUserCopiedMeanwhile) {
  for (const int moment : {30, 150}) {
    const std::string newer = "newer at " + std::to_string(moment);
    general.writtenTexts.clear();
    paste(0, "x");
    queue.advance(milliseconds(moment));
    general.readByApplication();
    general.copyElsewhere(newer);
    queue.advance(milliseconds(3000));
    EXPECT_THAT(general.writtenTexts, ElementsAre("x")) << moment;
    EXPECT_EQ(general.contents(), (Items{{"UTF8_STRING", newer}})) << moment;
  }
}

TEST_F(PasteHelperTest, pastesOnceThoughEveryoneKeepsCopying) {
  general.readyAfter = milliseconds(20);
  const auto copying = queue.repeat(milliseconds(5), [this] {
    if (general.writtenTexts.empty()) general.copyElsewhere("again");
  });
  paste(0, "x");
  queue.advance(milliseconds(1000));
  EXPECT_THAT(general.writtenTexts, ElementsAre("x"));
  EXPECT_THAT(keys.posted, SizeIs(1));
}

TEST_F(PasteHelperTest, pastesInTerminalsFromBothPasteboards) {
  paste(1, "x", PasteChord::shiftInsert);
  queue.advance(milliseconds(120));
  EXPECT_EQ(keys.posted.back().press, shiftInsert);
  EXPECT_TRUE(general.isOurText());
  EXPECT_EQ(primary.readByApplication(), "x");
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted));
  queue.advance(milliseconds(200));
  EXPECT_TRUE(isRestored());
  EXPECT_EQ(primary.contents(), (Items{{"UTF8_STRING", "selected"}}));
}

TEST_F(PasteHelperTest, aSecondPasteKeepsTheFirstsSavedContents) {
  paste(0, "first");
  queue.advance(milliseconds(100));
  general.readByApplication();
  paste(0, "second");
  queue.advance(milliseconds(100));
  EXPECT_EQ(general.snapshots, 1);
  queue.advance(milliseconds(1000));
  EXPECT_EQ(general.readByApplication(), "second") << "the first paste's restore must not come in between";
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted, InsertionOutcome::inserted));
  queue.advance(milliseconds(100));
  EXPECT_TRUE(isRestored());
}

TEST_F(PasteHelperTest, aSecondPasteSavesWhatWasCopiedSinceTheFirst) {
  paste(0, "first");
  queue.advance(milliseconds(100));
  general.readByApplication();
  general.copyElsewhere("newer");
  paste(0, "second");
  queue.advance(milliseconds(3000));
  EXPECT_EQ(general.snapshots, 2);
  EXPECT_EQ(general.contents(), (Items{{"UTF8_STRING", "newer"}}));
}

TEST_F(PasteHelperTest, aSecondPasteElsewhereStillRestoresTheTerminalsSelection) {
  paste(0, "first", PasteChord::shiftInsert);
  queue.advance(milliseconds(100));
  primary.readByApplication();
  paste(0, "second");
  queue.advance(milliseconds(100));
  general.readByApplication();
  queue.advance(milliseconds(200));
  EXPECT_TRUE(isRestored());
  EXPECT_EQ(primary.contents(), (Items{{"UTF8_STRING", "selected"}}));
}

TEST_F(PasteHelperTest, itsEndGivesTheContentsBackAtOnce) {
  for (const int moment : {0, 100, 130, 1000}) {
    SCOPED_TRACE(moment);
    outcomes.clear();
    helper.emplace(general, primary, keys, queue);
    paste(1, "x", PasteChord::shiftInsert);
    queue.advance(milliseconds(moment));
    helper.reset();
    EXPECT_TRUE(isRestored());
    EXPECT_EQ(primary.contents(), (Items{{"UTF8_STRING", "selected"}}));
    EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::erasedOnly));
    const std::size_t writes = general.writtenTexts.size();
    const std::size_t presses = keys.posted.size();
    queue.advance(milliseconds(5000));
    EXPECT_EQ(general.writtenTexts.size(), writes);
    EXPECT_EQ(keys.posted.size(), presses);
  }
}

TEST_F(PasteHelperTest, finishingAfterTheReadOnlyRestores) {
  paste(1, "x");
  queue.advance(milliseconds(120));
  general.readByApplication();
  helper->finish();
  EXPECT_TRUE(isRestored());
  EXPECT_THAT(outcomes, ElementsAre(InsertionOutcome::inserted));
}

TEST_F(PasteHelperTest, savesAgainWhatTheUserCopiedBeforeTheWrite) {
  paste(0, "x");
  queue.advance(milliseconds(30));
  general.copyElsewhere("newer");
  queue.advance(milliseconds(3000));
  EXPECT_THAT(general.writtenTexts, ElementsAre("x"));
  EXPECT_EQ(general.contents(), (Items{{"UTF8_STRING", "newer"}}));
}

TEST_F(PasteHelperTest, knowsTheUsersTextAtAnyTime) {
  EXPECT_EQ(helper->userText(), "user's");
  paste(0, "x");
  for (const int step : {50, 50, 199}) {
    queue.advance(milliseconds(step));
    EXPECT_EQ(helper->userText(), "user's") << step;
  }
  general.copyElsewhere("newer");
  EXPECT_EQ(helper->userText(), "newer");
}

}  // namespace
}  // namespace tessarin
