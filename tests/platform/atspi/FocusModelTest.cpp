#include <gtest/gtest.h>

#include <span>
#include <string>
#include <vector>

#include "platform/atspi/FocusModel.h"

namespace tessarin::atspi {
namespace {

const ObjectReference window1{":1.1", "/window"}, window2{":1.1", "/dialog"}, other{":1.2", "/window"};
const ObjectReference field1{":1.1", "/field"}, field2{":1.1", "/entry"}, otherField{":1.2", "/field"};

struct Event {
  char kind;  // + window activated, - deactivated, f element focused, u unfocused, g application gone, o ours
  ObjectReference object;
};

struct Case {
  const char* name;
  std::vector<Event> events;
  FocusModel::Focus focus;
  int moves;
  FocusModel::Focus lost = {};
};

int judge(FocusModel& model, const Event& event) {
  switch (event.kind) {
    case '+':
      model.windowActivated(event.object);
      break;
    case '-':
      model.windowDeactivated(event.object);
      break;
    case 'f':
      return model.elementFocused(event.object) ? 1 : 0;
    case 'u':
      model.elementUnfocused(event.object);
      break;
    case 'g':
      model.applicationGone(event.object.bus);
      break;
    default:
      model.ownFocused();
  }
  return 0;
}

void judgeAll(std::span<const Case> cases) {
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.name);
    FocusModel model;
    int moves = 0;
    for (const Event& event : expected.events) moves += judge(model, event);
    EXPECT_EQ(model.focus(), expected.focus);
    EXPECT_EQ(model.lost(), expected.lost);
    EXPECT_EQ(moves, expected.moves);
  }
}

TEST(FocusModelTest, followsTheEventsOfAllToolkits) {
  const Case cases[] = {
      {"window, then element", {{'+', window1}, {'f', field1}}, {field1, window1}, 0},
      {"element, then window", {{'f', field1}, {'+', window1}}, {field1, window1}, 0},
      {"element to element",
       {{'+', window1}, {'f', field1}, {'u', field1}, {'f', field2}},
       {field2, window1},
       1},
      {"late letting go",
       {{'+', window1}, {'f', field1}, {'f', field2}, {'u', field1}},
       {field2, window1},
       1},
      {"next application before the last lets go",
       {{'+', window1}, {'f', field1}, {'+', other}, {'f', otherField}, {'-', window1}, {'u', field1}},
       {otherField, other},
       0},
      {"next window before the last lets go",
       {{'+', window1}, {'f', field1}, {'+', window2}, {'-', window1}},
       {{}, window2},
       0},
      {"into another window of the same application",
       {{'+', window1}, {'f', field1}, {'-', window1}, {'+', window2}, {'f', field2}},
       {field2, window2},
       1},
      {"through another application to another element",
       {{'+', window1}, {'f', field1}, {'+', other}, {'f', otherField}, {'+', window1}, {'f', field2}},
       {field2, window1},
       0},
      {"gone", {{'+', window1}, {'f', field1}, {'g', window1}}, {{}, {}}, 0},
      {"ours", {{'+', window1}, {'f', field1}, {'o', {}}}, {{}, {}}, 0},
  };
  judgeAll(cases);
}

TEST(FocusModelTest, remembersWhatWasLetGoWithoutASuccessor) {
  const FocusModel::Focus whole{field1, window1};
  const Case cases[] = {
      {"window alone", {{'+', window1}, {'f', field1}, {'-', window1}}, {}, 0, whole},
      {"element, then window", {{'+', window1}, {'f', field1}, {'u', field1}, {'-', window1}}, {}, 0, whole},
      {"element alone", {{'+', window1}, {'f', field1}, {'u', field1}}, {{}, window1}, 0, whole},
      {"while the window is unknown", {{'f', field1}, {'-', window1}}, {}, 0, {field1, {}}},
      {"element comes back",
       {{'+', window1}, {'f', field1}, {'-', window1}, {'+', window1}, {'f', field1}},
       {field1, window1},
       0},
      {"another window follows",
       {{'+', window1}, {'f', field1}, {'-', window1}, {'+', window2}},
       {{}, window2},
       0},
      {"another element follows",
       {{'+', window1}, {'f', field1}, {'-', window1}, {'f', otherField}},
       {otherField, {}},
       0},
      {"ours follows", {{'+', window1}, {'f', field1}, {'-', window1}, {'o', {}}}, {}, 0},
      {"gone", {{'+', window1}, {'f', field1}, {'-', window1}, {'g', window1}}, {}, 0},
      {"another one gone", {{'+', window1}, {'f', field1}, {'-', window1}, {'g', other}}, {}, 0, whole},
  };
  judgeAll(cases);
}

TEST(FocusModelTest, whatASearchFindsIsNoMove) {
  FocusModel model;
  model.windowActivated(window1);
  EXPECT_EQ(model.windowToSearch(), window1);
  model.found({field1, window1});
  EXPECT_FALSE(model.windowToSearch());
  EXPECT_FALSE(model.elementFocused(field1));
  EXPECT_TRUE(model.elementFocused(field2));
}

TEST(FocusModelTest, whatASearchFindsTakesThePlaceOfWhatWasLost) {
  FocusModel model;
  model.windowActivated(window1);
  model.elementFocused(field1);
  model.windowDeactivated(window1);
  model.found({std::nullopt, window1});
  EXPECT_EQ(model.lost(), (FocusModel::Focus{field1, window1})) << "it found no element";
  model.found({field2, window1});
  EXPECT_EQ(model.lost(), FocusModel::Focus{});
}

}  // namespace
}  // namespace tessarin::atspi
