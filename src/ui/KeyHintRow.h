#pragma once

#include <vector>

#include "platform/PopupPresenter.h"
#include "ui/PopupTheme.h"
#include "ui/TextLines.h"

class QPainter;
class QRectF;

namespace tessarin::ui {

/// Draws the footer's hints from left to right, each a key cap and what it does. Hints that are too wide for
/// the band move closer together.
void drawKeyHints(QPainter& painter, const QRectF& band, const std::vector<PopupKeyHint>& hints,
                  const PopupTheme& theme, TextLines& lines);

}  // namespace tessarin::ui
