#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "popup/AutocompleteViewModel.h"

namespace tessarin {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Snippet snippetOf(const std::string& trigger, const std::string& replacement) {
  return {"id-" + trigger, trigger, trigger, replacement, {}, "", false};
}

std::vector<Snippet> snippets(int count) {
  std::vector<Snippet> all;
  for (int i = 0; i < count; ++i) all.push_back(snippetOf("s" + std::to_string(i), "text"));
  return all;
}

const Snippet wave = snippetOf("wave", "👋");

struct Move {
  const char* name;
  int rows;
  int from;
  int afterDown;
  int afterUp;
};

class SelectionMoves : public ::testing::TestWithParam<Move> {
 protected:
  void start(AutocompleteViewModel& model) {
    model.updateResults(snippets(GetParam().rows), "s");
    for (int i = 0; i < GetParam().from; ++i) model.moveSelectionDown();
    ASSERT_EQ(model.selectedIndex(), GetParam().from);
  }
};

TEST_P(SelectionMoves, wrapAround) {
  AutocompleteViewModel down;
  start(down);
  down.moveSelectionDown();
  EXPECT_EQ(down.selectedIndex(), GetParam().afterDown);

  AutocompleteViewModel up;
  start(up);
  up.moveSelectionUp();
  EXPECT_EQ(up.selectedIndex(), GetParam().afterUp);
}

INSTANTIATE_TEST_SUITE_P(Rows, SelectionMoves,
                         ::testing::Values(Move{"first", 3, 0, 1, 2}, Move{"middle", 3, 1, 2, 0},
                                           Move{"last", 3, 2, 0, 1}, Move{"only", 1, 0, 0, 0},
                                           Move{"none", 0, 0, 0, -1}),
                         [](const auto& move) { return move.param.name; });

TEST(AutocompleteViewModel, resetEmptiesEverything) {
  AutocompleteViewModel model;
  model.updateResults(snippets(3), "s");
  model.moveSelectionDown();
  model.enterSkinToneMode(wave);
  model.reset();
  EXPECT_EQ(model.query(), "");
  EXPECT_THAT(model.results(), IsEmpty());
  EXPECT_EQ(model.selectedIndex(), 0);
  EXPECT_FALSE(model.skinToneMode());
  EXPECT_THAT(model.skinToneVariants(), IsEmpty());
  EXPECT_EQ(model.skinToneBaseSnippet(), std::nullopt);
}

TEST(AutocompleteViewModel, selectsAClickedRow) {
  AutocompleteViewModel model;
  std::vector<std::string> clicked;
  model.onItemSelected = [&](const Snippet& snippet) { clicked.push_back(snippet.trigger); };
  model.updateResults(snippets(3), "s");
  model.selectItem(-1);
  model.selectItem(3);
  EXPECT_THAT(clicked, IsEmpty());
  EXPECT_EQ(model.selectedIndex(), 0);
  model.selectItem(2);
  EXPECT_THAT(clicked, ElementsAre("s2"));
  EXPECT_EQ(model.selectedIndex(), 2);
}

TEST(SkinTonePicker, stopsAtTheLastVariant) {
  AutocompleteViewModel model;
  model.enterSkinToneMode(wave);
  for (int i = 0; i < 5; ++i) model.moveSkinToneRight();
  EXPECT_EQ(model.selectedSkinToneVariant(), "👋🏿");
  model.moveSkinToneRight();
  EXPECT_EQ(model.skinToneSelectedIndex(), 5);
}

TEST(SkinTonePicker, closesLeftOfTheFirstVariant) {
  AutocompleteViewModel model;
  model.enterSkinToneMode(wave);
  model.moveSkinToneRight();
  model.moveSkinToneLeft();
  EXPECT_TRUE(model.skinToneMode());
  EXPECT_EQ(model.skinToneSelectedIndex(), 0);
  model.moveSkinToneLeft();
  EXPECT_FALSE(model.skinToneMode());
  EXPECT_THAT(model.skinToneVariants(), IsEmpty());
  EXPECT_EQ(model.skinToneBaseSnippet(), std::nullopt);
  EXPECT_EQ(model.selectedSkinToneVariant(), std::nullopt);
}

TEST(SkinTonePicker, aClickHighlightsAVariant) {
  AutocompleteViewModel model;
  model.enterSkinToneMode(wave);
  model.setSkinToneSelectedIndex(3);
  EXPECT_EQ(model.selectedSkinToneVariant(), "👋🏽");
  model.setSkinToneSelectedIndex(6);
  EXPECT_EQ(model.selectedSkinToneVariant(), std::nullopt);
  model.setSkinToneSelectedIndex(-1);
  EXPECT_EQ(model.selectedSkinToneVariant(), std::nullopt);
}

TEST(AutocompleteViewModel, tellsOfEveryAssignment) {
  AutocompleteViewModel model;
  int told = 0;
  const auto subscription = model.onChange([&told] { ++told; });
  const auto toldBy = [&told](const std::function<void()>& operation) {
    told = 0;
    operation();
    return told;
  };
  EXPECT_EQ(toldBy([&] { model.updateResults({wave}, "w"); }), 7);
  EXPECT_EQ(toldBy([&] { model.moveSelectionDown(); }), 1) << "the only row again: the value stays the same";
  EXPECT_EQ(toldBy([&] { model.enterSkinToneMode(wave); }), 4);
  EXPECT_EQ(toldBy([&] { model.selectItem(0); }), 1);
  EXPECT_EQ(toldBy([&] { model.selectItem(1); }), 0);
  EXPECT_EQ(toldBy([&] { model.reset(); }), 7);
}

}  // namespace
}  // namespace tessarin
