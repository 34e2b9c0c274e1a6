// What is meant as a shortcode, and what only looks like one.

#include <numeric>
#include <sstream>

#include "Matchers.h"
#include "app/TestApp.h"
#include "base/Files.h"
#include "input/Preferences.h"

namespace tessarin::testing {
namespace {

using preferences::key::confirmsOnlyWhatIsMeant;
using preferences::key::triggersOnlyAtWordStart;

std::vector<std::vector<std::string>> table(const std::string& name) {
  std::istringstream file(readFile(std::string(TESSARIN_SOURCE_DIR) + "/tests/data/" + name));
  std::vector<std::vector<std::string>> rows;
  for (std::string line; std::getline(file, line);) {
    std::istringstream fields(line);
    rows.emplace_back();
    for (std::string place; std::getline(fields, place, '|');) rows.back().push_back(place);
  }
  return rows;
}

enum class Place { editor, silentEditor, terminal, silentTerminal };
constexpr Place everyPlace[] = {Place::editor, Place::silentEditor, Place::terminal, Place::silentTerminal};

/// With the preference as it is when absent, and the application's text read after each key where it is told.
class MeantApp : public TestApp {
 public:
  explicit MeantApp(Place place, bool isShipped = false) : place_(place) {
    defaults.set(confirmsOnlyWhatIsMeant, true);
    tap.isQuietWhileIdle = true;
    const bool isTerminal = place == Place::terminal || place == Place::silentTerminal;
    workspace.frontmost->isTerminal = isTerminal;
    const std::string resources = std::string(TESSARIN_SOURCE_DIR) + "/resources/";
    for (const char* file : {"emoji-data.json", "kaomoji-data.json"}) {
      if (isShipped) folder.write(file, readFile(resources + file));
    }
    launch();
  }

  void type(std::string_view keys) {
    for (const KeyEvent& event : keyStream(keys)) {
      tap.press(event);
      read();
    }
  }
  void read() {
    const bool isTold = place_ == Place::editor || place_ == Place::terminal;
    if (!isTold || !query()) return;
    popup.readContext(
        {text::lastCharacters(document.text, text::characterCount(*query()) + 2), place_ == Place::terminal});
  }
  /// What stands in the document for the keys, on a line of its own.
  std::string typed(std::string_view keys) {
    document.text = "before\r";
    type(keys);
    return document.text.substr(document.text.find('\r') + 1);
  }

 private:
  Place place_;
};

TEST(Doubt, OrdinaryLinesStandAsTheyWereTyped) {
  const auto lines = table("ordinary-lines.txt");
  EXPECT_GE(lines.size(), 80U);
  for (const Place place : {Place::editor, Place::terminal, Place::silentTerminal}) {
    MeantApp app(place, true);
    for (const auto& row : lines) {
      const std::string line = std::accumulate(row.begin() + 1, row.end(), row[0],
                                               [](const auto& a, const auto& b) { return a + "|" + b; });
      std::string keys = line;
      if (const auto tab = keys.find('\t'); tab != std::string::npos) keys.replace(tab, 1, "⇥");
      EXPECT_EQ(app.typed(keys + "⏎"), line + "\r") << static_cast<int>(place);
    }
  }
}

TEST(Doubt, MeantShortcodesExpand) {
  const auto rows = table("meant-shortcodes.txt");
  EXPECT_GE(rows.size(), 30U);
  for (const Place place : everyPlace) {
    const bool isTerminal = place == Place::terminal || place == Place::silentTerminal;
    MeantApp app(place, true);
    for (const auto& row : rows) {
      const bool isPart = row.size() > 3;  // of a trigger
      if ((isTerminal && row[0].empty()) || (place == Place::silentTerminal && isPart)) continue;
      for (const char* confirming : {"⏎", "⇥", ":"}) {
        EXPECT_EQ(app.typed(row[0] + ":" + row[1] + confirming), row[0] + row[2]) << static_cast<int>(place);
      }
    }
  }
}

struct Line {
  const char* keys;
  const char* document;
};

TEST(Doubt, ADoubtfulListConfirmsOnceTheUserHasMovedThroughIt) {
  const Line lines[] = {
      {"1:smi⏎", "1:smi\r"},      {"1:smi⇥", "1:smi\t"},  {"1:smi:", "1😄"},       {"1:smi↓⏎", "1😄"},
      {"1:smi↑⇥", "1😏"},          {"1:sm↓i⏎", "1😄"},      {":s⏎", ":s\r"},        {":s↓↓⏎", "😏"},
      {":sm⌫⏎", ":s\r"},          {"1:smi→⏎", "1:smi\r"}, {"1:smi⎋⏎", "1:smi\r"}, {"1:s⌫ :smi⏎", "1: 😄"},
      {":s↓⎋1:smi⏎", ":s1:smi\r"}};
  for (const auto& [keys, document] : lines) EXPECT_EQ(MeantApp(Place::editor).typed(keys), document) << keys;
  MeantApp app(Place::editor);
  app.type("1:sm");
  const PopupContent& shown = app.popup.presented.back();
  EXPECT_THAT(shown.rows, SizeIs(3));
  EXPECT_EQ(shown.selectedIndex, -1);
  EXPECT_THAT(shown.hints, Not(Contains(::testing::Field(&PopupKeyHint::key, "↵"))));
  EXPECT_THAT(shown.hints, Contains(PopupKeyHint{":", "confirm"}));
  app.popup.clickRow(1);
  EXPECT_EQ(app.document.text, "1😏");
}

TEST(Doubt, IsWithoutEffectBeforeItIsKnownAndRaisedAsSoonAsItIs) {
  MeantApp app(Place::silentEditor);
  EXPECT_EQ(app.typed("a:smile⏎b :smile⏎b "), "a😄b 😄b ") << "at any speed";
  app.type("1:smi");
  EXPECT_EQ(app.popup.presented.back().selectedIndex, 0);
  app.popup.readContext({"1:sm", false});
  EXPECT_EQ(app.popup.presented.back().selectedIndex, -1);
  EXPECT_EQ(app.tap.press(key(keycode::returnKey, "\r")), KeyVerdict::pass);
  EXPECT_FALSE(app.popup.visible);
  app.type("1:smi↓");
  app.popup.readContext({"1:smi", false});
  EXPECT_EQ(app.popup.presented.back().selectedIndex, 1) << "the user has chosen";
  app.type("⎋ :smi");
  for (const char* unknown : {"", "1", "1:x", "1:smil"}) app.popup.readContext({unknown, false});
  app.popup.readContext({std::nullopt, false});
  EXPECT_EQ(app.popup.presented.back().selectedIndex, 0) << "letters of something else";
}

TEST(Doubt, NothingIsReadWhereNobodyWantsToKnow) {
  MeantApp app(Place::editor);
  app.defaults.set(confirmsOnlyWhatIsMeant, false);
  EXPECT_FALSE(app.popup.readContext);
  app.defaults.set(triggersOnlyAtWordStart, true);
  EXPECT_TRUE(app.popup.readContext);
}

TEST(WordStart, ATriggerBehindALetterOrDigitBeginsNothingOnceThatIsKnown) {
  const Line lines[] = {{"1:smile⏎", "1:smile\r"},
                        {"é:smile:", "é:smile:"},
                        {"10:30:smile⏎", "10:30:smile\r"},
                        {"x :smile⏎", "x 😄"},
                        {":smile⏎", "😄"},
                        {"(:smile:", "(😄"},
                        {"心:smile⏎", "心😄"},
                        {":smile⏎x:smile⏎", "😄x:smile\r"}};
  for (const bool isQuiet : {true, false}) {
    for (const auto& [keys, document] : lines) {
      MeantApp app(isQuiet ? Place::editor : Place::silentEditor);
      app.tap.isQuietWhileIdle = isQuiet;
      app.defaults.set(triggersOnlyAtWordStart, true);
      EXPECT_EQ(app.typed(keys), document) << keys << (isQuiet ? ", read" : ", seen typed");
      EXPECT_FALSE(app.popup.visible);
    }
  }
  MeantApp app(Place::silentEditor);
  app.defaults.set(triggersOnlyAtWordStart, true);
  EXPECT_EQ(app.typed("1:smile⏎"), "1😄") << "not known";
}

}  // namespace
}  // namespace tessarin::testing
