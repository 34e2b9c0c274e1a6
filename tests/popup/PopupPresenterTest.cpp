#include "popup/AutocompletePanel.h"
#include "support/FakeAccessibility.h"
#include "support/FakePopupPresenter.h"
#include "support/FakePopupSurface.h"
#include "support/FakeScreens.h"
#include "support/ManualMainQueue.h"
#include "support/PopupPresenterSuite.h"

namespace tessarin::testing {
namespace {

class PanelWorld {
 public:
  PopupPresenter& presenter() { return panel_; }
  std::optional<PopupContent> shown() {
    queue_.advance(std::chrono::seconds(5));
    return surface_.isShown ? std::optional(surface_.shows.back().content) : std::nullopt;
  }
  void clickRow(int index) { surface_.clickRow(index); }
  void clickVariant(int index) { surface_.clickVariant(index); }

 private:
  FakePopupSurface surface_;
  FakeScreens screens_;
  FakeAccessibility accessibility_;
  ManualMainQueue queue_;
  AutocompletePanel panel_{surface_, screens_, accessibility_, queue_};
};

class FakePresenterWorld {
 public:
  PopupPresenter& presenter() { return fake_; }
  std::optional<PopupContent> shown() const {
    return fake_.visible ? std::optional(fake_.presented.back()) : std::nullopt;
  }
  void clickRow(int index) { fake_.clickRow(index); }
  void clickVariant(int index) { fake_.clickVariant(index); }

 private:
  FakePopupPresenter fake_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Panel, PopupPresenterSuite, ::testing::Types<PanelWorld>);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, PopupPresenterSuite, ::testing::Types<FakePresenterWorld>);

}  // namespace
}  // namespace tessarin::testing
