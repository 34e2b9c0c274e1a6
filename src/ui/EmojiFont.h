#pragma once

#include <QFont>
#include <QString>

namespace tessarin::ui::emoji {

/// Whether every character of the text asks for a picture: it has a code point that is shown as emoji by
/// itself, or one that is made so by a variation selector or a key cap.
bool isEmoji(const QString& text);
/// The text as the colour font wants it: without variation selectors, which would break up its sequences.
QString pictureText(const QString& text);
/// The installed colour font. Sizes are points of the picture.
QFont font(int size);
/// Whether each character has a glyph: one of its own in the colour font when the text is emoji (a sequence
/// that falls apart into several pictures has not), else any in any font.
bool hasGlyphs(const QString& text);

}  // namespace tessarin::ui::emoji
