#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "base/Geometry.h"
#include "platform/Accessibility.h"
#include "platform/MainQueue.h"
#include "platform/PopupPresenter.h"
#include "platform/PopupSurface.h"
#include "platform/Screens.h"
#include "popup/CaretLocator.h"

namespace tessarin {

/// Places the popup's window beside the caret, where programs place their windows themselves. Locating the
/// caret and drawing wait until the main thread is free, so that the key in hand is answered first; several
/// presents before that become one.
class AutocompletePanel final : public PopupPresenter {
 public:
  /// All must outlive the panel.
  AutocompletePanel(PopupSurface& surface, Screens& screens, Accessibility& accessibility, MainQueue& queue);

  void present(const PopupContent& content) override;
  void hide() override;
  bool isVisible() const override { return isVisible_; }
  void onRowClicked(std::function<void(int index)> callback) override;
  void onVariantClicked(std::function<void(int index)> callback) override;

  /// Shows what was last presented, beside this caret (screen coordinates) or, without one, beside the
  /// pointer. Hides when that has no rows.
  void showNearCaret(const std::optional<Rect>& caret);

 private:
  /// Where the window stands, and what list its size and place were chosen for.
  struct Shown {
    PopupContent content;
    Rect frame;
  };
  void showPresented();
  /// An application that is too busy to say where its caret is gets a while before the popup opens without.
  void locate();
  void locateAgainSoon();
  void place(const std::optional<Rect>& caret, const ScreenLayout& layout);
  bool isSameListAsShown() const;

  PopupSurface& surface_;
  Screens& screens_;
  MainQueue& queue_;
  CaretLocator locator_;

  PopupContent presented_;
  bool isVisible_ = false;
  bool isShowScheduled_ = false;
  std::optional<Shown> shown_;
  std::optional<Rect> caret_;  ///< where it was found last
  std::uint64_t presents_ = 0;
  std::chrono::steady_clock::time_point openedAt_;
  std::chrono::steady_clock::time_point presentedAt_;
  std::shared_ptr<char> alive_ = std::make_shared<char>();
};

}  // namespace tessarin
