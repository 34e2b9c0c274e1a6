#include "insertion/ReplacerWorld.h"
#include "support/FakeTextInsertion.h"
#include "support/TextInsertionSuite.h"

namespace tessarin::testing {
namespace {

/// An application into which everything is pasted.
class PasteWorld {
 public:
  PasteWorld() { world_.refuseDirectInsertion(); }
  TextInsertion& insertion() { return *world_.replacer; }
  void takeText() {
    world_.queue.advance(std::chrono::milliseconds(220));
    if (const auto text = world_.paste()) texts_.push_back(*text);
  }
  std::vector<std::string> texts() const { return texts_; }

 private:
  ReplacerWorld world_;
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
