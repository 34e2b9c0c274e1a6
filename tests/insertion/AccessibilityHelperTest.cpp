#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "input/Preferences.h"
#include "insertion/AccessibilityHelper.h"
#include "support/FakeTextField.h"
#include "support/FakeUserDefaults.h"
#include "support/FakeWorkspace.h"

namespace tessarin {
namespace {

using std::chrono::milliseconds;
using testing::FakeAccessibility;
using testing::FakeElement;
using testing::FakeTextField;
using Arrival = AccessibilityHelper::Arrival;

struct AccessibilityHelperTest : ::testing::Test {
  AccessibilityHelperTest() {
    accessibility.focus(field);
    field->type("hi :smile");
    workspace.frontmost = Application{"org.example.Editor", "Editor", false};
  }

  InsertionOutcome insert() { return helper.insertText(":smile", 6, "😀"); }

  FakeAccessibility accessibility;
  testing::FakeWorkspace workspace;
  testing::FakeUserDefaults defaults;
  std::shared_ptr<FakeTextField> field = FakeTextField::create();
  AccessibilityHelper helper{accessibility, workspace, defaults};
};

TEST_F(AccessibilityHelperTest, replacesTheShortcode) {
  EXPECT_EQ(insert(), InsertionOutcome::inserted);
  EXPECT_EQ(field->document(), "hi 😀");
  EXPECT_EQ(field->caret(), 4U);
}

TEST_F(AccessibilityHelperTest, comparesByCanonicalEquivalence) {
  field->type(" :cafe\u0301");
  EXPECT_EQ(helper.insertText(":caf\u00E9", 5, "☕"), InsertionOutcome::inserted);
  EXPECT_EQ(field->document(), "hi :smile ☕");
}

TEST_F(AccessibilityHelperTest, leavesASelectionBehindTheShortcode) {
  field->type("abcd");
  field->attributes[std::string(attribute::selectedTextRange)] = TextRange{9, 4};
  EXPECT_EQ(insert(), InsertionOutcome::inserted);
  EXPECT_EQ(field->document(), "hi 😀abcd");
}

using Test = AccessibilityHelperTest;

struct Refusal {
  const char* name;
  void (*arrange)(Test&);
};

class AccessibilityRefusal : public AccessibilityHelperTest, public ::testing::WithParamInterface<Refusal> {};

TEST_P(AccessibilityRefusal, leavesTheDocumentAlone) {
  GetParam().arrange(*this);
  EXPECT_EQ(insert(), InsertionOutcome::unchanged);
  EXPECT_EQ(field->document(), "hi :smile");
}

void setRole(FakeElement& element, std::string_view name) {
  element.attributes[std::string(attribute::role)] = std::string(name);
}
void makeFail(FakeElement& element, std::string_view name) {
  element.failing.insert(std::string(name));
}
void putIntoAWebArea(FakeElement& field) {
  std::shared_ptr<FakeElement> top;
  for (int level = 0; level < 5; ++level) {
    const auto parent = std::make_shared<FakeElement>();
    (top ? *top : field).attributes[std::string(attribute::parent)] = ElementRef(parent);
    top = parent;
  }
  setRole(*top, role::webArea);
}

INSTANTIATE_TEST_SUITE_P(
    Reasons, AccessibilityRefusal,
    ::testing::Values(
        Refusal{"notTrusted", [](Test& test) { test.accessibility.trusted = false; }},
        Refusal{"noApplication",
                [](Test& test) { makeFail(*test.accessibility.system, attribute::focusedApplication); }},
        Refusal{"webArea", [](Test& test) { setRole(*test.field, role::webArea); }},
        Refusal{"inAWebArea", [](Test& test) { putIntoAWebArea(*test.field); }},
        Refusal{"pasteMode",
                [](Test& test) { test.workspace.frontmost->bundleIdentifier = "org.mozilla.firefox"; }},
        Refusal{"noValue", [](Test& test) { makeFail(*test.field, attribute::value); }},
        Refusal{"noSelection", [](Test& test) { makeFail(*test.field, attribute::selectedTextRange); }},
        Refusal{"textNotReadable", [](Test& test) { makeFail(*test.field, attribute::stringForRange); }},
        Refusal{"textNotWritable",
                [](Test& test) { test.field->writeResult = AccessibilityStatus::failure; }},
        Refusal{"nothingBeforeTheCaret", [](Test& test) { test.field->setCaret(0); }},
        Refusal{"tooSlow", [](Test& test) { test.accessibility.callDuration = milliseconds(30); }}),
    [](const auto& refusal) { return refusal.param.name; });

TEST_F(AccessibilityHelperTest, waitsForLettersOnTheirWay) {
  field->type(" :wa");
  accessibility.at(milliseconds(20), [this] { field->type("v"); });
  accessibility.at(milliseconds(40), [this] { field->type("e"); });
  EXPECT_EQ(helper.insertText(":wave", 5, "👋"), InsertionOutcome::inserted);
  EXPECT_EQ(field->document(), "hi :smile 👋");
}

TEST_F(AccessibilityHelperTest, waitsSixtyMillisecondsAtMost) {
  field->type(" :wav");
  accessibility.at(milliseconds(70), [this] { field->type("e"); });
  EXPECT_EQ(helper.insertText(":wave", 5, "👋"), InsertionOutcome::differs);
  EXPECT_EQ(accessibility.elapsed(), milliseconds(60));
  EXPECT_TRUE(accessibility.writes.empty());
}

TEST_F(AccessibilityHelperTest, tellsWhetherATextStandsBeforeTheCaret) {
  EXPECT_EQ(helper.arrival(":smile", {}), Arrival::arrived);
  EXPECT_EQ(helper.arrival(":smil", {}), Arrival::notYet);
  EXPECT_EQ(helper.arrival("much more than there is", {}), Arrival::notYet);
  field->type(" cafe\u0301");
  EXPECT_EQ(helper.arrival("caf\u00E9", {}), Arrival::arrived);
  field->setCaret(2);
  EXPECT_EQ(helper.arrival("caf\u00E9", {}), Arrival::notYet);
  EXPECT_EQ(helper.arrival("hi", {}), Arrival::arrived);
}

TEST_F(AccessibilityHelperTest, tellsATextFromTheSameBeforeIt) {
  field->clear();
  field->type("😄:smile");
  const auto caretWithout = helper.caretWithout(":smile");
  ASSERT_EQ(caretWithout, 1);
  field->setCaret(1);
  EXPECT_EQ(helper.arrival("😄", caretWithout), Arrival::notYet);
  field->type("😄");
  EXPECT_EQ(helper.arrival("😄", caretWithout), Arrival::arrived);
  EXPECT_EQ(helper.caretWithout("𝄞"), std::nullopt) << "toolkits count it differently";
}

TEST_F(AccessibilityHelperTest, cannotTellWhereTheTextIsNotReadable) {
  for (const auto name : {attribute::value, attribute::selectedTextRange, attribute::stringForRange}) {
    field->failing = {std::string(name)};
    EXPECT_EQ(helper.arrival(":smile", {}), Arrival::unknown) << name;
  }
  field->failing.clear();
  accessibility.callDuration = milliseconds(30);
  EXPECT_EQ(helper.arrival(":smile", {}), Arrival::unknown) << "too slow";
  accessibility.busy = true;
  EXPECT_EQ(helper.arrival(":smile", {}), Arrival::busy);
}

TEST_F(AccessibilityHelperTest, knowsATerminalByApplicationOrRole) {
  EXPECT_FALSE(helper.isTerminal());
  setRole(*field, role::terminal);
  EXPECT_TRUE(helper.isTerminal());
  accessibility.trusted = false;
  EXPECT_FALSE(helper.isTerminal());
  workspace.frontmost->isTerminal = true;
  EXPECT_TRUE(helper.isTerminal());
}

}  // namespace
}  // namespace tessarin
