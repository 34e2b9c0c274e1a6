#include <gmock/gmock.h>

#include <QPainter>

#include "ui/EmojiGlyphs.h"

namespace tessarin::ui {
namespace {

struct TileCase {
  const char* name;
  const char* text;
  bool needsTile;
};

class EmojiTile : public ::testing::TestWithParam<TileCase> {};

TEST_P(EmojiTile, StandsForWhatNoFontDraws) {
  EXPECT_EQ(EmojiGlyphs().needsTile(QString::fromUtf8(GetParam().text)), GetParam().needsTile);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, EmojiTile,
    ::testing::Values(TileCase{"face", "😀", false}, TileCase{"keycap", "1️⃣", false},
                      TileCase{"subdivisionFlag", "🏴󠁧󠁢󠁥󠁮󠁧󠁿", false},
                      TileCase{"joinedWithSelectors", "👩🏽‍❤️‍💋‍👨🏿", false},
                      TileCase{"unassigned", "\U0001FAFF", true}, TileCase{"fallsApart", "😀\u200D🎺", true},
                      TileCase{"kaomoji", "¯\\_(ツ)_/¯", false}),
    [](const auto& each) { return each.param.name; });

QImage drawn(EmojiGlyphs& glyphs, const QString& text, double ratio) {
  const int size = static_cast<int>(28 * ratio);
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  glyphs.draw(painter, QRectF(0, 0, 28, 28), text, 20, Qt::black);
  return image;
}

TEST(EmojiGlyphs, DrawsEmojiInColour) {
  EmojiGlyphs glyphs;
  for (const double ratio : {1.0, 1.5}) {
    const QImage image = drawn(glyphs, QStringLiteral("😀"), ratio);
    EXPECT_GT(image.pixelColor(image.rect().center()).saturation(), 40);
  }
}

TEST(EmojiGlyphs, KeepsABoundedNumberOfPictures) {
  EmojiGlyphs glyphs;
  for (char32_t face = 0x1F600; face < 0x1F640; ++face) drawn(glyphs, QString::fromUcs4(&face, 1), 2);
  EXPECT_GT(glyphs.cachedBytes(), 0);
  EXPECT_LE(glyphs.cachedBytes(), 512 * 1024);
}

}  // namespace
}  // namespace tessarin::ui
