#include "ui/EmojiFont.h"

#include <unicode/uchar.h>

#include <QGlyphRun>
#include <QStringList>
#include <QTextLayout>
#include <algorithm>

#include "ui/PopupTheme.h"

namespace tessarin::ui::emoji {
namespace {

constexpr char32_t emojiSelector = 0xFE0F;
constexpr char32_t keyCap = 0x20E3;

bool asksForPicture(char32_t codePoint) {
  return codePoint == emojiSelector || codePoint == keyCap ||
         u_hasBinaryProperty(static_cast<UChar32>(codePoint), UCHAR_EMOJI_PRESENTATION) ||
         (codePoint >= 0x1F000 &&
          u_hasBinaryProperty(static_cast<UChar32>(codePoint), UCHAR_EXTENDED_PICTOGRAPHIC));
}

/// Glyphs that take room; joiners and selectors that a font leaves in a run do not.
struct Shaped {
  int visible = 0;
  bool hasMissing = false;
};

Shaped shape(const QString& text, const QFont& font) {
  QTextLayout layout(text, font);
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  Shaped shaped;
  for (const QGlyphRun& run : layout.glyphRuns()) {
    const auto indexes = run.glyphIndexes();
    const auto advances = run.rawFont().advancesForGlyphIndexes(indexes);
    for (qsizetype i = 0; i < indexes.size(); ++i) {
      shaped.hasMissing |= indexes[i] == 0;
      shaped.visible += advances[i].x() > 0 ? 1 : 0;
    }
  }
  return shaped;
}

}  // namespace

bool isEmoji(const QString& text) {
  return std::ranges::any_of(text.toUcs4(), [](char32_t codePoint) { return asksForPicture(codePoint); });
}

QFont font(int size) {
  QFont font;
  font.setFamilies({QStringLiteral("Noto Color Emoji"), QStringLiteral("emoji")});
  font.setPixelSize(size);
  return font;
}

bool hasGlyph(const QString& character) {
  if (!isEmoji(character)) return !shape(character, fonts::system(12)).hasMissing;
  QFont picture = font(12);
  const Shaped shaped = shape(character, picture);
  return !shaped.hasMissing && shaped.visible == 1;
}

}  // namespace tessarin::ui::emoji
