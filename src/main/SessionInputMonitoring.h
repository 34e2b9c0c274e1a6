#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/InputMonitoring.h"

namespace tessarin {

/// What there is to judge keys with.
enum class KeyTapState {
  usable,
  waylandSession,     ///< programs see the keys of their own windows only
  noServer,           ///< no X server answers
  missingExtensions,  ///< the X server lacks XInput 2.2, XTest or XKB
};

struct Explanation {
  std::string headline;
  std::string text;
};

/// What the user can know and do about it, and what works all the same.
Explanation explain(KeyTapState state);

/// Input monitoring as the session allows it; a request is answered by an explanation.
class SessionInputMonitoring final : public InputMonitoring {
 public:
  /// `state` is asked afresh every time.
  SessionInputMonitoring(std::function<KeyTapState()> state, std::function<void(const Explanation&)> show)
      : state_(std::move(state)), show_(std::move(show)) {}

  bool isGranted() override { return state_() == KeyTapState::usable; }
  /// Nothing where nothing is missing.
  void request() override {
    if (!isGranted()) showExplanation();
  }
  void showExplanation() { show_(explain(state_())); }

 private:
  std::function<KeyTapState()> state_;
  std::function<void(const Explanation&)> show_;
};

}  // namespace tessarin
