#include "support/KeyStream.h"

#include <map>

#include "text/Graphemes.h"

namespace tessarin::testing {

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
  static const std::map<std::string, KeyEvent> named = {{"⏎", key(keycode::returnKey, "\r")},
                                                        {"⇥", key(keycode::tab, "\t")},
                                                        {"⌫", key(keycode::deleteBackward, "\b")},
                                                        {"⎋", key(keycode::escape, "\x1b")},
                                                        {" ", key(keycode::space, " ")},
                                                        {"←", key(keycode::left)},
                                                        {"→", key(keycode::right)},
                                                        {"↑", key(keycode::up)},
                                                        {"↓", key(keycode::down)}};
  std::vector<KeyEvent> events;
  while (!keys.empty()) {
    const std::string symbol = text::firstCharacter(keys);
    const auto found = named.find(symbol);
    events.push_back(found != named.end() ? found->second : letter(symbol));
    keys.remove_prefix(symbol.size());
  }
  return events;
}

}  // namespace tessarin::testing
