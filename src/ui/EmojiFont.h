#pragma once

#include <QFont>
#include <QString>

namespace tessarin::ui::emoji {

/// Whether the text asks for pictures: it has a code point that is shown as emoji by itself, or one that is
/// made so by a variation selector or a key cap.
bool isEmoji(const QString& text);
/// The installed colour font. Sizes are points of the picture.
QFont font(int size);
/// Whether this one character has one glyph of its own in the colour font, or in any font when it is not an
/// emoji: a sequence that falls apart into several pictures has not.
bool hasGlyph(const QString& character);

}  // namespace tessarin::ui::emoji
