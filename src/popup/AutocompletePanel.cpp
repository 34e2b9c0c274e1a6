#include "popup/AutocompletePanel.h"

#include <utility>

#include "popup/PopupPlacement.h"
#include "popup/ScreenLayout.h"

namespace tessarin {

AutocompletePanel::AutocompletePanel(PopupSurface& surface, Screens& screens, Accessibility& accessibility,
                                     MainQueue& queue)
    : surface_(surface), screens_(screens), queue_(queue), locator_(accessibility, screens) {}

void AutocompletePanel::present(const PopupContent& content) {
  if (content.rows.empty()) {
    hide();
    return;
  }
  presented_ = content;
  isVisible_ = true;
  if (std::exchange(isShowScheduled_, true)) return;
  queue_.async([this, alive = std::weak_ptr<char>(alive_)] {
    if (alive.expired()) return;
    isShowScheduled_ = false;
    if (isVisible_) showPresented();
  });
}

void AutocompletePanel::hide() {
  isVisible_ = false;
  presented_ = {};
  if (std::exchange(shown_, std::nullopt)) surface_.hide();
}

void AutocompletePanel::onRowClicked(std::function<void(int index)> callback) {
  surface_.onRowClicked(std::move(callback));
}

void AutocompletePanel::onVariantClicked(std::function<void(int index)> callback) {
  surface_.onVariantClicked(std::move(callback));
}

void AutocompletePanel::showPresented() {
  if (!isSameListAsShown()) {
    // The application, which the caret is asked of, is busy with the key meanwhile.
    surface_.prepare(presented_);
    const ScreenLayout layout = ScreenLayout::read(screens_);
    place(locator_.caretRect(layout), layout);
    return;
  }
  shown_->content = presented_;
  surface_.show(presented_, shown_->frame);
}

void AutocompletePanel::showNearCaret(const std::optional<Rect>& caret) {
  place(caret, ScreenLayout::read(screens_));
}

void AutocompletePanel::place(const std::optional<Rect>& caret, const ScreenLayout& layout) {
  if (presented_.rows.empty()) {
    hide();
    return;
  }
  isVisible_ = true;
  const bool isAtCaret = caret && *caret != Rect{};
  const Point mouse = isAtCaret ? Point{} : screens_.mouseLocation();
  const Rect frame = popupFrame(static_cast<int>(presented_.rows.size()), caret, layout, mouse);
  shown_ = Shown{presented_, frame};
  surface_.show(presented_, frame);
}

bool AutocompletePanel::isSameListAsShown() const {
  return shown_ && shown_->content.triggerCharacter == presented_.triggerCharacter &&
         shown_->content.query == presented_.query && shown_->content.rows == presented_.rows;
}

}  // namespace tessarin
