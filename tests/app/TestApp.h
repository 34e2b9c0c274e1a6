#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/AppDelegate.h"
#include "platform/WallClock.h"
#include "support/FakeAccessibility.h"
#include "support/FakeDocument.h"
#include "support/FakeEventTap.h"
#include "support/FakeInputMonitoring.h"
#include "support/FakePopupPresenter.h"
#include "support/FakeStatusBar.h"
#include "support/FakeTextInsertion.h"
#include "support/FakeUserDefaults.h"
#include "support/FakeWorkspace.h"
#include "support/LogRecorder.h"
#include "support/ManualMainQueue.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {

/// The controller on a desktop of fakes, with a document into which everything goes that it lets through.
/// Its snippets: smile 😄, smirk 😏, small "tiny", wave 👋, and one whose trigger is 64 times the letter z.
class TestApp {
 public:
  TestApp();
  ~TestApp();
  TestApp(const TestApp&) = delete;
  TestApp& operator=(const TestApp&) = delete;

  AppDelegate::Services services();
  /// Makes the controller, if there is none yet, without launching it.
  AppDelegate& create();
  /// Launches it, and starts the monitor.
  void launch();
  void type(std::string_view keys) { tap.type(keys); }

  AutocompleteViewModel& model() { return app->autocompleteViewModel(); }
  KeyboardMonitor& monitor() { return app->keyboardMonitor(); }
  /// The query being collected; none while idle.
  std::optional<std::string> query();
  /// Triggers of the rows that the popup shows; none while it is hidden.
  std::optional<std::vector<std::string>> shownTriggers() const;
  std::int64_t timesUsed(const std::string& trigger);

  TemporaryFolder folder;
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
};

}  // namespace tessarin::testing
