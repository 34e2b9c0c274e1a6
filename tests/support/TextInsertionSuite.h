#pragma once

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "platform/TextInsertion.h"

namespace tessarin::testing {

/// How a TextInsertion behaves, whoever implements it. `World` offers `TextInsertion& insertion()`, whose
/// document holds the shortcode each time, `takeText()`: the application does its part for the one under way,
/// and `std::vector<std::string> texts()`: those that have got there.
template <class World>
class TextInsertionSuite : public ::testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  void replace(
      const std::string& text, std::function<void()> then = [] {}) {
    world.insertion().replace({6, text, false, ":smile"},
                              [this, text, then = std::move(then)](InsertionOutcome outcome) {
                                answers.emplace_back(text, outcome == InsertionOutcome::inserted);
                                then();
                              });
  }

  World world;
  std::vector<std::pair<std::string, bool>> answers;
};

TYPED_TEST_SUITE_P(TextInsertionSuite);

TYPED_TEST_P(TextInsertionSuite, InsertsOneAfterTheOtherAndAnswersEachOnce) {
  this->replace("first", [this] { this->replace("third"); });
  this->replace("second");
  for (int i = 0; i < 3; ++i) this->world.takeText();
  EXPECT_EQ(this->world.texts(), (std::vector<std::string>{"first", "second", "third"}));
  EXPECT_EQ(this->answers,
            (std::vector<std::pair<std::string, bool>>{{"first", true}, {"second", true}, {"third", true}}));
}

TYPED_TEST_P(TextInsertionSuite, AnswersAtOnceWhenNothingIsToBeWaitedForAnyMore) {
  this->world.insertion().stopWaiting();
  this->replace("elsewhere");
  this->world.insertion().stopWaiting();
  EXPECT_EQ(this->answers, (std::vector<std::pair<std::string, bool>>{{"elsewhere", false}}));
  this->replace("here");
  this->world.takeText();
  EXPECT_EQ(this->world.texts(), std::vector<std::string>{"here"});
  EXPECT_EQ(this->answers.size(), 2U);
}

REGISTER_TYPED_TEST_SUITE_P(TextInsertionSuite, InsertsOneAfterTheOtherAndAnswersEachOnce,
                            AnswersAtOnceWhenNothingIsToBeWaitedForAnyMore);

}  // namespace tessarin::testing
