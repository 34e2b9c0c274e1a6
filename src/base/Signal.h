#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "base/Subscription.h"

namespace tessarin {

/// A list of callbacks that are told of something. Main thread only. A callback may subscribe, unsubscribe or
/// destroy the signal while it is being told.
template <class... Args>
class Signal {
 public:
  Subscription subscribe(std::function<void(Args...)> callback) {
    const std::uint64_t key = state_->next++;
    state_->callbacks.emplace(key, std::move(callback));
    return Subscription([weak = std::weak_ptr<State>(state_), key] {
      if (auto state = weak.lock()) state->callbacks.erase(key);
    });
  }

  void emit(Args... args) const {
    const std::shared_ptr<State> state = state_;
    std::vector<std::uint64_t> keys;
    for (const auto& [key, callback] : state->callbacks) keys.push_back(key);
    for (const std::uint64_t key : keys) {
      const auto found = state->callbacks.find(key);
      if (found == state->callbacks.end()) continue;
      const auto callback = found->second;
      callback(args...);
    }
  }

 private:
  struct State {
    std::map<std::uint64_t, std::function<void(Args...)>> callbacks;
    std::uint64_t next = 0;
  };
  std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace tessarin
