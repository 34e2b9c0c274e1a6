#include "DocumentWindow.h"
#include "LiveMainQueue.h"
#include "Typist.h"
#include "platform/x11/X11InputMonitoring.h"
#include "platform/x11/X11KeyPoster.h"
#include "support/FakeKeyPoster.h"
#include "support/KeyPosterSuite.h"
#include "support/ManualMainQueue.h"
#include "support/desktop/PrivateDisplay.h"

namespace tessarin::testing {
namespace {

struct Layout {
  std::vector<std::string> arguments;
  std::uint8_t group;
};

const Layout layouts[] = {{{"us"}, 0}, {{"us", "dvorak"}, 0}, {{"fr"}, 0}, {{"us,ru"}, 1}, {{"ru,us"}, 0}};

/// Under Caps Lock, with the layout of that number.
template <std::size_t number>
class X11PosterWorld {
 public:
  KeyPoster& poster() { return poster_; }
  std::string document() { return document_.text(); }
  std::string typeTwo() {
    document_.clipboard = "P";
    typist_.lock(layouts[number].group, x11::ModifierBits::capsLock);
    typist_.type("<1><2><+Shift_R>");
    EXPECT_TRUE(waitFor([this] { return !document().empty() && document_.presses() == 3; }));
    return document();
  }
  bool waitFor(const std::function<bool()>& condition) { return queue_.runUntil(condition); }

 private:
  static std::string prepared(const PrivateDisplay& display) {
    display.setLayout(layouts[number].arguments);
    return display.name();
  }

  PrivateDisplay display_;
  DocumentWindow document_{prepared(display_)};
  Typist typist_{display_.name()};
  LiveMainQueue queue_;
  x11::X11KeyPoster poster_{std::make_shared<x11::X11Keyboard>(queue_, display_.name())};
};

class FakePosterWorld {
 public:
  KeyPoster& poster() { return poster_; }
  std::string typeTwo() { return text_ = "12"; }
  std::string document() const {
    std::string text = text_;
    for (const auto& [press, at] : poster_.posted) {
      if (press == KeyPress{keycode::deleteBackward, 0}) text.pop_back();
      if (press == KeyPress{keycode::v, keyflag::control}) text += "P";
      if (press == KeyPress{keycode::insert, keyflag::shift}) text += "<Shift-Insert>";
      if (press == KeyPress{keycode::deleteBackward, keyflag::control | keyflag::shift}) {
        text += "<Control-Shift-BackSpace>";
      }
    }
    return text;
  }
  bool waitFor(const std::function<bool()>& condition) { return condition(); }

 private:
  std::string text_;
  ManualMainQueue queue_;
  FakeKeyPoster poster_{queue_};
};

using X11PosterWorlds = ::testing::Types<X11PosterWorld<0>, X11PosterWorld<1>, X11PosterWorld<2>,
                                         X11PosterWorld<3>, X11PosterWorld<4>>;
INSTANTIATE_TYPED_TEST_SUITE_P(X11Layouts, KeyPosterSuite, X11PosterWorlds);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, KeyPosterSuite, ::testing::Types<FakePosterWorld>);

TEST(X11InputMonitoring, IsGrantedWhereKeysCanBeHeld) {
  const PrivateDisplay display;
  EXPECT_TRUE(x11::X11InputMonitoring(display.name()).isGranted());
  const PrivateDisplay without("640x480x24", {"-extension", "XTEST"});
  EXPECT_FALSE(x11::X11InputMonitoring(without.name()).isGranted());
  EXPECT_FALSE(x11::X11InputMonitoring(":99999").isGranted());
  LiveMainQueue queue;
  EXPECT_FALSE(x11::X11Keyboard(queue, without.name()).start());
}

}  // namespace
}  // namespace tessarin::testing
