#pragma once

#include "platform/CoordinateSpace.h"
#include "platform/Screens.h"
#include "platform/qt/DesktopWatch.h"

namespace tessarin::ui {

/// The monitors that the X server names (those laid out by hand count too), in points of the scale that Qt
/// draws with. The work area comes from the window manager. Without an X server, the screens that Qt knows.
/// Created after the application object.
class QtScreens final : public Screens {
 public:
  std::vector<Screen> screens() override;
  std::optional<Screen> mainScreen() override;
  Point mouseLocation() override;

  /// How native pixels, counted from the root window's top left corner, and points belong together.
  CoordinateSpace space();
  /// Whether a compositor runs, so that what is transparent is seen so.
  bool isComposited();

 private:
  DesktopWatch watch_;
};

}  // namespace tessarin::ui
