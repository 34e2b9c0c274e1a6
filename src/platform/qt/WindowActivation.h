#pragma once

class QWidget;

namespace tessarin::ui {

/// Asks the window manager for the keyboard for a window of ours because the user wants it: by a menu or a
/// second start of the program, which no event of ours proves. Window managers that keep programs from taking
/// the focus grant it nevertheless, as they do to taskbars. Does nothing without an X server.
void requestActivation(const QWidget& window);
/// Asks for a place above the other windows of its kind, and leaves the keyboard where it is. Window managers
/// follow it where they would not let a program raise its windows, as they do for taskbars. Does nothing
/// without an X server.
void requestRaise(const QWidget& window);

}  // namespace tessarin::ui
