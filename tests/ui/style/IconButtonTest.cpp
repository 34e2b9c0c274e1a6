#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QStyle>
#include <QStyleFactory>
#include <algorithm>

#include "platform/qt/TestApplication.h"
#include "ui/Extent.h"
#include "ui/style/IconButton.h"

namespace tessarin::ui {
namespace {

using testing::Extent;

constexpr int buttonWidth = 200;

bool isRed(const QColor& color) {
  return color.red() > 150 && color.blue() < 100;
}

bool isBlue(const QColor& color) {
  return color.blue() > 150 && color.red() < 100;
}

/// A red icon beside a blue text.
class IconButtonTest : public ::testing::Test {
 protected:
  IconButtonTest() {
    testing::ensureApplication();
    style.reset(QStyleFactory::create("Fusion"));
  }
  ~IconButtonTest() override { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
  template <class Button>
  QImage pictureOf(Qt::LayoutDirection direction) const {
    QGuiApplication::setLayoutDirection(direction);  // from which painters take theirs
    QPixmap icon(16, 16);
    icon.fill(Qt::red);
    Button button(icon, "Import");
    button.setStyle(style.get());
    QPalette palette(Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::blue);
    button.setPalette(palette);
    button.resize(buttonWidth, 40);
    return button.grab().toImage();
  }

  std::unique_ptr<QStyle> style;
};

TEST_F(IconButtonTest, ShowsIconAndTextSideBySideInTheMiddle) {
  for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    SCOPED_TRACE(direction);
    const QImage picture = pictureOf<IconButton>(direction);
    const Extent icon = Extent::of(picture, isRed);
    const Extent text = Extent::of(picture, isBlue);
    const bool mirrored = direction == Qt::RightToLeft;
    const int gap = mirrored ? icon.first - text.last : text.first - icon.last;
    EXPECT_GT(gap, 0);
    EXPECT_LT(gap, 10);
    EXPECT_NEAR(std::min(icon.first, text.first), buttonWidth - 1 - std::max(icon.last, text.last), 6);
  }
}

TEST_F(IconButtonTest, LooksLikeAnyOtherFromLeftToRight) {
  EXPECT_EQ(pictureOf<IconButton>(Qt::LeftToRight), pictureOf<QPushButton>(Qt::LeftToRight));
}

}  // namespace
}  // namespace tessarin::ui
