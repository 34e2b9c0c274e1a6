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
    ::testing::Values(TileCase{"face", "😀", false}, TileCase{"selector", "❤️", false},
                      TileCase{"keycap", "1️⃣", false}, TileCase{"flag", "🇪🇺", false},
                      TileCase{"subdivisionFlag", "🏴󠁧󠁢󠁥󠁮󠁧󠁿", false},
                      TileCase{"joined", "👨‍👩‍👧", false},
                      TileCase{"joinedWithSelectors", "👩🏽‍❤️‍💋‍👨🏿", false},
                      TileCase{"twoEmoji", "😀👍🏽", false}, TileCase{"plainSymbol", "→", false},
                      TileCase{"ascii", "ok", false}, TileCase{"unassigned", "\U0001FAFF", true},
                      TileCase{"fallsApart", "😀\u200D🎺", true},
                      TileCase{"joinedWithUnassigned", "🧑\u200D\U0001FAFF\u200D🧑", true},
                      TileCase{"kaomoji", "¯\\_(ツ)_/¯", false}),
    [](const auto& each) { return each.param.name; });

TEST(EmojiGlyphs, TheTileShowsTheCodePointOnTwoLines) {
  EXPECT_EQ(EmojiGlyphs::tileLines(QStringLiteral("🫩")), QStringList({"1FA", "E9"}));
  EXPECT_EQ(EmojiGlyphs::tileLines(QStringLiteral("❤️")), QStringList({"27", "64"}));
  EXPECT_EQ(EmojiGlyphs::tileLines(QStringLiteral("A")), QStringList({"00", "41"}));
}

QImage canvas(double ratio = 1) {
  QImage image(static_cast<int>(28 * ratio), static_cast<int>(28 * ratio),
               QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  return image;
}

QImage drawn(EmojiGlyphs& glyphs, const QString& text, double ratio = 1) {
  QImage image = canvas(ratio);
  QPainter painter(&image);
  glyphs.draw(painter, QRectF(0, 0, 28, 28), text, 20, Qt::black);
  return image;
}

/// What is not transparent.
QRect inkOf(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) > 40) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

TEST(EmojiGlyphs, DrawsEmojiInColourInTheMiddleOfTheFrame) {
  EmojiGlyphs glyphs;
  for (const double ratio : {1.0, 1.5, 2.0}) {
    const QImage image = drawn(glyphs, QStringLiteral("😀"), ratio);
    const QRectF ink = inkOf(image);
    EXPECT_NEAR(ink.center().x(), image.width() / 2.0, 1.5 * ratio);
    EXPECT_NEAR(ink.center().y(), image.height() / 2.0, 1.5 * ratio);
    EXPECT_NEAR(ink.width(), 20 * ratio, 3 * ratio);
    EXPECT_GT(QColor(image.pixel(image.rect().center())).saturation(), 40);
  }
}

TEST(EmojiGlyphs, DrawsTheSamePictureFromTheCache) {
  EmojiGlyphs glyphs;
  const QImage first = drawn(glyphs, QStringLiteral("👋"));
  const auto bytes = glyphs.cachedBytes();
  EXPECT_EQ(drawn(glyphs, QStringLiteral("👋")), first);
  EXPECT_EQ(glyphs.cachedBytes(), bytes);
}

TEST(EmojiGlyphs, KeepsABoundedNumberOfPictures) {
  EmojiGlyphs glyphs;
  for (char32_t face = 0x1F600; face < 0x1F640; ++face) drawn(glyphs, QString::fromUcs4(&face, 1), 2);
  EXPECT_GT(glyphs.cachedBytes(), 0);
  EXPECT_LE(glyphs.cachedBytes(), 512 * 1024);
}

}  // namespace
}  // namespace tessarin::ui
