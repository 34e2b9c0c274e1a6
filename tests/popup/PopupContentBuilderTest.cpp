

#include "Matchers.h"
#include "popup/AutocompleteViewModel.h"
#include "popup/PopupContentBuilder.h"

namespace tessarin::testing {
namespace {

Snippet makeSnippet(const std::string& trigger, const std::string& replacement) {
  return {"id_" + trigger, "name of " + trigger, trigger, replacement, {}, "", false};
}

TEST(PopupContentBuilderTest, ShowsTheModelAndHintsAtSkinTonesWhereThePickerCanOpen) {
  AutocompleteViewModel model;
  EXPECT_THAT(buildPopupContent(model, ";").hints, IsEmpty());
  model.updateResults({makeSnippet("wave", "👋"), makeSnippet("shrug", "(ツ)")}, "w");
  EXPECT_THAT(buildPopupContent(model, ";").hints, Contains(PopupKeyHint{"→", "skin tone"}));
  model.enterSkinToneMode(*model.selectedSnippet());
  EXPECT_THAT(buildPopupContent(model, ";").hints, SizeIs(4)) << "the picker is open";
  model.exitSkinToneMode();
  model.moveSelectionDown();
  const PopupContent content = buildPopupContent(model, ";");
  EXPECT_EQ(content.triggerCharacter, ";");
  EXPECT_EQ(content.query, "w");
  EXPECT_EQ(content.selectedIndex, 1);
  EXPECT_THAT(content.rows, ElementsAre(PopupRow{"id_wave", "👋", "wave", "name of wave", true},
                                        PopupRow{"id_shrug", "(ツ)", "shrug", "name of shrug", false}));
  EXPECT_THAT(content.hints, ElementsAre(PopupKeyHint{"↑↓", "navigate"}, PopupKeyHint{"↵", "select"},
                                         PopupKeyHint{";", "confirm"}, PopupKeyHint{"esc", "cancel"}));
}

}  // namespace
}  // namespace tessarin::testing
