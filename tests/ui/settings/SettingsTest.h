#pragma once

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "model/SnippetStore.h"
#include "platform/qt/TestApplication.h"
#include "support/FakeAccessibility.h"
#include "support/FakeDesktop.h"
#include "support/FakePasteboard.h"
#include "support/FakeUserDefaults.h"
#include "support/LogRecorder.h"
#include "support/ManualMainQueue.h"
#include "support/ManualWallClock.h"
#include "support/TemporaryFolder.h"
#include "ui/settings/SettingsServices.h"

namespace tessarin::testing {

/// What the settings work with: a store in a folder of its own, everything else played.
class SettingsTest : public ::testing::Test {
 protected:
  SettingsTest() {
    ensureApplication();
    folder.write("emoji-data.json",
                 R"([{"name":"smile","trigger":"smile","replacement":"😀","keywords":[],"category":"x"}])");
    store = std::make_unique<SnippetStore>(SnippetStore::Folders{folder.path(), folder.path()}, clock);
    log.clear();
  }

  static Snippet mine(const std::string& trigger, const std::string& replacement = "text") {
    return {"id-" + trigger, "Name of " + trigger, trigger, replacement, {"word"}, "Theirs", false};
  }
  std::vector<std::string> triggers() const {
    std::vector<std::string> found;
    for (const Snippet& snippet : store->userSnippets()) found.push_back(snippet.trigger);
    return found;
  }
  ui::SettingsServices services() {
    return {*store,    defaults,  Permissions(accessibility, inputMonitoring, workspace),
            loginItem, workspace, pasteboard,
            queue,     clock,     [this] { ++updateChecks; },
            "1.0",     "1"};
  }

  TemporaryFolder folder;
  ManualWallClock clock;
  ManualMainQueue queue;
  FakeUserDefaults defaults;
  FakePasteboard pasteboard{queue};
  FakeAccessibility accessibility;
  FakeInputMonitoring inputMonitoring;
  FakeWorkspace workspace;
  int updateChecks = 0;
  FakeLoginItem loginItem;
  LogRecorder log;
  std::unique_ptr<SnippetStore> store;
};

template <class Widget>
Widget* child(const QWidget& window, const QString& text) {
  for (Widget* widget : window.findChildren<Widget*>()) {
    if (widget->text() == text) return widget;
  }
  ADD_FAILURE() << "no widget \"" << text.toStdString() << "\"";
  return nullptr;
}

/// Whether a label with this text is to be seen.
template <class Label>
bool shows(const QWidget& window, const QString& text) {
  for (const Label* label : window.findChildren<Label*>()) {
    if (label->isVisible() && label->text() == text) return true;
  }
  return false;
}

}  // namespace tessarin::testing
