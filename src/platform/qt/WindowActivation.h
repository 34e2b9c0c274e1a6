#pragma once

class QWidget;

namespace tessarin::ui {

/// Asks the window manager for the keyboard for a window of ours because the user wants it: by a menu or a
/// second start of the program, which no event of ours proves. Window managers that keep programs from taking
/// the focus grant it nevertheless, as they do to taskbars. Does nothing without an X server.
void requestActivation(const QWidget& window);

}  // namespace tessarin::ui
