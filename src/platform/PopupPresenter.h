#pragma once

#include <functional>
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
};

}  // namespace tessarin
