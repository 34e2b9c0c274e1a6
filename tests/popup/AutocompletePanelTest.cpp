#include <gtest/gtest.h>

#include <chrono>
#include <utility>

#include "popup/AutocompletePanel.h"
#include "support/FakeAccessibility.h"
#include "support/FakeDesktop.h"
#include "support/FakePopup.h"
#include "support/ManualMainQueue.h"

namespace tessarin::testing {
namespace {

using std::chrono::milliseconds;

PopupContent contentOf(const std::string& query, std::size_t rows) {
  PopupContent content;
  content.query = query;
  content.rows.resize(rows);
  return content;
}

class AutocompletePanelTest : public ::testing::Test {
 protected:
  AutocompletePanelTest() {
    element->attributes[std::string(attribute::selectedTextRange)] = TextRange{};
    element->parameterized[std::string(attribute::boundsForRange)] = [this](const AttributeValue&) {
      return std::optional<AttributeValue>(caret);
    };
    accessibility.focus(element);
  }

  /// Presents a list and does what was put off.
  void show(const std::string& query) {
    panel->present(contentOf(query, 2));
    queue.runReady();
  }

  ManualMainQueue queue;
  FakeAccessibility accessibility;
  FakeScreens screens;
  FakePopupSurface surface;
  std::shared_ptr<FakeElement> element = std::make_shared<FakeElement>();
  Rect caret{300, 100, 1, 16};
  std::optional<AutocompletePanel> panel{std::in_place, surface, screens, accessibility, queue};
};

TEST_F(AutocompletePanelTest, answersTheKeyBeforeItAsksForTheCaret) {
  panel->present(contentOf("s", 2));
  EXPECT_TRUE(panel->isVisible());
  EXPECT_EQ(accessibility.calls, 0);
  EXPECT_TRUE(surface.shows.empty());
  queue.runReady();
  ASSERT_EQ(surface.shows.size(), 1U);
  EXPECT_EQ(surface.prepared, contentOf("s", 2));
  EXPECT_EQ(surface.shows[0].frame, (Rect{300, 1080 - 116 - 136 - 4, 320, 136}));
}

TEST_F(AutocompletePanelTest, severalPresentsBecomeOneAlsoWhereAKeyComesMeanwhile) {
  for (const char* query : {"s", "sm", "smi"}) panel->present(contentOf(query, 8));
  queue.async([this] { panel->present(contentOf("smil", 1)); });
  queue.runReady();
  ASSERT_EQ(surface.shows.size(), 1U);
  EXPECT_EQ(surface.shows[0].content.query, "smil");
  EXPECT_EQ(surface.shows[0].frame.height, 100);
}

TEST_F(AutocompletePanelTest, followsTheCaretWithEveryQueryAndAfterHidingOrThePointer) {
  show("s");
  caret.x = 310;
  show("sm");
  EXPECT_EQ(surface.shows.back().frame.x, 310);
  panel->hide();
  EXPECT_FALSE(panel->isVisible());
  EXPECT_TRUE(surface.isShown) << "what is done for the key goes first";
  queue.runReady();
  EXPECT_FALSE(surface.isShown);
  caret.x = 500;
  show("sm");
  EXPECT_TRUE(surface.isShown);
  EXPECT_EQ(surface.shows.back().frame.x, 500);
  panel->hide();
  accessibility.trusted = false;
  screens.mouse = {400, 600};
  show("s");
  EXPECT_EQ(surface.shows.back().frame, (Rect{408, 456, 320, 136})) << "at the pointer";
}

TEST_F(AutocompletePanelTest, showsAtOnceWhereTheCaretIsExpectedAndMovesOnlyThen) {
  panel->anticipate();
  queue.advance(milliseconds(25));
  caret.x = 310;
  show("s");
  ASSERT_EQ(surface.shows.size(), 2U);
  EXPECT_EQ(surface.shows[0].frame.x, 300);
  EXPECT_EQ(surface.shows[1].frame.x, 310);
  show("sm");
  EXPECT_EQ(surface.shows.size(), 3U) << "it stands where it should";
}

TEST_F(AutocompletePanelTest, asksAheadOnlyForAShortcodeThatIsGoingOn) {
  panel->anticipate();
  panel->hide();
  queue.advance(milliseconds(100));
  EXPECT_EQ(accessibility.calls, 0) << "it has ended";
  show("s");
  const int once = std::exchange(accessibility.calls, 0);
  panel->hide();
  panel->anticipate();
  show("s");
  queue.advance(milliseconds(100));
  EXPECT_EQ(accessibility.calls, once) << "the letter came first";
  panel->hide();
  panel->anticipate();
  queue.advance(milliseconds(100));
  panel->hide();
  caret.x = 700;
  show("s");
  EXPECT_EQ(surface.shows.back().frame.x, 700);
  EXPECT_EQ(surface.shows.size(), 3U) << "what was expected of an earlier shortcode is forgotten";
}

TEST_F(AutocompletePanelTest, givesABusyApplicationTimeToSayWhereItsCaretIs) {
  const auto bounds = std::exchange(element->parameterized, {});
  accessibility.busy = true;
  show("s");
  EXPECT_TRUE(panel->isVisible());
  EXPECT_TRUE(surface.shows.empty()) << "not yet";
  queue.advance(milliseconds(100));
  element->parameterized = bounds;
  accessibility.busy = false;
  queue.advance(milliseconds(25));
  ASSERT_EQ(surface.shows.size(), 1U);
  EXPECT_EQ(surface.shows[0].frame.x, 300);

  element->parameterized.clear();
  accessibility.busy = true;
  show("sm");
  ASSERT_EQ(surface.shows.size(), 2U) << "a new list does not wait";
  EXPECT_EQ(surface.shows[1].frame.x, 300);
  panel->hide();
  show("x");
  queue.advance(milliseconds(299));
  EXPECT_FALSE(surface.isShown);
  const int hides = surface.hides;
  panel->hide();
  queue.runReady();
  EXPECT_EQ(surface.hides, hides + 1) << "what is prepared holds memory";
  show("x");
  queue.advance(milliseconds(299));
  queue.advance(milliseconds(26));
  EXPECT_TRUE(surface.isShown) << "beside the pointer";
  queue.advance(milliseconds(5000));
  EXPECT_EQ(queue.pending(), 0U);
}

TEST_F(AutocompletePanelTest, followsTheFocusThatIsKnownLateOnly) {
  accessibility.application->attributes.erase(std::string(attribute::focusedElement));
  accessibility.busy = true;
  show("s");
  EXPECT_TRUE(surface.shows.empty()) << "while the element is being looked for";
  accessibility.busy = false;
  queue.advance(milliseconds(25));
  ASSERT_EQ(surface.shows.size(), 1U) << "beside the pointer";
  queue.advance(milliseconds(1800));
  EXPECT_EQ(surface.shows.size(), 1U);
  accessibility.focus(element);
  queue.advance(milliseconds(100));
  ASSERT_EQ(surface.shows.size(), 2U);
  EXPECT_EQ(surface.shows[1].frame.x, 300);
  EXPECT_EQ(queue.pending(), 0U);
}

TEST_F(AutocompletePanelTest, aMovedHighlightLeavesTheWindowInPlace) {
  show("s");
  const int calls = accessibility.calls;
  caret.x = 500;
  PopupContent moved = contentOf("s", 2);
  moved.selectedIndex = 1;
  moved.skinToneMode = true;
  moved.skinToneVariants = {"a", "b"};
  panel->present(moved);
  queue.runReady();
  EXPECT_EQ(accessibility.calls, calls);
  ASSERT_EQ(surface.shows.size(), 2U);
  EXPECT_EQ(surface.shows[1].content, moved);
  EXPECT_EQ(surface.shows[1].frame, surface.shows[0].frame);
}

TEST_F(AutocompletePanelTest, tellsWhatStandsBeforeTheCaretBeforeAnythingIsShown) {
  auto field = FakeTextField::create();
  field->parameterized.insert(element->parameterized.begin(), element->parameterized.end());
  field->parameterized[std::string(attribute::isTerminal)] = [](const auto&) { return AttributeValue(true); };
  field->type("12:s");
  accessibility.focus(field);
  show("s");
  const int unread = std::exchange(accessibility.calls, 0);
  panel->hide();
  std::vector<std::string> told;
  panel->onContextRead([&](const CaretContext& context) {
    told.push_back(*context.before);
    EXPECT_TRUE(context.isTerminal);
    PopupContent withoutHighlight = contentOf("s", 2);
    withoutHighlight.selectedIndex = -1;
    if (told.size() == 1) panel->present(withoutHighlight);
    return context.before->front() != '1';
  });
  surface.shows.clear();
  show("s");
  EXPECT_EQ(told, (std::vector<std::string>(2, "2:s")));
  EXPECT_EQ(accessibility.calls, 2 * (unread + 2));
  ASSERT_EQ(surface.shows.size(), 1U) << "what was to be shown first is not";
  EXPECT_EQ(surface.shows[0].content.selectedIndex, -1);
  show("sm");
  EXPECT_EQ(told.back(), "12:s");
  field->type("m");
  queue.advance(milliseconds(25));
  EXPECT_EQ(told.back(), "2:sm") << "the letter came late";
  EXPECT_EQ(queue.pending(), 0U);
  panel->hide();
  field->clear();
  field->type("12");
  panel->anticipate();
  queue.advance(milliseconds(25));
  EXPECT_EQ(told.back(), "12") << "for a shortcode of one character";
  field->type(":");
  queue.advance(milliseconds(25));
  EXPECT_EQ(told.back(), "2:");
  EXPECT_EQ(queue.pending(), 0U);
}

TEST_F(AutocompletePanelTest, hidingCancelsWhatWasPutOffAndSoDoesItsEnd) {
  panel->present(contentOf("s", 2));
  panel->hide();
  queue.runReady();
  EXPECT_EQ(surface.hides, 0);
  panel->present(contentOf("s", 2));
  panel.reset();
  queue.runReady();
  EXPECT_TRUE(surface.shows.empty());
}

}  // namespace
}  // namespace tessarin::testing
