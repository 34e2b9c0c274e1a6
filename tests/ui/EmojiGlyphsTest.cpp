#include <gmock/gmock.h>

#include <QPainter>

#include "ui/EmojiGlyphs.h"

namespace tessarin::ui {
namespace {

TEST(EmojiGlyphs, ATileStandsForWhatNoFontDraws) {
  EmojiGlyphs glyphs;
  for (const char* drawn : {"😀", "1️⃣", "🏴󠁧󠁢󠁥󠁮󠁧󠁿",
                            "👩🏽‍❤️‍💋‍👨🏿", "¯\\_(ツ)_/¯"}) {
    EXPECT_FALSE(glyphs.needsTile(QString::fromUtf8(drawn))) << drawn;
  }
  for (const char* unknown : {"\U0001FAFF", "😀\u200D🎺"}) {
    EXPECT_TRUE(glyphs.needsTile(QString::fromUtf8(unknown))) << unknown;
  }
}

QImage drawn(EmojiGlyphs& glyphs, const QString& text, double ratio, int size = 20) {
  const int side = static_cast<int>(28 * ratio);
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  glyphs.draw(painter, QRectF(0, 0, 28, 28), text, size, Qt::black);
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
