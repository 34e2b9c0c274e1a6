#include "popup/PopupContentBuilder.h"

#include "base/Translate.h"
#include "model/SkinToneVariants.h"
#include "popup/AutocompleteViewModel.h"

namespace tessarin {
namespace {

PopupRow makeRow(const Snippet& snippet) {
  return {.id = snippet.id,
          .replacement = snippet.replacement,
          .trigger = snippet.trigger,
          .name = snippet.name,
          .supportsSkinTones = supportsSkinTones(snippet.replacement)};
}

bool offersSkinTones(const AutocompleteViewModel& model) {
  const auto selected = model.selectedSnippet();
  return !model.skinToneMode() && selected && supportsSkinTones(selected->replacement);
}

std::vector<PopupKeyHint> makeHints(const AutocompleteViewModel& model, const std::string& triggerCharacter) {
  if (model.results().empty()) return {};
  std::vector<PopupKeyHint> hints = {{"↑↓", translate("Popup", "navigate")}};
  if (model.hasSelection()) hints.push_back({"↵", translate("Popup", "select")});
  hints.push_back({triggerCharacter, translate("Popup", "confirm")});
  hints.push_back({"esc", translate("Popup", "cancel")});
  if (offersSkinTones(model)) hints.push_back({"→", translate("Popup", "skin tone")});
  return hints;
}

}  // namespace

PopupContent buildPopupContent(const AutocompleteViewModel& model, const std::string& triggerCharacter) {
  PopupContent content{.triggerCharacter = triggerCharacter,
                       .query = model.query(),
                       .rows = {},
                       .selectedIndex = model.selectedIndex(),
                       .skinToneMode = model.skinToneMode(),
                       .skinToneVariants = model.skinToneVariants(),
                       .skinToneSelectedIndex = model.skinToneSelectedIndex(),
                       .hints = makeHints(model, triggerCharacter)};
  content.rows.reserve(model.results().size());
  for (const Snippet& snippet : model.results()) content.rows.push_back(makeRow(snippet));
  return content;
}

}  // namespace tessarin
