#include <gmock/gmock.h>

#include <QImage>
#include <QPainter>
#include <QPalette>

#include "ui/PopupContents.h"
#include "ui/PopupLayout.h"
#include "ui/PopupPainter.h"

namespace tessarin::ui {
namespace {

using ::testing::Optional;
using testing::popupWithRows;
using testing::sizeOf;
using testing::withPicker;

PopupLayout layoutOf(const PopupContent& content) {
  return {content, testing::sizeOf(content)};
}

TEST(PopupLayout, CentresTheSelectedRowAsFarAsTheListReaches) {
  const PopupLayout layout = layoutOf(withPicker(popupWithRows(8)));
  EXPECT_EQ(layout.scrollCentring(0), 0);
  EXPECT_EQ(layout.scrollCentring(7), layout.maxScroll());
  const double scroll = layout.scrollCentring(4);
  EXPECT_EQ(layout.row(4, scroll).center().y(), layout.list().center().y());
}

TEST(PopupLayout, FindsRowsInsideTheListAndVariants) {
  const PopupLayout layout = layoutOf(withPicker(popupWithRows(8)));
  const double scroll = 18;
  EXPECT_THAT(layout.rowAt({50, layout.list().top() + 17}, scroll), Optional(0));
  EXPECT_THAT(layout.rowAt({50, layout.list().top() + 18}, scroll), Optional(1));
  EXPECT_EQ(layout.rowAt(layout.picker().center(), scroll), std::nullopt);
  EXPECT_EQ(layout.rowAt(layout.footer().center(), scroll), std::nullopt);
  for (int i = 0; i < 6; ++i) EXPECT_THAT(layout.variantAt(layout.variant(i).center()), Optional(i));
  EXPECT_EQ(layout.variantAt(layout.variant(0).topRight() + QPointF(2, 2)), std::nullopt) << "between cells";
}

QPalette lightPalette() {
  QPalette palette(Qt::lightGray, Qt::white);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::Highlight, QColor(0, 80, 200));
  return palette;
}

QImage paint(const PopupContent& content, const PopupView& view = {}, double ratio = 1) {
  const QSizeF size = sizeOf(content);
  QImage image((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  PopupPainter(lightPalette()).paint(painter, content, PopupLayout(content, size), view);
  return image;
}

TEST(PopupPainter, DrawsANameOfSeveralLinesInOne) {
  PopupContent content = popupWithRows(2);
  content.rows[0].name = "a name";
  const QImage inOne = paint(content);
  content.rows[0].name = "a\nname";
  EXPECT_EQ(paint(content), inOne);
}

TEST(PopupPainter, PaintsTheCardAlikeInItsCornersOnAnyGround) {
  const PopupContent content = popupWithRows(2);
  QImage image(sizeOf(content).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::black);
  QPainter painter(&image);
  const PopupView view{0, {}, true};
  PopupPainter(lightPalette()).paint(painter, content, layoutOf(content), view);
  EXPECT_EQ(image.pixelColor(8, 8), image.pixelColor(8, 20)) << "both left of the header's text";
}

/// Between the highlight's left edge and the emoji, where nothing but the row's ground is seen.
QColor groundOfRow(const QImage& image, const PopupContent& content, int index) {
  const QPointF spot(7, layoutOf(content).row(index, 0).center().y());
  return image.pixelColor((spot * image.devicePixelRatio()).toPoint());
}

TEST(PopupPainter, FillsTheSelectedRowWithTheAccentAtEveryScale) {
  const PopupContent content = popupWithRows(8, 3);
  for (const double ratio : {1.0, 1.5}) {
    const QImage image = paint(content, {}, ratio);
    EXPECT_EQ(groundOfRow(image, content, 3), QColor(0, 80, 200));
    EXPECT_EQ(groundOfRow(image, content, 2), QColor(Qt::white));
  }
}

TEST(PopupPainter, LeavesTheCornersOutAndIsOpaqueWithoutACompositor) {
  const QImage opaque = paint(popupWithRows(1));
  EXPECT_EQ(opaque.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(opaque.pixelColor(160, 4).alpha(), 255);
  EXPECT_NEAR(paint(popupWithRows(1), {0, {}, true}).pixelColor(160, 4).alphaF(), 0.94, 0.01);
}

TEST(PopupPainter, ElidesALongNameBeforeTheSkinToneArrow) {
  PopupContent plain = popupWithRows(1);
  PopupContent wordy = plain;
  plain.rows[0].name = "name";
  wordy.rows[0].name = std::string(200, 'm');
  const PopupLayout layout(plain, PopupLayout::sizeFor(1));
  const QRect arrow(292, static_cast<int>(layout.list().top()), 28, 36);
  EXPECT_EQ(paint(plain).copy(arrow), paint(wordy).copy(arrow));
  EXPECT_NE(paint(plain), paint(wordy));
}

TEST(PopupPainter, DarkensAnAccentOnWhichWhiteCouldNotBeRead) {
  QPalette palette = lightPalette();
  palette.setColor(QPalette::Highlight, QColor(255, 240, 120));
  EXPECT_LE(qGray(PopupTheme(palette).accent.rgb()), 150);
}

}  // namespace
}  // namespace tessarin::ui
