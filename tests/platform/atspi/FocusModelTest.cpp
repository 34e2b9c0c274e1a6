#include <array>
#include <string_view>

#include "platform/atspi/FocusModel.h"

namespace tessarin::atspi {
namespace {

const ObjectReference window1{":1.1", "/window"}, window2{":1.1", "/dialog"}, other{":1.2", "/window"};
const ObjectReference field1{":1.1", "/field"}, field2{":1.1", "/entry"}, otherField{":1.2", "/field"};

struct Case {
  const char* name;
  /// Window activated (+) or deactivated (-), element focused (f) or unfocused (u), application gone (g), our
  /// own window focused (o); each with the number of its window or element, 3 is the other application's.
  std::string_view events;
  FocusModel::Focus focus;
  int moves = 0;
  FocusModel::Focus lost = {};
};

int judge(FocusModel& model, char event, std::size_t number) {
  const ObjectReference window = std::array{window1, window2, other}.at(number - 1);
  const ObjectReference element = std::array{field1, field2, otherField}.at(number - 1);
  if (event == '+') model.windowActivated(window);
  if (event == '-') model.windowDeactivated(window);
  if (event == 'u') model.elementUnfocused(element);
  if (event == 'g') model.applicationGone(window.bus);
  if (event == 'o') model.ownFocused();
  if (event == 's') model.found({element, window});
  if (event == 'w') model.found({std::nullopt, window});
  return event == 'f' && model.elementFocused(element) ? 1 : 0;
}

TEST(FocusModelTest, followsTheEventsOfAllToolkits) {
  const FocusModel::Focus whole{field1, window1};
  const Case cases[] = {
      {"window, then element", "+1f1", whole},
      {"element, then window", "f1+1", whole},
      {"to and fro", "+1f1f2f1", whole, 2},
      {"element to element", "+1f1u1f2", {field2, window1}, 1},
      {"late letting go", "+1f1f2u1", {field2, window1}, 1},
      {"next application before the last lets go", "+1f1+3f3-1u1", {otherField, other}},
      {"next window before the last lets go", "+1f1+2-1", {{}, window2}},
      {"into another window of the same application", "+1f1-1+2f2", {field2, window2}, 1},
      {"through another application to another element", "+1f1+3f3+1f2", {field2, window1}},
      {"gone", "+1f1g1", {}},
      {"ours", "+1f1o1", {}},
      {"window let go", "+1f1-1", {}, 0, whole},
      {"element, then window let go", "+1f1u1-1", {}, 0, whole},
      {"element let go", "+1f1u1", {{}, window1}, 0, whole},
      {"let go while the window is unknown", "f1-1", {}, 0, {field1, {}}},
      {"element let go and comes back", "+1f1-1+1f1", whole},
      {"another window follows", "+1f1-1+2", {{}, window2}},
      {"another element follows", "+1f1-1f3", {otherField, {}}},
      {"ours follows", "+1f1-1o1", {}},
      {"on from what a search found", "+1s1f2", {field2, window1}, 1},
      {"a search finds no element", "+1f1-1w1", {{}, window1}, 0, whole},
      {"a search finds another element", "+1f1-1w1s2", {field2, window2}},
      {"let go and gone", "+1f1-1g1", {}},
      {"let go, and another one gone", "+1f1-1g3", {}, 0, whole},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.name);
    FocusModel model;
    int moves = 0;
    for (std::size_t at = 0; at < expected.events.size(); at += 2) {
      moves += judge(model, expected.events[at], static_cast<std::size_t>(expected.events[at + 1] - '0'));
    }
    EXPECT_EQ(model.focus(), expected.focus);
    EXPECT_EQ(model.lost(), expected.lost);
    EXPECT_EQ(moves, expected.moves);
  }
}

TEST(FocusModelTest, aWindowWithoutAnElementIsToBeSearched) {
  FocusModel model;
  model.windowActivated(window1);
  EXPECT_EQ(model.windowToSearch(), window1);
  model.found({field1, window1});
  EXPECT_FALSE(model.windowToSearch());
}

}  // namespace
}  // namespace tessarin::atspi
