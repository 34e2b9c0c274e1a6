#pragma once

#include "app/AppDelegate.h"
#include "input/Preferences.h"
#include "model/SnippetCoding.h"
#include "platform/EventTap.h"
#include "platform/KeyCodes.h"
#include "platform/TextInsertion.h"
#include "platform/WallClock.h"
#include "support/FakeAccessibility.h"
#include "support/FakeDesktop.h"
#include "support/FakeEventTap.h"
#include "support/FakePopup.h"
#include "support/FakeTextInsertion.h"
#include "support/FakeUserDefaults.h"
#include "support/LogRecorder.h"
#include "support/ManualMainQueue.h"
#include "support/TemporaryFolder.h"
#include "text/Graphemes.h"

namespace tessarin::testing {

/// A text with the caret at its end, which keys type into and replacements change. A replacement whose
/// shortcode does not stand before the caret, or that would erase anything else, fails the test. As where
/// texts are pasted, it erases nothing once the caret may have moved.
class FakeDocument {
 public:
  void type(const KeyEvent& event) {
    if (event.keyCode == keycode::deleteBackward) {
      text = text::withoutLastCharacter(text);
    } else if (!(event.flags & keyflag::chord)) {
      text += text::fromUtf16(event.text);
    }
  }

  void apply(const Replacement& replacement) {
    if (replacement.caretMayHaveMoved) return;
    const auto count = replacement.deleteCount + (replacement.includeTriggerChar ? 1 : 0);
    const std::string erased = text::lastCharacters(text, static_cast<std::size_t>(count));
    EXPECT_EQ(erased, replacement.typed) << "in the document: " << text;
    text.resize(text.size() - erased.size());
    text += replacement.text;
  }

  std::string text;
};

/// The controller on a desktop of fakes, with a document into which everything goes that it lets through.
/// Its snippets: smile 😄, smirk 😏, small "tiny", wave 👋, and one whose trigger is 64 times the letter z.
class TestApp {
 public:
  TestApp() {
    std::vector<Snippet> snippets;
    for (const auto& [trigger, replacement] : {std::pair(std::string("smile"), "😄"),
                                               {"smirk", "😏"},
                                               {"small", "tiny"},
                                               {"wave", "👋"},
                                               {std::string(64, 'z'), "long"}}) {
      snippets.push_back({"", "name of " + trigger, trigger, replacement, {}, "Test", true});
    }
    folder.write("emoji-data.json", encodeSnippets(snippets, JsonStyle::compact));
    workspace.frontmost = Application{"org.example.Editor", ""};
    // Most tests type letters right before the trigger; DoubtTest is about what that means.
    defaults.set(preferences::key::confirmsOnlyWhatIsMeant, false);
    tap.onReachedDocument = [this](const KeyEvent& event) { document.type(event); };
    insertion.onInserted = [this](const Replacement& replacement) { document.apply(replacement); };
  }
  TestApp(const TestApp&) = delete;
  TestApp& operator=(const TestApp&) = delete;

  /// Makes the controller, if there is none yet, without launching it.
  AppDelegate& create() {
    if (!app) app = std::make_unique<AppDelegate>(services());
    return *app;
  }
  /// Launches it, and starts the monitor.
  void launch() {
    create().applicationDidFinishLaunching();
    queue.advance(AppDelegate::monitorStartDelay);
  }
  void type(std::string_view keys) { tap.type(keys); }

  AutocompleteViewModel& model() { return app->autocompleteViewModel(); }
  KeyboardMonitor& monitor() { return app->keyboardMonitor(); }
  /// The query being collected; none while idle.
  std::optional<std::string> query() {
    const auto* state = std::get_if<TriggerDetector::Accumulating>(&app->triggerDetector().state());
    return state ? std::optional(state->query) : std::nullopt;
  }
  /// Triggers of the rows that the popup shows; none while it is hidden.
  std::optional<std::vector<std::string>> shownTriggers() const {
    if (!popup.visible) return std::nullopt;
    std::vector<std::string> triggers;
    for (const PopupRow& row : popup.presented.back().rows) triggers.push_back(row.trigger);
    return triggers;
  }
  std::int64_t timesUsed(const std::string& trigger) {
    const auto counts = app->snippetStore().usageTracker().usageCounts();
    const auto found = counts.find(trigger);
    return found != counts.end() ? found->second : 0;
  }

  TemporaryFolder folder;
  std::vector<std::string> languages;
  LogRecorder log;
  FakeDocument document;
  FakeEventTap tap;
  FakeAccessibility accessibility;
  FakeInputMonitoring monitoring;
  FakeWorkspace workspace;
  FakeUserDefaults defaults;
  ManualMainQueue queue;
  SystemWallClock clock;
  FakePopupPresenter popup;
  FakeTextInsertion insertion;
  FakeStatusBar statusBar;
  std::unique_ptr<AppDelegate> app;

 private:
  AppDelegate::Services services() {
    return {.eventTap = tap,
            .accessibility = accessibility,
            .inputMonitoring = monitoring,
            .workspace = workspace,
            .userDefaults = defaults,
            .mainQueue = queue,
            .autocompletePanel = popup,
            .textReplacer = insertion,
            .statusBar = statusBar,
            .wallClock = clock,
            .folders = {.resources = folder.path(), .storage = folder / "storage"},
            .languages = languages,
            .menu = {},
            .startUpdateService = {},
            .showOnboardingWindow = {}};
  }
};

}  // namespace tessarin::testing
