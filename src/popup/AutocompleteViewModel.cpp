#include "popup/AutocompleteViewModel.h"

#include <utility>

#include "model/SkinToneVariants.h"

namespace tessarin {

template <class T, class U>
void AutocompleteViewModel::assign(T& field, U&& value) {
  field = std::forward<U>(value);
  changed_.emit();
}

std::optional<Snippet> AutocompleteViewModel::selectedSnippet() const {
  if (!hasSelection()) return std::nullopt;
  return results_[static_cast<std::size_t>(selectedIndex_)];
}

std::optional<std::string> AutocompleteViewModel::selectedSkinToneVariant() const {
  if (!skinToneMode_ || skinToneSelectedIndex_ < 0) return std::nullopt;
  const auto index = static_cast<std::size_t>(skinToneSelectedIndex_);
  if (index >= skinToneVariants_.size()) return std::nullopt;
  return skinToneVariants_[index];
}

void AutocompleteViewModel::updateResults(std::vector<Snippet> results, std::string query,
                                          int selectedIndex) {
  assign(query_, std::move(query));
  assign(results_, std::move(results));
  assign(selectedIndex_, selectedIndex);
  exitSkinToneMode();
}

void AutocompleteViewModel::setSelectedIndex(int index) {
  assign(selectedIndex_, index);
}

void AutocompleteViewModel::reset() {
  assign(results_, std::vector<Snippet>());
  assign(selectedIndex_, 0);
  assign(query_, std::string());
  exitSkinToneMode();
}

void AutocompleteViewModel::moveSelectionDown() {
  assign(selectedIndex_, selectedIndex_ >= count() - 1 ? 0 : selectedIndex_ + 1);
}

void AutocompleteViewModel::moveSelectionUp() {
  assign(selectedIndex_, selectedIndex_ < 1 ? count() - 1 : selectedIndex_ - 1);
}

void AutocompleteViewModel::selectItem(int index) {
  if (index < 0 || index >= count()) return;
  assign(selectedIndex_, index);
  // A copy of both: the handler usually resets this model.
  const auto selected = selectedSnippet();
  const auto handler = onItemSelected;
  if (handler && selected) handler(*selected);
}

void AutocompleteViewModel::enterSkinToneMode(const Snippet& snippet) {
  auto variants = makeSkinToneVariants(snippet.replacement);
  assign(skinToneBaseSnippet_, snippet);
  assign(skinToneVariants_, std::move(variants));
  assign(skinToneSelectedIndex_, 0);
  assign(skinToneMode_, true);
}

void AutocompleteViewModel::exitSkinToneMode() {
  assign(skinToneMode_, false);
  assign(skinToneVariants_, std::vector<std::string>());
  assign(skinToneSelectedIndex_, 0);
  assign(skinToneBaseSnippet_, std::nullopt);
}

void AutocompleteViewModel::moveSkinToneRight() {
  const int last = static_cast<int>(skinToneVariants_.size()) - 1;
  if (skinToneSelectedIndex_ < last) assign(skinToneSelectedIndex_, skinToneSelectedIndex_ + 1);
}

void AutocompleteViewModel::moveSkinToneLeft() {
  if (skinToneSelectedIndex_ >= 1) {
    assign(skinToneSelectedIndex_, skinToneSelectedIndex_ - 1);
  } else {
    exitSkinToneMode();
  }
}

void AutocompleteViewModel::setSkinToneSelectedIndex(int index) {
  assign(skinToneSelectedIndex_, index);
}

}  // namespace tessarin
