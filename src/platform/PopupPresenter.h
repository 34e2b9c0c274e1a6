#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessarin {

struct PopupRow {
  std::string id;
  std::string replacement;
  std::string trigger;
  std::string name;
  bool supportsSkinTones = false;
  bool operator==(const PopupRow&) const = default;
};

struct PopupKeyHint {
  std::string key;
  std::string label;
  bool operator==(const PopupKeyHint&) const = default;
};

/// Everything that the popup shows, as plain data.
struct PopupContent {
  std::string triggerCharacter;
  std::string query;
  std::vector<PopupRow> rows;
  int selectedIndex = 0;
  bool skinToneMode = false;
  std::vector<std::string> skinToneVariants;
  int skinToneSelectedIndex = 0;
  std::vector<PopupKeyHint> hints;
  bool operator==(const PopupContent&) const = default;
};

/// What the focused application told of the text around its caret.
struct CaretContext {
  /// What stands before the caret: two characters more than the query has, or all there are. None where it is
  /// not told.
  std::optional<std::string> before;
  bool isTerminal = false;
};

/// Shows the popup beside the caret of the focused application, without taking the focus. A window, an
/// input-method surface or a table of candidates drawn by the shell: nothing is said of where it goes. Main
/// thread.
class PopupPresenter {
 public:
  virtual ~PopupPresenter() = default;

  /// A shortcode has been begun: the popup may be wanted soon, and what takes time can be found out now.
  virtual void anticipate() {}
  /// Shows the popup, or changes what it shows. May put off the work until the key in hand has been answered.
  virtual void present(const PopupContent& content) = 0;
  virtual void hide() = 0;
  /// Whether it is shown, or about to be.
  virtual bool isVisible() const = 0;
  virtual void onRowClicked(std::function<void(int index)> callback) = 0;
  virtual void onVariantClicked(std::function<void(int index)> callback) = 0;

  /// Has the text around the caret read as well when the caret is looked for, and runs whenever it was. The
  /// callback may present something else, and answers whether it has learnt what it wanted: letters may still
  /// be on their way. An empty one has nothing read.
  virtual void onContextRead(std::function<bool(const CaretContext&)> callback) = 0;
};

}  // namespace tessarin
