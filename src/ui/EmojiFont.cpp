#include "ui/EmojiFont.h"

#include <unicode/uchar.h>

#include <QGlyphRun>
#include <QTextLayout>
#include <algorithm>

#include "text/Graphemes.h"
#include "ui/PopupTheme.h"

namespace tessarin::ui::emoji {
namespace {

constexpr char16_t emojiSelector = 0xFE0F;
constexpr char16_t keyCap = 0x20E3;

bool asksForPicture(char32_t codePoint) {
  return codePoint == emojiSelector || codePoint == keyCap ||
         u_hasBinaryProperty(static_cast<UChar32>(codePoint), UCHAR_EMOJI_PRESENTATION) ||
         (codePoint >= 0x1F000 &&
          u_hasBinaryProperty(static_cast<UChar32>(codePoint), UCHAR_EXTENDED_PICTOGRAPHIC));
}

bool isPicture(const QString& character) {
  return std::ranges::any_of(character.toUcs4(), asksForPicture);
}

template <class Predicate>
bool allCharacters(const QString& text, Predicate predicate) {
  std::string rest = text.toStdString();
  while (!rest.empty()) {
    const std::string character = text::firstCharacter(rest);
    if (!predicate(QString::fromStdString(character))) return false;
    rest.erase(0, character.size());
  }
  return true;
}

struct Shaped {
  int visible = 0;  ///< glyphs that take room
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
  return !text.isEmpty() && allCharacters(text, isPicture);
}

QString pictureText(const QString& text) {
  QString plain = text;
  return plain.remove(emojiSelector);
}

QFont font(int size) {
  QFont font;
  font.setFamilies({QStringLiteral("Noto Color Emoji"), QStringLiteral("emoji")});
  font.setPixelSize(size);
  return font;
}

bool hasGlyphs(const QString& text) {
  constexpr int anySize = 12;
  if (!isEmoji(text)) return !shape(text, fonts::system(anySize)).hasMissing;
  return allCharacters(text, [](const QString& character) {
    const Shaped shaped = shape(pictureText(character), font(anySize));
    return !shaped.hasMissing && shaped.visible == 1;
  });
}

}  // namespace tessarin::ui::emoji
