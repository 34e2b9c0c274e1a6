#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
  AutocompleteViewModel model;
  model.updateResults(snippets(3), "s");
  model.moveSelectionUp();
  EXPECT_EQ(model.selectedIndex(), 2);
  model.moveSelectionDown();
  EXPECT_EQ(model.selectedIndex(), 0);
  model.moveSelectionDown();
  EXPECT_EQ(model.selectedIndex(), 1);
  model.updateResults({}, "sx");
  model.moveSelectionDown();
  EXPECT_EQ(model.selectedIndex(), 0);
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
  EXPECT_EQ(model.selectedSkinToneVariant(), std::nullopt);
  model.enterSkinToneMode(wave);
  model.setSkinToneSelectedIndex(3);
  EXPECT_EQ(model.selectedSkinToneVariant(), "👋🏽");
  model.setSkinToneSelectedIndex(6);
  EXPECT_EQ(model.selectedSkinToneVariant(), std::nullopt);
  model.reset();
  EXPECT_FALSE(model.skinToneMode());
}

}  // namespace
}  // namespace tessarin
