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

/// Places the popup's window beside the caret, where programs place their windows themselves. Painting,
/// locating the caret and showing are steps of their own on the main queue: a key that has come meanwhile is
/// answered before the next one, and what it presents takes the place of the rest.
class AutocompletePanel final : public PopupPresenter {
 public:
  /// All must outlive the panel.
  AutocompletePanel(PopupSurface& surface, Screens& screens, Accessibility& accessibility, MainQueue& queue);

  /// Asks for the caret as soon as the application has taken the key in.
  void anticipate() override;
  void present(const PopupContent& content) override;
  void hide() override;
  bool isVisible() const override { return isVisible_; }
  void onRowClicked(std::function<void(int index)> callback) override;
  void onVariantClicked(std::function<void(int index)> callback) override;
  void onContextRead(std::function<bool(const CaretContext&)> callback) override;

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
  void locateAhead();
  std::optional<Rect> askForCaret(const ScreenLayout& layout);
  /// False when something else has been presented for what was read.
  bool tellContext();
  /// Beside the caret of the key before this one: a letter off at most, and at once.
  void showWhereItWas();
  /// An application that is too busy to say where its caret is gets a while before the popup opens without.
  void locate();
  void locateAgainSoon();
  Rect frameAt(const std::optional<Rect>& caret, const ScreenLayout& layout) const;
  void showInFrame();
  /// Once what the key in hand is for has been done: when the window goes, the application under it draws
  /// itself anew, and answers nobody meanwhile.
  void takeAway();
  void goOn(void (AutocompletePanel::*step)());
  /// The step, unless the popup has been asked for something else by then.
  std::function<void()> stillWanted(void (AutocompletePanel::*step)());
  bool isSameListAsShown() const;

  PopupSurface& surface_;
  Screens& screens_;
  MainQueue& queue_;
  CaretLocator locator_;
  std::function<bool(const CaretContext&)> contextRead_;
  bool isContextDue_ = false;  ///< what was read was not enough

  PopupContent presented_;
  bool isVisible_ = false;
  std::optional<Shown> shown_;
  bool isInUse_ = false;       ///< the surface holds a picture, shown or not
  bool isLeaving_ = false;     ///< what the surface holds is not wanted any more
  Rect frame_;                 ///< for what is presented
  std::optional<Rect> caret_;  ///< where it was found last
  std::uint64_t requests_ = 0;
  std::chrono::steady_clock::time_point anticipatedAt_;
  std::chrono::steady_clock::time_point openedAt_;
  std::chrono::steady_clock::time_point presentedAt_;
  std::shared_ptr<char> alive_ = std::make_shared<char>();
};

}  // namespace tessarin
