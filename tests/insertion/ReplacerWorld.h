#pragma once

#include "insertion/TextReplacer.h"
#include "support/FakeAccessibility.h"
#include "support/FakeDesktop.h"
#include "support/FakeKeyPoster.h"
#include "support/FakePasteboard.h"
#include "support/FakeUserDefaults.h"
#include "support/ManualMainQueue.h"

namespace tessarin::testing {

/// A replacer, and an application in front whose text field has the focus.
struct ReplacerWorld {
  ReplacerWorld() {
    accessibility.focus(field);
    workspace.frontmost = Application{"org.example.Editor", "Editor"};
    general.copyElsewhere("user's");
  }
  void refuseDirectInsertion() { workspace.frontmost->bundleIdentifier = "org.mozilla.firefox"; }
  /// The application takes the paste, and the text stands in its document. What it got.
  std::optional<std::string> paste() {
    const auto text = general.readByApplication();
    if (text) field->type(*text);
    queue.advance(std::chrono::milliseconds(5));
    return text;
  }

  ManualMainQueue queue;
  FakeAccessibility accessibility;
  FakeWorkspace workspace;
  FakeUserDefaults defaults;
  FakePasteboard general{queue};
  FakePasteboard primary{queue};
  FakeKeyPoster keys{queue};
  std::shared_ptr<FakeTextField> field = FakeTextField::create();
  AccessibilityHelper accessibilityHelper{accessibility, workspace, defaults};
  PasteHelper pasteHelper{general, primary, keys, queue};
  SystemWallClock clock;
  std::optional<TextReplacer> replacer{std::in_place, accessibilityHelper, pasteHelper, queue, clock};
};

}  // namespace tessarin::testing
