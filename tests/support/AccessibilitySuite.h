#pragma once

#include <gtest/gtest.h>

#include "platform/Accessibility.h"

namespace tessarin::testing {

/// None where no application has the focus, or the one that has it tells of none.
inline ElementRef focusedElement(Accessibility& accessibility) {
  const auto application =
      readAttribute<ElementRef>(accessibility, accessibility.systemWide(), attribute::focusedApplication);
  if (!application) return nullptr;
  return readAttribute<ElementRef>(accessibility, *application, attribute::focusedElement).value_or(nullptr);
}

/// How an Accessibility behaves, whoever implements it. A `World` has a text field with the focus, and
/// offers:
///   Accessibility& accessibility();
///   void setText(const std::string&);  the field's, with the caret behind it
///   std::string text();
///   void moveFocus();                  to the other one of two elements
///   bool waitFor(condition);           lets news travel until it holds
template <class World>
class AccessibilitySuite : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(world.waitFor([this] { return focused() != nullptr; }));
    field = focused();
  }
  Accessibility& accessibility() { return world.accessibility(); }
  ElementRef focused() { return focusedElement(accessibility()); }
  /// So many characters before the caret.
  TextRange before(std::int64_t count) {
    const auto caret = readAttribute<TextRange>(accessibility(), field, attribute::selectedTextRange);
    EXPECT_TRUE(caret);
    return {caret.value_or(TextRange{}).location - count, count};
  }
  std::optional<std::string> read(const TextRange& range) {
    const auto value = accessibility().parameterizedAttribute(field, attribute::stringForRange, range);
    return value ? std::optional(std::get<std::string>(*value)) : std::nullopt;
  }
  AccessibilityStatus select(const TextRange& range) {
    return accessibility().setAttribute(field, attribute::selectedTextRange, range);
  }
  AccessibilityStatus write(const std::string& text) {
    return accessibility().setAttribute(field, attribute::selectedText, text);
  }

  World world;
  ElementRef field;
};

TYPED_TEST_SUITE_P(AccessibilitySuite);

TYPED_TEST_P(AccessibilitySuite, ReadsAndReplacesTheCharactersBeforeTheCaret) {
  std::string accented = "e";
  for (int i = 0; i < 40; ++i) accented += "\u0301";
  struct Case {
    std::string text;
    std::int64_t count;
    const char* read;
    const char* replaced;
  };
  const Case cases[] = {
      {"é😀 ñ:smile", 7, "ñ:smile", "é😀 👍🏽"},
      {"a👩‍🚀🇩🇪e\u0301", 1, "e\u0301", "a👩‍🚀🇩🇪👍🏽"},
      {"a👩‍🚀🇩🇪é", 3, "👩‍🚀🇩🇪é", "a👍🏽"},
      {"ab" + accented, 1, nullptr, "ab👍🏽"},
  };
  for (const Case& tested : cases) {
    SCOPED_TRACE(tested.replaced);
    this->world.setText(tested.text);
    if (tested.read != nullptr) {
      EXPECT_EQ(this->read(this->before(tested.count)), tested.read);
    }
    EXPECT_EQ(this->select(this->before(tested.count)), AccessibilityStatus::success);
    EXPECT_EQ(this->write("👍🏽"), AccessibilityStatus::success);
    EXPECT_EQ(this->world.text(), tested.replaced);
  }
}

TYPED_TEST_P(AccessibilitySuite, AnswersOnlyWhatThereIs) {
  this->world.setText("a😀c");
  EXPECT_EQ(this->read(this->before(3)), "a😀c");
  EXPECT_EQ(this->read({-20, 6}), std::nullopt);
  EXPECT_EQ(this->accessibility().attribute(this->field, attribute::value), AttributeValue(std::string()));
  EXPECT_EQ(this->accessibility().attribute(this->field, "AXColor"), std::nullopt);
}

TYPED_TEST_P(AccessibilitySuite, WritesOnlyWhatWasSelected) {
  this->world.setText("ab");
  EXPECT_EQ(this->write("x"), AccessibilityStatus::failure);
  this->select(this->before(1));
  EXPECT_EQ(this->write("c"), AccessibilityStatus::success);
  EXPECT_EQ(this->write("x"), AccessibilityStatus::failure);
  EXPECT_EQ(this->world.text(), "ac");
}

TYPED_TEST_P(AccessibilitySuite, TellsWhenTheFocusMovesUntilUnsubscribed) {
  int moves = 0;
  Subscription subscription = this->accessibility().onFocusMoved([&moves] { ++moves; });
  this->world.moveFocus();
  EXPECT_TRUE(this->world.waitFor([&] { return moves == 1 && this->focused() != nullptr; }));
  subscription.reset();
  this->world.moveFocus();
  EXPECT_TRUE(this->world.waitFor([&] { return this->focused() != nullptr; }));
  EXPECT_EQ(moves, 1);
}

REGISTER_TYPED_TEST_SUITE_P(AccessibilitySuite, ReadsAndReplacesTheCharactersBeforeTheCaret,
                            AnswersOnlyWhatThereIs, WritesOnlyWhatWasSelected,
                            TellsWhenTheFocusMovesUntilUnsubscribed);

}  // namespace tessarin::testing
