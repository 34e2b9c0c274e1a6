#pragma once

#include <cstdint>
#include <optional>

#include "base/Geometry.h"
#include "platform/Accessibility.h"
#include "platform/PopupPresenter.h"
#include "platform/Screens.h"
#include "popup/ScreenLayout.h"

namespace tessarin {

/// Finds the text caret of the focused application. All results are in screen coordinates, points, and none
/// when the application does not say. Main thread.
class CaretLocator {
 public:
  /// Both must outlive the locator.
  CaretLocator(Accessibility& accessibility, Screens& screens)
      : accessibility_(accessibility), screens_(screens) {}

  /// The caret, or else a place near the pointer within the focused element or the focused window. Takes
  /// 50 ms at most. With `charactersBefore`, as many characters before the caret are read along with it.
  std::optional<Rect> caretRect(const ScreenLayout& layout, std::int64_t charactersBefore = 0);
  /// What was read the last time; none where nothing was told.
  const std::optional<CaretContext>& context() const { return context_; }
  /// Whether the application that was asked last has not come to the answer yet, or which element of it has
  /// the focus is not known yet; later it may be.
  bool isAnswerDue() const { return asked_ && accessibility_.isBusy(asked_); }

  /// What the element itself says of its selection, if that can be true.
  std::optional<Rect> selectionBounds(const ElementRef& element, const ScreenLayout& layout,
                                      std::int64_t charactersBefore = 0);
  /// The pointer, moved into the element.
  std::optional<Rect> elementPointerRect(const ElementRef& element, const ScreenLayout& layout);
  /// The pointer, moved well into the application's focused window.
  std::optional<Rect> windowPointerRect(const ElementRef& application, const ScreenLayout& layout);

 private:
  struct Insets {
    double left, top, right, bottom;
  };
  std::optional<Rect> pointerRectWithin(const ElementRef& element, const Insets& insets,
                                        const ScreenLayout& layout);
  CaretContext readContext(const ElementRef& element, const TextRange& range);

  Accessibility& accessibility_;
  Screens& screens_;
  ElementRef asked_;
  std::optional<CaretContext> context_;
};

}  // namespace tessarin
