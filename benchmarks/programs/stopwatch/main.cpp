// Makes things happen on a desktop and tells when what they bring about can be seen, both by one clock. Reads
// commands, a line each, and writes what it saw, a line each, the answer behind "→":
//   press MOVE...                            → began TIME
//   replace BUS PATH START END LENGTH TEXT   → began TIME
//   place BUS PATH POSITION                  → place X Y WIDTH HEIGHT, in the document's window
//   watch NAME WINDOW X Y WIDTH HEIGHT       → looks NAME NUMBER, at each change  picture TIME NAME NUMBER
//   look NAME                                → looks NAME NUMBER
//   forget NAME
//   open-window                              → window NUMBER, then at each key  key TIME CODE
//   close-window
// and always, when text is inserted into a document:  text TIME BUS PATH START TEXT
#include <poll.h>
#include <unistd.h>

#include <cstdio>
#include <sstream>
#include <string>

#include "Moment.h"
#include "Screen.h"
#include "TextBus.h"

namespace tessarin::stopwatch {

void report(const std::string& line) {
  std::puts(line.c_str());
  std::fflush(stdout);
}

namespace {

class Commands {
 public:
  Commands(Screen& screen, TextBus& bus) : screen_(screen), bus_(bus) {}

  /// Answers whether there may be more.
  bool takeIn() {
    char buffer[4096];
    const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
    if (count <= 0) return false;
    unread_.append(buffer, static_cast<std::size_t>(count));
    for (auto end = unread_.find('\n'); end != std::string::npos; end = unread_.find('\n')) {
      carryOut(std::istringstream(unread_.substr(0, end)));
      unread_.erase(0, end + 1);
    }
    return true;
  }

 private:
  void carryOut(std::istringstream line) {
    std::string verb;
    line >> verb;
    if (verb == "press") press(line);
    if (verb == "replace") replace(line);
    if (verb == "place") place(line);
    if (verb == "watch") watch(line);
    if (verb == "look") screen_.tell(word(line));
    if (verb == "forget") screen_.forget(word(line));
    if (verb == "open-window") screen_.openKeyWindow();
    if (verb == "close-window") screen_.closeKeyWindow();
  }

  static std::string word(std::istream& line) {
    std::string found;
    line >> found;
    return found;
  }

  void press(std::istream& line) {
    std::vector<std::string> moves;
    for (std::string move; line >> move;) moves.push_back(move);
    screen_.press(moves);
  }

  void replace(std::istream& line) {
    atspi::ObjectReference document;
    int start = 0;
    int end = 0;
    int length = 0;
    std::string text;
    line >> document.bus >> document.path >> start >> end >> length >> text;
    bus_.replace(document, start, end, length, text);
  }

  void place(std::istream& line) {
    atspi::ObjectReference document;
    int position = 0;
    line >> document.bus >> document.path >> position;
    bus_.tellPlace(document, position);
  }

  void watch(std::istream& line) {
    std::string name;
    xcb_window_t window = 0;
    xcb_rectangle_t part{};
    line >> name >> window >> part.x >> part.y >> part.width >> part.height;
    screen_.watch(name, window, part);
  }

  Screen& screen_;
  TextBus& bus_;
  std::string unread_;
};

int run() {
  Screen screen;
  TextBus bus;
  if (!screen.isConnected() || !bus.isConnected()) return 1;
  Commands commands(screen, bus);
  report("ready");
  for (bool goesOn = true; goesOn && screen.isConnected();) {
    // Answers that were waited for may have brought events along, which the sockets then do not tell of.
    screen.takeIn();
    bus.takeIn();
    pollfd sources[] = {{STDIN_FILENO, POLLIN, 0}, {screen.fd(), POLLIN, 0}, {bus.fd(), POLLIN, 0}};
    poll(sources, 3, -1);
    if (sources[0].revents != 0) goesOn = commands.takeIn();
  }
  return 0;
}

}  // namespace
}  // namespace tessarin::stopwatch

int main() {
  return tessarin::stopwatch::run();
}
