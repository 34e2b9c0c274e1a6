#include "Matchers.h"
#include "popup/AutocompleteViewModel.h"
#include "popup/PopupContentBuilder.h"

namespace tessarin::testing {
namespace {

const Snippet wave{"id", "wave", "wave", "👋", {}, "", false};

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

TEST(PopupContentBuilderTest, ShowsTheModelAndHintsAtSkinTonesWhereThePickerCanOpen) {
  AutocompleteViewModel model;
  EXPECT_THAT(buildPopupContent(model, ";").hints, IsEmpty());
  const Snippet shrug{"id2", "name of shrug", "shrug", "(ツ)", {}, "", false};
  model.updateResults({wave, shrug}, "w");
  EXPECT_THAT(buildPopupContent(model, ";").hints, Contains(PopupKeyHint{"→", "skin tone"}));
  model.enterSkinToneMode(*model.selectedSnippet());
  EXPECT_THAT(buildPopupContent(model, ";").hints, SizeIs(4)) << "the picker is open";
  model.exitSkinToneMode();
  model.moveSelectionDown();
  const PopupContent content = buildPopupContent(model, ";");
  EXPECT_EQ(content.triggerCharacter, ";");
  EXPECT_EQ(content.query, "w");
  EXPECT_EQ(content.selectedIndex, 1);
  EXPECT_THAT(content.rows, ElementsAre(PopupRow{"id", "👋", "wave", "wave", true},
                                        PopupRow{"id2", "(ツ)", "shrug", "name of shrug", false}));
  EXPECT_THAT(content.hints, Contains(PopupKeyHint{";", "confirm"}));
}

}  // namespace
}  // namespace tessarin::testing
