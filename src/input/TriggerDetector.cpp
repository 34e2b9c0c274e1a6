#include "input/TriggerDetector.h"

#include "input/Preferences.h"
#include "platform/KeyCodes.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

bool mayStandInQuery(const std::string& characters) {
  return text::startsAlphanumeric(characters) || characters == "_" || characters == "-" || characters == "+";
}

/// Of a key that is seen while nothing is collected. Control characters stand for keys that do something.
Preceding precedingAfter(const std::optional<std::string>& characters) {
  const bool isText =
      characters && !characters->empty() && static_cast<unsigned char>(characters->back()) >= ' ';
  return isText ? precedingAtEndOf(*characters) : Preceding::unknown;
}

}  // namespace

void TriggerDetector::handleKey(const std::optional<std::string>& characters, std::int64_t keyCode,
                                std::uint64_t flags) {
  const auto* accumulating = std::get_if<Accumulating>(&state_);
  if (flags & keyflag::chord) {
    preceding_ = Preceding::unknown;
    if (accumulating) cancel();
    return;
  }
  if (!accumulating) {
    startIfTrigger(characters);
    return;
  }
  const std::string query = accumulating->query;
  collect(query, characters, keyCode);
}

void TriggerDetector::startIfTrigger(const std::optional<std::string>& characters) {
  if (characters && isTrigger(*characters) && mayStart()) return changeQuery("");
  preceding_ = precedingAfter(characters);
}

bool TriggerDetector::mayStart() const {
  return preceding_ != Preceding::word || !preferences::triggersOnlyAtWordStart(defaults_);
}

void TriggerDetector::collect(const std::string& query, const std::optional<std::string>& characters,
                              std::int64_t keyCode) {
  switch (keyCode) {
    case keycode::down:
    case keycode::up:
      return;
    case keycode::deleteBackward:
      return deleteLast(query);
    case keycode::returnKey:
    case keycode::tab:
      return finish(query);
    case keycode::escape:
    case keycode::space:
      return cancel();
    default:
      return judgeCharacters(query, characters);
  }
}

void TriggerDetector::judgeCharacters(const std::string& query,
                                      const std::optional<std::string>& characters) {
  if (!characters) return cancel();
  if (isTrigger(*characters)) return finish(query);
  if (text::characterCount(*characters) != 1 || !mayStandInQuery(*characters)) return cancel();
  extend(query, *characters);
}

void TriggerDetector::deleteLast(const std::string& query) {
  if (query.empty()) return cancel();
  changeQuery(text::withoutLastCharacter(query));
}

void TriggerDetector::extend(const std::string& query, const std::string& characters) {
  const std::string longer = query + characters;
  if (text::characterCount(longer) <= maximumQueryLength) changeQuery(longer);
}

void TriggerDetector::changeQuery(const std::string& query) {
  state_ = Accumulating{query};
  if (onQueryChanged) onQueryChanged(query);
}

void TriggerDetector::setState(State state) {
  state_ = std::move(state);
  preceding_ = Preceding::unknown;
}

void TriggerDetector::cancel() {
  setState(Idle{});
  if (onCancel) onCancel();
}

void TriggerDetector::finish(const std::string& query) {
  if (query.empty()) return cancel();
  setState(Idle{});
  if (onConfirm) onConfirm(query);
}

bool TriggerDetector::isTrigger(const std::string& characters) const {
  return text::equals(characters, preferences::currentTriggerCharacter(defaults_));
}

}  // namespace tessarin
