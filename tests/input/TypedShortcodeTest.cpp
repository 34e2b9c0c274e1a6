#include <gtest/gtest.h>

#include "input/TypedShortcode.h"

namespace tessarin::testing {
namespace {

TEST(TypedShortcode, HoldsTriggerAndLetters) {
  TypedShortcode typed;
  typed.begin(";");
  EXPECT_EQ(typed.text(), ";");
  EXPECT_EQ(typed.length(), 1);
  typed.append("s");
  typed.append("é");
  EXPECT_EQ(typed.text(), ";sé");
  EXPECT_EQ(typed.length(), 3);
}

TEST(TypedShortcode, LosesOneLetterButNeverTheTrigger) {
  TypedShortcode typed;
  typed.begin(":");
  typed.append("e");
  typed.append("\u0301");
  EXPECT_EQ(typed.length(), 2);
  typed.deleteLast();
  EXPECT_EQ(typed.text(), ":");
  typed.deleteLast();
  EXPECT_EQ(typed.text(), ":");
}

TEST(TypedShortcode, CountsAMarkOnTheTriggerAsOneCharacterWithIt) {
  TypedShortcode typed;
  typed.begin(":");
  typed.append("\u0301");
  EXPECT_EQ(typed.length(), 1);
}

TEST(TypedShortcode, BeginsAnew) {
  TypedShortcode typed;
  typed.begin(":");
  typed.append("a");
  typed.begin("/");
  EXPECT_EQ(typed.text(), "/");
}

}  // namespace
}  // namespace tessarin::testing
