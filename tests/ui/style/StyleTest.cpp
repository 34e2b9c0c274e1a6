#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>
#include <algorithm>

#include "platform/qt/TestApplication.h"
#include "ui/Extent.h"
#include "ui/style/FlowGrid.h"
#include "ui/style/IconButton.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

using testing::Extent;

TEST(FlowGrid, SharesTheWidthAmongItsColumnsFromWhereReadingBegins) {
  testing::ensureApplication();
  const struct {
    int width;
    int columns;
  } cases[] = {{247, 1}, {248, 2}, {590, 4}};
  for (const auto& [width, columns] : cases) {
    SCOPED_TRACE(width);
    QWidget window;
    FlowGrid* grid = new FlowGrid({120, 8, 6}, &window);
    QList<QWidget*> cells;
    for (int index = 0; index < 12; ++index) {
      cells << new QWidget;
      cells.last()->setMinimumHeight(20);
      grid->addWidget(cells.last());
    }
    window.resize(width, grid->heightForWidth(width));
    grid->activate();
    EXPECT_EQ(cells[0]->geometry().left(), 0);
    EXPECT_EQ(cells[columns - 1]->geometry().right() + 1, width);
    EXPECT_EQ(cells[columns]->pos(), QPoint(0, cells[0]->height() + 6)) << "the next row";
    EXPECT_EQ(cells[11]->geometry().bottom() + 1, window.height());
    window.setLayoutDirection(Qt::RightToLeft);
    grid->activate();
    EXPECT_EQ(cells[0]->geometry().right() + 1, width);
  }
}

/// Where the ink of a label begins and ends, as parts of its width.
std::pair<double, double> inkOf(StyledLabel& label) {
  label.resize(200, 40);
  QImage image(label.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  label.render(&image, {}, {}, QWidget::DrawChildren);
  const auto ink = testing::Extent::of(image, [](const QColor& color) { return color.alpha() > 0; });
  return {ink.first / 200.0, ink.last / 200.0};
}

TEST(StyledLabel, BeginsAtTheSideOfTheLayoutWhateverItsScript) {
  testing::ensureApplication();
  for (const char* text : {"one line", "שורה אחת"}) {
    StyledLabel label(QString::fromUtf8(text));
    EXPECT_LT(inkOf(label).first, 0.05) << text;
    label.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(inkOf(label).second, 0.95) << text;
    label.wrapped();
    EXPECT_GT(inkOf(label).second, 0.95) << text;
    label.setLayoutDirection(Qt::LeftToRight);
    EXPECT_LT(inkOf(label).first, 0.05) << text;
  }
}

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
