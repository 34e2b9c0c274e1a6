#pragma once

#include <QFont>

namespace tessarin::ui {

/// The sizes of text in our windows, relative to the desktop's own font.
enum class TextStyle {
  figure,  ///< a number that stands for itself
  largeTitle,
  title,
  title2,
  title3,
  headline,
  subheadline,
  body,
  caption,
  caption2,
  monospacedBody,
};

/// The font of a style where `base` is the font of body text.
QFont fontOf(TextStyle style, const QFont& base);

}  // namespace tessarin::ui
