
#include "Matchers.h"
#include "popup/AutocompleteViewModel.h"

namespace tessarin::testing {
namespace {

const Snippet wave{"id", "wave", "wave", "👋", {}, "", false};

TEST(AutocompleteViewModel, theSelectionWrapsAround) {
  AutocompleteViewModel model;
  model.updateResults({wave, wave, wave}, "w");
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
}  // namespace tessarin::testing
