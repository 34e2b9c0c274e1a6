#include "ui/EmojiText.h"

#include <unicode/uchar.h>

#include <algorithm>

#include "text/Graphemes.h"

namespace tessarin::ui {
namespace {

constexpr char32_t emojiSelector = 0xFE0F;
constexpr char32_t keyCap = 0x20E3;
/// From here on pictographs have no older use as plain symbols.
constexpr char32_t firstPictograph = 0x1F000;

bool asksForPicture(char32_t codePoint) {
  const auto has = [codePoint](UProperty property) {
    return u_hasBinaryProperty(static_cast<UChar32>(codePoint), property) != 0;
  };
  return codePoint == emojiSelector || codePoint == keyCap || has(UCHAR_EMOJI_PRESENTATION) ||
         (codePoint >= firstPictograph && has(UCHAR_EXTENDED_PICTOGRAPHIC));
}

}  // namespace

QStringList charactersOf(const QString& text) {
  QStringList characters;
  std::string rest = text.toStdString();
  while (!rest.empty()) {
    const std::string character = text::firstCharacter(rest);
    characters << QString::fromStdString(character);
    rest.erase(0, character.size());
  }
  return characters;
}

bool isEmoji(const QString& text) {
  return !text.isEmpty() && std::ranges::all_of(charactersOf(text), [](const QString& character) {
    return std::ranges::any_of(character.toUcs4(), asksForPicture);
  });
}

}  // namespace tessarin::ui
