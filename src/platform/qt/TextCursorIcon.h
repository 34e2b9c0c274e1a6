#pragma once

#include <QIcon>

namespace tessarin::ui {

/// The program's symbol, a text cursor between two strokes of text, drawn for trays: 18 points and its
/// multiples. `dimmed`: the look of something that is switched off.
QIcon textCursorIcon(bool dimmed);

}  // namespace tessarin::ui
