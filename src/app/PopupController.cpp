#include "app/PopupController.h"

#include <utility>

#include "input/KeyboardMonitor.h"
#include "input/Preferences.h"
#include "model/SkinToneVariants.h"
#include "platform/KeyCodes.h"
#include "platform/PopupPresenter.h"
#include "popup/AutocompleteViewModel.h"
#include "popup/PopupContentBuilder.h"

namespace tessarin {

PopupController::PopupController(AutocompleteViewModel& model, PopupPresenter& panel,
                                 KeyboardMonitor& monitor, const UserDefaults& defaults)
    : model_(model), panel_(panel), monitor_(monitor), defaults_(defaults) {
  modelObserver_ = model_.onChange([this] { invalidate(); });
}

bool PopupController::isVisible() const {
  return panel_.isVisible();
}

void PopupController::anticipate() {
  panel_.anticipate();
}

void PopupController::showResults(std::vector<Snippet> results, const std::string& query) {
  const bool isEmpty = results.empty();
  model_.updateResults(std::move(results), query);
  if (isEmpty) return hide();
  present();
  monitor_.isIntercepting = true;
}

void PopupController::present() {
  isStale_ = false;
  panel_.present(buildPopupContent(model_, preferences::currentTriggerCharacter(defaults_)));
}

void PopupController::hide() {
  panel_.hide();
  monitor_.isIntercepting = false;
  monitor_.shouldConsumeArrows = false;
}

void PopupController::close() {
  hide();
  model_.reset();
}

void PopupController::refresh() {
  if (std::exchange(isStale_, false) && isVisible()) present();
}

bool PopupController::handleArrow(std::int64_t keyCode) {
  switch (keyCode) {
    case keycode::left:
      handleLeft();
      return true;
    case keycode::right:
      handleRight();
      return true;
    case keycode::down:
      model_.moveSelectionDown();
      return true;
    case keycode::up:
      model_.moveSelectionUp();
      return true;
    default:
      return false;
  }
}

void PopupController::handleLeft() {
  if (!model_.skinToneMode()) return;
  model_.moveSkinToneLeft();
  if (!model_.skinToneMode()) monitor_.shouldConsumeArrows = false;
}

void PopupController::handleRight() {
  if (model_.skinToneMode()) return model_.moveSkinToneRight();
  const auto snippet = model_.selectedSnippet();
  if (!snippet || !supportsSkinTones(snippet->replacement)) return;
  model_.enterSkinToneMode(*snippet);
  monitor_.shouldConsumeArrows = true;
}

void PopupController::selectVariant(int index) {
  if (model_.skinToneMode()) model_.setSkinToneSelectedIndex(index);
}

}  // namespace tessarin
