#include "insertion/TextReplacer.h"
#include "support/FakeKeyPoster.h"
#include "support/FakePasteboard.h"
#include "support/FakeTextField.h"
#include "support/FakeTextInsertion.h"
#include "support/FakeUserDefaults.h"
#include "support/FakeWorkspace.h"
#include "support/ManualMainQueue.h"
#include "support/TextInsertionSuite.h"

namespace tessarin::testing {
namespace {

using std::chrono::milliseconds;

/// An application into which everything is pasted.
class PasteWorld {
 public:
  PasteWorld() {
    accessibility_.focus(field_);
    workspace_.frontmost = Application{"org.mozilla.firefox", "Firefox", false};
    general_.copyElsewhere("user's");
  }
  TextInsertion& insertion() { return replacer_; }
  void takeText() {
    queue_.advance(milliseconds(220));
    const auto text = general_.readByApplication();
    if (!text) return;
    texts_.push_back(*text);
    field_->type(*text);
    queue_.advance(milliseconds(5));
  }
  std::vector<std::string> texts() const { return texts_; }

 private:
  ManualMainQueue queue_;
  FakeAccessibility accessibility_;
  std::shared_ptr<FakeTextField> field_ = FakeTextField::create();
  FakeWorkspace workspace_;
  FakeUserDefaults defaults_;
  FakePasteboard general_{queue_};
  FakePasteboard primary_{queue_};
  FakeKeyPoster keys_{queue_};
  AccessibilityHelper accessibilityHelper_{accessibility_, workspace_, defaults_};
  PasteHelper pasteHelper_{general_, primary_, keys_, queue_};
  SystemWallClock clock_;
  TextReplacer replacer_{accessibilityHelper_, pasteHelper_, queue_, clock_};
  std::vector<std::string> texts_;
};

class FakeInsertionWorld {
 public:
  FakeInsertionWorld() {
    fake_.finishesAtOnce = false;
    fake_.onInserted = [this](const Replacement& replacement) { texts_.push_back(replacement.text); };
  }
  TextInsertion& insertion() { return fake_; }
  void takeText() { fake_.finish(); }
  std::vector<std::string> texts() const { return texts_; }

 private:
  std::vector<std::string> texts_;
  FakeTextInsertion fake_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Paste, TextInsertionSuite, ::testing::Types<PasteWorld>);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, TextInsertionSuite, ::testing::Types<FakeInsertionWorld>);

}  // namespace
}  // namespace tessarin::testing
