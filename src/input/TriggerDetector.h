#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>

#include "input/Preceding.h"

namespace tessarin {

class UserDefaults;

/// Turns the stream of key-down events into "the query changed", "confirmed" and "abandoned". Knows nothing
/// of snippets, popup or platform. Main thread; callbacks run inside `handleKey` and may read or set the
/// state.
class TriggerDetector {
 public:
  /// Waiting for the trigger character.
  struct Idle {
    bool operator==(const Idle&) const = default;
  };
  /// The trigger character was typed; `query` is everything typed after it, and may be empty.
  struct Accumulating {
    std::string query;
    bool operator==(const Accumulating&) const = default;
  };
  using State = std::variant<Idle, Accumulating>;

  /// A query never grows beyond this many characters; further letters are dropped from it.
  static constexpr std::size_t maximumQueryLength = 64;

  /// The trigger character is read from `defaults` afresh at every key.
  explicit TriggerDetector(const UserDefaults& defaults) : defaults_(defaults) {}

  /// Feeds one key-down event. `characters` is absent when the key produces no text; `flags` are those of
  /// platform/KeyCodes.h. Fires at most one callback, after the state has changed.
  void handleKey(const std::optional<std::string>& characters, std::int64_t keyCode, std::uint64_t flags);

  const State& state() const { return state_; }
  /// Fires no callback: setting Idle abandons the query silently.
  void setState(State state);
  /// What the key before the trigger typed; unknown where that key was not seen.
  Preceding preceding() const { return preceding_; }
  bool isAccumulating() const { return std::holds_alternative<Accumulating>(state_); }

  std::function<void(const std::string& query)> onQueryChanged;
  /// The query is never empty here.
  std::function<void(const std::string& query)> onConfirm;
  std::function<void()> onCancel;

 private:
  void startIfTrigger(const std::optional<std::string>& characters);
  bool mayStart() const;
  void collect(const std::string& query, const std::optional<std::string>& characters, std::int64_t keyCode);
  void judgeCharacters(const std::string& query, const std::optional<std::string>& characters);
  void deleteLast(const std::string& query);
  void extend(const std::string& query, const std::string& characters);
  void changeQuery(const std::string& query);
  void cancel();
  void finish(const std::string& query);
  bool isTrigger(const std::string& characters) const;

  const UserDefaults& defaults_;
  State state_;
  Preceding preceding_ = Preceding::unknown;
};

}  // namespace tessarin
