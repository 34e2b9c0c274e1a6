#include "support/KeyStream.h"

#include <map>

#include "text/Graphemes.h"

namespace tessarin::testing {
namespace {

struct NamedKey {
  std::int64_t keyCode;
  const char* text;
};

const NamedKey* namedKey(const std::string& symbol) {
  static const std::map<std::string, NamedKey> keys = {
      {"⏎", {keycode::returnKey, "\r"}}, {"⇥", {keycode::tab, "\t"}},  {"⌫", {keycode::deleteBackward, "\b"}},
      {"⎋", {keycode::escape, "\x1b"}},  {" ", {keycode::space, " "}}, {"←", {keycode::left, ""}},
      {"→", {keycode::right, ""}},       {"↑", {keycode::up, ""}},     {"↓", {keycode::down, ""}},
  };
  const auto found = keys.find(symbol);
  return found == keys.end() ? nullptr : &found->second;
}

}  // namespace

KeyEvent key(std::int64_t keyCode, std::string_view text, std::uint64_t flags) {
  KeyEvent event;
  event.keyCode = keyCode;
  event.flags = flags;
  event.text = text::toUtf16(text);
  return event;
}

KeyEvent letter(std::string_view text, std::uint64_t flags) {
  return key(keycode::other, text, flags);
}

std::vector<KeyEvent> keyStream(std::string_view keys) {
  std::vector<KeyEvent> events;
  while (!keys.empty()) {
    const std::string symbol = text::firstCharacter(keys);
    const NamedKey* named = namedKey(symbol);
    events.push_back(named ? key(named->keyCode, named->text) : letter(symbol));
    keys.remove_prefix(symbol.size());
  }
  return events;
}

}  // namespace tessarin::testing
