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

  EXPECT_THAT(content.rows, ElementsAre(PopupRow{"id_wave", "👋", "wave", "name of wave", true},
                                        PopupRow{"id_shrug", "(ツ)", "shrug", "name of shrug", false}));
  EXPECT_THAT(content.hints, ElementsAre(PopupKeyHint{"↑↓", "navigate"}, PopupKeyHint{"↵", "select"},
                                         PopupKeyHint{";", "confirm"}, PopupKeyHint{"esc", "cancel"}));
}

TEST_F(PopupContentBuilderTest, HintsAtSkinTonesOnlyWhereThePickerCanOpen) {
  EXPECT_THAT(hintKeys(model), ElementsAre("↑↓", "↵", ":", "esc", "→"));
  model.enterSkinToneMode(*model.selectedSnippet());
  EXPECT_THAT(hintKeys(model), ElementsAre("↑↓", "↵", ":", "esc")) << "the picker is open";
  model.updateResults({}, "q");
  EXPECT_THAT(hintKeys(model), IsEmpty());
}

}  // namespace
}  // namespace tessarin::testing
