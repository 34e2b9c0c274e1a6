#include "popup/AutocompletePanel.h"

#include <utility>

#include "popup/PopupPlacement.h"
#include "popup/ScreenLayout.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

/// Most applications have taken a key in by then, and a person has not typed the next one.
constexpr std::chrono::milliseconds takingIn{25};
/// Between two questions to an application that is busy.
constexpr std::chrono::milliseconds lookInterval{25};
/// For a popup that is not on screen yet: a person hardly reads it sooner.
constexpr std::chrono::milliseconds longestDelay{300};
/// For one that stands at the wrong place. Applications that are only starting take this long to tell of the
/// focus; looking becomes rarer, as most that do not tell at once never will.
constexpr std::chrono::milliseconds longestLook{2000};
constexpr std::chrono::milliseconds rareLookInterval{100};

}  // namespace

AutocompletePanel::AutocompletePanel(PopupSurface& surface, Screens& screens, Accessibility& accessibility,
                                     MainQueue& queue)
    : surface_(surface), screens_(screens), queue_(queue), locator_(accessibility, screens) {}

void AutocompletePanel::anticipate() {
  if (isVisible_) return;
  ++requests_;
  anticipatedAt_ = queue_.now();
  queue_.after(takingIn, stillWanted(&AutocompletePanel::locateAhead));
}

void AutocompletePanel::locateAhead() {
  caret_ = askForCaret(ScreenLayout::read(screens_));
  if (!tellContext() || !contextRead_) return;
  const bool isDue = isContextDue_ || locator_.isAnswerDue();
  if (isDue && queue_.now() - anticipatedAt_ < longestDelay) {
    queue_.after(lookInterval, stillWanted(&AutocompletePanel::locateAhead));
  }
}

std::optional<Rect> AutocompletePanel::askForCaret(const ScreenLayout& layout) {
  const std::size_t shortcode = 1 + text::characterCount(presented_.query);
  return locator_.caretRect(layout, contextRead_ ? static_cast<std::int64_t>(shortcode + 1) : 0);
}

bool AutocompletePanel::tellContext() {
  // Copies: the callback may ask for the caret anew, and set another.
  const auto context = locator_.context();
  const auto tell = contextRead_;
  const auto request = requests_;
  isContextDue_ = context && tell && !tell(*context) && context->before;
  return request == requests_;
}

void AutocompletePanel::present(const PopupContent& content) {
  if (content.rows.empty()) {
    hide();
    return;
  }
  presented_ = content;
  ++requests_;
  presentedAt_ = queue_.now();
  if (!std::exchange(isVisible_, true)) openedAt_ = presentedAt_;
  goOn(&AutocompletePanel::showPresented);
}

void AutocompletePanel::hide() {
  isVisible_ = false;
  ++requests_;
  presented_ = {};
  caret_.reset();
  shown_.reset();
  if (!std::exchange(isInUse_, false)) return;
  isLeaving_ = true;
  queue_.async([this, alive = std::weak_ptr<char>(alive_)] {
    if (!alive.expired()) takeAway();
  });
}

void AutocompletePanel::takeAway() {
  if (std::exchange(isLeaving_, false)) surface_.hide();
}

void AutocompletePanel::onRowClicked(std::function<void(int index)> callback) {
  surface_.onRowClicked(std::move(callback));
}

void AutocompletePanel::onVariantClicked(std::function<void(int index)> callback) {
  surface_.onVariantClicked(std::move(callback));
}

void AutocompletePanel::onContextRead(std::function<bool(const CaretContext&)> callback) {
  contextRead_ = std::move(callback);
}

void AutocompletePanel::showPresented() {
  if (!isSameListAsShown()) {
    // The application, which the caret is asked of, is busy with the key meanwhile.
    isInUse_ = true;
    surface_.prepare(presented_);
    goOn(caret_ ? &AutocompletePanel::showWhereItWas : &AutocompletePanel::locate);
    return;
  }
  shown_->content = presented_;
  surface_.show(presented_, shown_->frame);
}

void AutocompletePanel::showWhereItWas() {
  frame_ = frameAt(caret_, ScreenLayout::read(screens_));
  showInFrame();
  goOn(&AutocompletePanel::locate);
}

void AutocompletePanel::locate() {
  const ScreenLayout layout = ScreenLayout::read(screens_);
  const auto found = askForCaret(layout);
  const bool isDue = !found && locator_.isAnswerDue();
  if (!isDue) caret_ = found;
  if (!tellContext()) {
    // What is presented instead is the same list, which stays where it is unless it is looked for again.
    if (isSameListAsShown()) goOn(&AutocompletePanel::locate);
    return;
  }
  if (!found || isContextDue_) locateAgainSoon();
  const bool mayWait = isDue && !shown_ && queue_.now() - openedAt_ < longestDelay;
  if (mayWait || (!found && isSameListAsShown())) return;
  frame_ = frameAt(caret_, layout);
  if (isSameListAsShown() && shown_->frame == frame_) return;
  goOn(&AutocompletePanel::showInFrame);
}

void AutocompletePanel::goOn(void (AutocompletePanel::*step)()) {
  queue_.async(stillWanted(step));
}

std::function<void()> AutocompletePanel::stillWanted(void (AutocompletePanel::*step)()) {
  return [this, step, request = requests_, alive = std::weak_ptr<char>(alive_)] {
    if (!alive.expired() && request == requests_) (this->*step)();
  };
}

void AutocompletePanel::locateAgainSoon() {
  const auto waited = queue_.now() - presentedAt_;
  if (waited >= longestLook) return;
  queue_.after(waited < longestDelay ? lookInterval : rareLookInterval,
               stillWanted(&AutocompletePanel::locate));
}

void AutocompletePanel::showNearCaret(const std::optional<Rect>& caret) {
  if (presented_.rows.empty()) {
    hide();
    return;
  }
  isVisible_ = true;
  frame_ = frameAt(caret, ScreenLayout::read(screens_));
  showInFrame();
}

Rect AutocompletePanel::frameAt(const std::optional<Rect>& caret, const ScreenLayout& layout) const {
  const bool isAtCaret = caret && *caret != Rect{};
  const Point mouse = isAtCaret ? Point{} : screens_.mouseLocation();
  return popupFrame(static_cast<int>(presented_.rows.size()), caret, layout, mouse);
}

void AutocompletePanel::showInFrame() {
  isInUse_ = true;
  isLeaving_ = false;
  shown_ = Shown{presented_, frame_};
  surface_.show(presented_, frame_);
}

bool AutocompletePanel::isSameListAsShown() const {
  return shown_ && shown_->content.triggerCharacter == presented_.triggerCharacter &&
         shown_->content.query == presented_.query && shown_->content.rows == presented_.rows;
}

}  // namespace tessarin
