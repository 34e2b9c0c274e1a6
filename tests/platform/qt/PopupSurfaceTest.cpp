#include <cstdlib>

#include "platform/qt/QtScreens.h"
#include "platform/qt/TestApplication.h"
#include "support/FakePopupSurface.h"
#include "support/PopupSurfaceSuite.h"
#include "support/desktop/XClient.h"
#include "ui/PopupWindow.h"

namespace tessarin::testing {
namespace {

/// On the display of the test program: 1024 pixels high, scale 1.
class WindowWorld {
 public:
  WindowWorld() { client_.movePointer(0, 0); }
  PopupSurface& surface() { return window_; }
  std::optional<Rect> frame() {
    const auto popup = client_.popup();
    return popup ? std::optional(screens_.space().flipped(client_.frameOf(*popup))) : std::nullopt;
  }
  void clickRow(const PopupContent& content, int index) { click(layoutOf(content).row(index, 0).center()); }
  void clickVariant(const PopupContent& content, int index) {
    click(layoutOf(content).variant(index).center());
  }
  bool waitFor(auto condition) { return eventuallyInLoop(condition); }

 private:
  static ui::PopupLayout layoutOf(const PopupContent& content) {
    return {content, ui::PopupLayout::sizeFor(static_cast<int>(content.rows.size()))};
  }
  void click(QPointF point) {
    const Rect pixels = client_.frameOf(*client_.popup());
    client_.click(static_cast<int>(pixels.x + point.x()), static_cast<int>(pixels.y + point.y()));
  }

  XClient client_{std::getenv("DISPLAY")};
  ui::QtScreens screens_;
  ui::PopupWindow window_{screens_};
};

class FakeWorld {
 public:
  PopupSurface& surface() { return fake_; }
  std::optional<Rect> frame() const {
    return fake_.isShown ? std::optional(fake_.shows.back().frame) : std::nullopt;
  }
  void clickRow(const PopupContent&, int index) { std::function(fake_.clickRow)(index); }
  void clickVariant(const PopupContent&, int index) { std::function(fake_.clickVariant)(index); }
  bool waitFor(auto condition) { return condition(); }

 private:
  FakePopupSurface fake_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Window, PopupSurfaceSuite, ::testing::Types<WindowWorld>);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, PopupSurfaceSuite, ::testing::Types<FakeWorld>);

}  // namespace
}  // namespace tessarin::testing
