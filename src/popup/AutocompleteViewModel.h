#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Signal.h"
#include "base/Subscription.h"
#include "model/Snippet.h"

namespace tessarin {

/// What the popup offers: the candidates, the highlighted row and the skin-tone picker. Knows neither keys
/// nor windows: the controller drives it, the popup is drawn from it. Owns copies of its snippets. Main
/// thread.
class AutocompleteViewModel {
 public:
  AutocompleteViewModel() = default;
  AutocompleteViewModel(const AutocompleteViewModel&) = delete;
  AutocompleteViewModel& operator=(const AutocompleteViewModel&) = delete;

  /// The candidates in ranking order.
  const std::vector<Snippet>& results() const { return results_; }
  static constexpr int noRow = -1;
  /// The highlighted row, or none: `noRow` where nothing is to be confirmed by Return, and after moving up in
  /// an empty list.
  int selectedIndex() const { return selectedIndex_; }
  /// What was typed after the trigger character.
  const std::string& query() const { return query_; }
  /// Whether the skin-tone picker is open. While it is not, the three fields below are empty, 0 and none.
  bool skinToneMode() const { return skinToneMode_; }
  const std::vector<std::string>& skinToneVariants() const { return skinToneVariants_; }
  int skinToneSelectedIndex() const { return skinToneSelectedIndex_; }
  const std::optional<Snippet>& skinToneBaseSnippet() const { return skinToneBaseSnippet_; }

  bool hasSelection() const { return selectedIndex_ >= 0 && selectedIndex_ < count(); }
  /// The highlighted snippet, if the highlight is on one.
  std::optional<Snippet> selectedSnippet() const;
  /// The highlighted variant; none while the picker is closed.
  std::optional<std::string> selectedSkinToneVariant() const;

  /// Takes a new list, highlights a row of it and closes the picker.
  void updateResults(std::vector<Snippet> results, std::string query, int selectedIndex = 0);
  void setSelectedIndex(int index);
  void reset();
  /// Both wrap around and leave the picker as it is.
  void moveSelectionDown();
  void moveSelectionUp();
  /// A click on a row: highlights it and calls `onItemSelected`. Nothing when there is no such row.
  void selectItem(int index);

  /// Opens the picker on the variants of the snippet's text.
  void enterSkinToneMode(const Snippet& snippet);
  void exitSkinToneMode();
  /// Stops at the last variant.
  void moveSkinToneRight();
  /// Closes the picker when the first variant is highlighted.
  void moveSkinToneLeft();
  /// A click on a variant: only highlights it. Any number is taken over as it is.
  void setSkinToneSelectedIndex(int index);

  /// Runs after every assignment to one of the fields, also when the value stays the same.
  Subscription onChange(std::function<void()> callback) { return changed_.subscribe(std::move(callback)); }

  /// Called with the snippet of the row that was clicked.
  std::function<void(const Snippet&)> onItemSelected;

 private:
  template <class T, class U>
  void assign(T& field, U&& value);
  int count() const { return static_cast<int>(results_.size()); }

  std::vector<Snippet> results_;
  int selectedIndex_ = 0;
  std::string query_;
  bool skinToneMode_ = false;
  std::vector<std::string> skinToneVariants_;
  int skinToneSelectedIndex_ = 0;
  std::optional<Snippet> skinToneBaseSnippet_;
  Signal<> changed_;
};

}  // namespace tessarin
