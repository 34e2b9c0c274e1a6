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

TEST(AutocompleteViewModel, theSelectionWrapsAround) {
  const struct {
    int rows;
    int from;
    int afterDown;
    int afterUp;
  } moves[] = {{3, 0, 1, 2}, {3, 1, 2, 0}, {3, 2, 0, 1}, {1, 0, 0, 0}, {0, 0, 0, -1}};
  for (const auto& move : moves) {
    for (const bool isDown : {true, false}) {
      AutocompleteViewModel model;
      model.updateResults(snippets(move.rows), "s");
      for (int i = 0; i < move.from; ++i) model.moveSelectionDown();
      isDown ? model.moveSelectionDown() : model.moveSelectionUp();
      EXPECT_EQ(model.selectedIndex(), isDown ? move.afterDown : move.afterUp)
          << move.rows << " rows, from " << move.from;
    }
  }
}

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

TEST(SkinTonePicker, stopsAtTheLastVariantAndClosesLeftOfTheFirst) {
  AutocompleteViewModel model;
  model.enterSkinToneMode(wave);
  for (int i = 0; i < 6; ++i) model.moveSkinToneRight();
  EXPECT_EQ(model.selectedSkinToneVariant(), "👋🏿");
  for (int i = 0; i < 5; ++i) model.moveSkinToneLeft();
  EXPECT_TRUE(model.skinToneMode());
  EXPECT_EQ(model.selectedSkinToneVariant(), "👋");
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
  for (const int outside : {6, -1}) {
    model.setSkinToneSelectedIndex(outside);
    EXPECT_EQ(model.selectedSkinToneVariant(), std::nullopt);
  }
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
