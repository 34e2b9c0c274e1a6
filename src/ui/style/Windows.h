#pragma once

class QWidget;

namespace tessarin::ui {

/// Puts a window that has its size into the middle of the screen on which the pointer is.
void centreOnScreen(QWidget& window);
/// Shows a window above the others and gives it the keyboard.
void bringToFront(QWidget& window);

}  // namespace tessarin::ui
