#include <gtest/gtest.h>

#include <QImage>

#include "platform/qt/TestApplication.h"
#include "ui/Extent.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

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

}  // namespace
}  // namespace tessarin::ui
