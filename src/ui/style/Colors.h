#pragma once

#include <QColor>

class QPalette;

namespace tessarin::ui {

/// The colours of our windows, taken from the desktop's palette or, for the signal colours, legible on it.
enum class ColorRole { primary, secondary, accent, link, green, red, yellow };

QColor colorOf(ColorRole role, const QPalette& palette);
QColor withOpacity(QColor color, double opacity);
/// Whether text is lighter than its ground.
bool isDark(const QPalette& palette);

}  // namespace tessarin::ui
