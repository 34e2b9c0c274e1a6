#pragma once

namespace tessarin::ui {

/// Points around what a tab of the settings shows, inside of the tab view's own frame.
inline constexpr int tabPadding = 10;

}  // namespace tessarin::ui
