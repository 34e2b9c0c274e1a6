#pragma once

class QWidget;

namespace tessarin::ui {

/// Puts a window that has its size into the middle of the screen on which the pointer is.
void centreOnScreen(QWidget& window);
/// Puts it into the corner of that screen where messages come up, out of the way of what stands in the
/// middle.
void putInCorner(QWidget& window);
/// Shows a window above the others and gives it the keyboard.
void bringToFront(QWidget& window);
/// Shows a window above the others and leaves the keyboard where it is.
void showWithoutKeyboard(QWidget& window);

}  // namespace tessarin::ui
