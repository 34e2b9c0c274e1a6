#include <gmock/gmock.h>

#include <chrono>

#include "input/Preferences.h"
#include "insertion/AccessibilityHelper.h"
#include "support/FakeAccessibility.h"
#include "support/FakeDesktop.h"
#include "support/FakeUserDefaults.h"

namespace tessarin::testing {
namespace {

using std::chrono::milliseconds;
using Arrival = AccessibilityHelper::Arrival;

struct HelperWorld {
  HelperWorld() {
    accessibility.focus(field);
    field->type("hi :smile");
    workspace.frontmost = Application{"org.example.Editor", "Editor"};
  }

  InsertionOutcome insert() { return helper.insertText(":smile", 6, "😀"); }
  /// Puts `levels` elements above the field, the topmost with that role.
  void putAncestors(int levels, std::string_view topRole) {
    std::shared_ptr<FakeElement> element = field;
    for (int level = 1; level <= levels; ++level) {
      auto parent = std::make_shared<FakeElement>();
      element->attributes[std::string(attribute::parent)] = ElementRef(parent);
      element = parent;
    }
    element->attributes[std::string(attribute::role)] = std::string(topRole);
  }

  FakeAccessibility accessibility;
  FakeWorkspace workspace;
  FakeUserDefaults defaults;
  std::shared_ptr<FakeTextField> field = FakeTextField::create();
  AccessibilityHelper helper{accessibility, workspace, defaults};
};

struct AccessibilityHelperTest : ::testing::Test, HelperWorld {};

void setRole(FakeElement& element, std::string_view name) {
  element.attributes[std::string(attribute::role)] = std::string(name);
}
void makeFail(FakeElement& element, std::string_view name) {
  element.failing.insert(std::string(name));
}

TEST_F(AccessibilityHelperTest, replacesTheShortcodeInWhicheverNormalForm) {
  putAncestors(6, role::webArea);  // too far up to be one
  EXPECT_EQ(insert(), InsertionOutcome::inserted);
  EXPECT_EQ(field->document(), "hi 😀");
  EXPECT_EQ(field->caret(), 4U);
  field->type(" :cafe\u0301");
  EXPECT_EQ(helper.insertText(":caf\u00E9", 5, "☕"), InsertionOutcome::inserted);
  EXPECT_EQ(field->document(), "hi 😀 ☕");
}

TEST_F(AccessibilityHelperTest, takesAtMostWhatStandsBeforeTheCaret) {
  field->setCaret(3);
  EXPECT_EQ(helper.insertText("", 5, "x"), InsertionOutcome::inserted);
  EXPECT_EQ(std::get<TextRange>(accessibility.writes.at(0).value), (TextRange{0, 3}));
  EXPECT_EQ(field->document(), "x:smile");
}

TEST_F(AccessibilityHelperTest, leavesASelectionBehindTheShortcode) {
  field->type("abcd");
  field->attributes[std::string(attribute::selectedTextRange)] = TextRange{9, 4};
  EXPECT_EQ(insert(), InsertionOutcome::inserted);
  EXPECT_EQ(field->document(), "hi 😀abcd");
}

TEST(AccessibilityRefusal, leavesTheDocumentAlone) {
  using World = HelperWorld&;
  using Apps = std::vector<std::string>;
  const std::pair<const char*, void (*)(World)> reasons[] = {
      {"not trusted", [](World w) { w.accessibility.trusted = false; }},
      {"no element", [](World w) { makeFail(*w.accessibility.application, attribute::focusedElement); }},
      {"web area", [](World w) { setRole(*w.field, role::webArea); }},
      {"web as fifth ancestor", [](World w) { w.putAncestors(5, role::webArea); }},
      {"user's paste mode", [](World w) { w.defaults.set("pasteFallbackApps", Apps{"org.example.Editor"}); }},
      {"no value", [](World w) { makeFail(*w.field, attribute::value); }},
      {"text not readable", [](World w) { makeFail(*w.field, attribute::stringForRange); }},
      {"text not writable", [](World w) { w.field->writeResult = AccessibilityStatus::failure; }},
      {"nothing before the caret", [](World w) { w.field->setCaret(0); }},
      {"too slow", [](World w) { w.accessibility.callDuration = milliseconds(30); }},
  };
  for (const auto& [reason, arrange] : reasons) {
    HelperWorld world;
    arrange(world);
    EXPECT_EQ(world.insert(), InsertionOutcome::unchanged) << reason;
    EXPECT_EQ(world.field->document(), "hi :smile") << reason;
  }
}

TEST_F(AccessibilityHelperTest, leavesAloneWhatIsNotTheShortcode) {
  for (const char* text : {"hi ☺", "hi :smile ", "hi :smil)"}) {
    accessibility.focus(field = FakeTextField::create());
    field->type(text);
    EXPECT_EQ(insert(), InsertionOutcome::differs) << text;
    EXPECT_EQ(field->document(), text);
    EXPECT_EQ(helper.stands(":smile", 6), false);
  }
  field->type(":smile");
  EXPECT_EQ(helper.stands(":smile", 6), true);
  field->setCaret(0);
  EXPECT_EQ(helper.stands(":smile", 6), std::nullopt) << "an element that does not tell of its text";
}

TEST_F(AccessibilityHelperTest, waitsSixtyMillisecondsForLettersOnTheirWay) {
  field->type(" :wa");
  accessibility.at(milliseconds(20), [this] { field->type("v"); });
  accessibility.at(milliseconds(110), [this] { field->type("e"); });
  EXPECT_EQ(helper.insertText(":wave", 5, "👋"), InsertionOutcome::differs);
  EXPECT_EQ(accessibility.elapsed(), milliseconds(60));
  EXPECT_TRUE(accessibility.writes.empty());
  EXPECT_EQ(helper.insertText(":wave", 5, "👋"), InsertionOutcome::inserted);
  EXPECT_EQ(field->document(), "hi :smile 👋");
}

TEST_F(AccessibilityHelperTest, tellsWhetherATextStandsBeforeTheCaret) {
  EXPECT_EQ(helper.arrival(":smile", {}), Arrival::arrived);
  EXPECT_EQ(helper.arrival(":smil", {}), Arrival::notYet);
  EXPECT_EQ(helper.arrival("much more than there is", {}), Arrival::notYet);
  field->type(" cafe\u0301");
  EXPECT_EQ(helper.arrival("caf\u00E9", {}), Arrival::arrived);
  field->setCaret(2);
  EXPECT_EQ(helper.arrival("caf\u00E9", {}), Arrival::notYet);
  workspace.frontmost->bundleIdentifier = "org.mozilla.firefox";
  setRole(*field, role::webArea);
  EXPECT_EQ(helper.arrival("hi", {}), Arrival::arrived) << "in every application";
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

TEST_F(AccessibilityHelperTest, knowsThePasteChordByApplicationOrTheRoleOfATerminal) {
  EXPECT_EQ(helper.pasteChord(), PasteChord::controlV);
  setRole(*field, role::terminal);
  EXPECT_EQ(helper.pasteChord(), PasteChord::shiftInsert);
  workspace.frontmost->pasteChord = PasteChord::registerPlus;
  EXPECT_EQ(helper.pasteChord(), PasteChord::registerPlus);
}

}  // namespace
}  // namespace tessarin::testing
