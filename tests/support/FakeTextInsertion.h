#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <ostream>
#include <utility>
#include <vector>

#include "platform/TextInsertion.h"

namespace tessarin {

inline bool operator==(const Replacement& a, const Replacement& b) {
  return a.deleteCount == b.deleteCount && a.text == b.text && a.includeTriggerChar == b.includeTriggerChar &&
         a.typed == b.typed;
}

inline void PrintTo(const Replacement& replacement, std::ostream* out) {
  *out << "erase " << replacement.deleteCount << (replacement.includeTriggerChar ? " + trigger" : "")
       << " (typed \"" << replacement.typed << "\"), insert \"" << replacement.text << '"';
}

}  // namespace tessarin

namespace tessarin::testing {

/// Takes replacements; answers at once, or when the test says so.
class FakeTextInsertion final : public TextInsertion {
 public:
  ~FakeTextInsertion() override {
    if (!underWay_.empty()) ADD_FAILURE() << underWay_.size() << " replacement(s) never finished";
  }

  void replace(const Replacement& replacement, Completion done) override {
    replacements.push_back(replacement);
    underWay_.emplace_back(replacement, std::move(done));
    if (finishesAtOnce) finish();
  }

  void stopWaiting() override {
    while (!underWay_.empty()) finish(InsertionOutcome::erasedOnly);
  }

  /// Ends the oldest replacement under way.
  void finish(InsertionOutcome outcome = InsertionOutcome::inserted) {
    auto [replacement, done] = std::move(underWay_.front());
    underWay_.pop_front();
    if (outcome == InsertionOutcome::inserted && onInserted) onInserted(replacement);
    done(outcome);
  }
  std::size_t underWay() const { return underWay_.size(); }

  bool finishesAtOnce = true;
  std::function<void(const Replacement&)> onInserted;
  std::vector<Replacement> replacements;

 private:
  std::deque<std::pair<Replacement, Completion>> underWay_;
};

}  // namespace tessarin::testing
