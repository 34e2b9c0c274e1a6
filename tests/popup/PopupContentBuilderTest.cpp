#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "popup/AutocompleteViewModel.h"
#include "popup/PopupContentBuilder.h"

namespace tessarin::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Snippet makeSnippet(const std::string& trigger, const std::string& replacement) {
  return {"id_" + trigger, "name of " + trigger, trigger, replacement, {}, "", false};
}

std::vector<std::string> hintKeys(const AutocompleteViewModel& model) {
  std::vector<std::string> keys;
  for (const PopupKeyHint& hint : buildPopupContent(model, ":").hints) keys.push_back(hint.key);
  return keys;
}

class PopupContentBuilderTest : public ::testing::Test {
 protected:
  PopupContentBuilderTest() {
    model.updateResults({makeSnippet("wave", "👋"), makeSnippet("shrug", "(ツ)")}, "w");
  }
  AutocompleteViewModel model;
};

TEST_F(PopupContentBuilderTest, ShowsTheModel) {
  model.moveSelectionDown();
  const PopupContent content = buildPopupContent(model, ";");
  EXPECT_EQ(content.triggerCharacter, ";");
  EXPECT_EQ(content.query, "w");
  EXPECT_EQ(content.selectedIndex, 1);
  EXPECT_FALSE(content.skinToneMode);
  EXPECT_THAT(content.skinToneVariants, IsEmpty());
  EXPECT_THAT(content.rows, ElementsAre(PopupRow{"id_wave", "👋", "wave", "name of wave", true},
                                        PopupRow{"id_shrug", "(ツ)", "shrug", "name of shrug", false}));
}

TEST_F(PopupContentBuilderTest, HintsAtTheKeys) {
  EXPECT_THAT(
      buildPopupContent(model, ";").hints,
      ElementsAre(PopupKeyHint{"↑↓", "navigate"}, PopupKeyHint{"↵", "select"}, PopupKeyHint{";", "confirm"},
                  PopupKeyHint{"esc", "cancel"}, PopupKeyHint{"→", "skin tone"}));
}

TEST_F(PopupContentBuilderTest, HintsAtSkinTonesOnlyWhereThePickerCanOpen) {
  model.enterSkinToneMode(*model.selectedSnippet());
  EXPECT_THAT(hintKeys(model), ElementsAre("↑↓", "↵", ":", "esc")) << "the picker is open";
  model.exitSkinToneMode();
  model.moveSelectionDown();
  EXPECT_THAT(hintKeys(model), ElementsAre("↑↓", "↵", ":", "esc")) << "the highlighted row has none";
  model.updateResults({}, "q");
  EXPECT_THAT(hintKeys(model), IsEmpty());
}

}  // namespace
}  // namespace tessarin::testing
