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
  modelObserver_ = model_.onChange([this] {
    invalidate();
    monitor_.leavesConfirmingKeys = !model_.hasSelection();
  });
}

bool PopupController::isVisible() const {
  return panel_.isVisible();
}

void PopupController::anticipate() {
  panel_.anticipate();
}

int PopupController::firstHighlight() const {
  return isDoubtful_ && !isChosenFrom_ ? AutocompleteViewModel::noRow : 0;
}

void PopupController::setDoubtful(bool isDoubtful) {
  const bool isNews = std::exchange(isDoubtful_, isDoubtful) != isDoubtful;
  const bool isShown = !model_.results().empty();
  if (isNews && isShown && !isChosenFrom_) model_.setSelectedIndex(firstHighlight());
}

void PopupController::showResults(std::vector<Snippet> results, const std::string& query, bool isDoubtful) {
  const bool isEmpty = results.empty();
  isDoubtful_ = isDoubtful;
  model_.updateResults(std::move(results), query, firstHighlight());
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
  isChosenFrom_ = false;
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
      isChosenFrom_ = true;
      model_.moveSelectionDown();
      return true;
    case keycode::up:
      isChosenFrom_ = true;
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
  isChosenFrom_ = true;
  model_.enterSkinToneMode(*snippet);
  monitor_.shouldConsumeArrows = true;
}

void PopupController::selectVariant(int index) {
  if (model_.skinToneMode()) model_.setSkinToneSelectedIndex(index);
}

}  // namespace tessarin
