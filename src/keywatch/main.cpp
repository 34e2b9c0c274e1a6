// Watches over the keyboard while the program holds keys of it. A process that is stopped, by a signal, a
// debugger or a lack of memory, answers no key, and the X server would wait for it for ever. Whoever holds
// keys and does not answer us either has them let by, and loses the connection to the server.
//
// Started with the name of the display, if DISPLAY is not to be asked. It sleeps until the server says that a
// key is held, and lives as long as the program: one started later might be stopped with it. A program of its
// own, in plain C++ without the library, because it is to cost next to nothing.

#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>
#include <xcb/xcb.h>
#include <xcb/xcbext.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <utility>

#include "keywatch/KeyWatchMessage.h"

namespace tessarin {
namespace {

using Kind = KeyWatchMessage::Kind;

/// Between one question and the next, in milliseconds. Longer than the program holds any key (a fifth of a
/// second), so that hardly a key leads to a question.
constexpr long roundTime = 250;
/// Who wakes later than that has been held up, like perhaps the program: the round does not count.
constexpr long lateTime = 150;
/// Questions in a row without an answer after which the program stands still. With the first pause that makes
/// three quarters of a second from the key.
constexpr int patience = 2;
/// The same while the server answers nobody, and the program that types keys may be whom it is held by, or
/// waiting for it as we are. While it types none, that is somebody else's doing and does not count.
constexpr int patienceWithServer = 8;

long milliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * 1000 + now.tv_nsec / 1'000'000;
}

/// Whether a signal or a debugger has stopped it. Freezers and swapping do not show.
bool isStopped(pid_t process) {
  char text[256] = {};
  std::snprintf(text, sizeof(text), "/proc/%d/stat", process);
  std::FILE* file = std::fopen(text, "re");
  if (file == nullptr) return false;
  const char* read = std::fgets(text, sizeof(text), file);
  std::fclose(file);
  const char* name = read != nullptr ? std::strrchr(text, ')') : nullptr;
  return name != nullptr && (name[2] == 'T' || name[2] == 't');
}

/// What the program itself would say: no key is held any longer, the one that is goes to the focused window,
/// and so does the whole keyboard. Written out, because the library for the input extension costs more than
/// all of us.
struct LastRequests {
  LastRequests(std::uint8_t extension, std::uint16_t device, xcb_window_t root, xcb_window_t focus)
      : atRoot{extension, 55, 6, root, 0, device, 1, 1, {}, anyModifier},
        atFocus{extension, 55, 6, focus, 0, device, 1, 1, {}, anyModifier},
        replay{extension, 53, 5, XCB_CURRENT_TIME, device, 2, 0, 0, 0},
        whole{extension, 52, 3, XCB_CURRENT_TIME, device, 0} {}

  static constexpr std::uint32_t anyModifier = 0x80000000U;
  struct PassiveUngrabDevice {
    std::uint8_t extension, request;
    std::uint16_t length;
    std::uint32_t window, anyKey;
    std::uint16_t device, modifierCount;
    std::uint8_t keyGrab, padding[3];
    std::uint32_t modifiers;
  } atRoot, atFocus;
  struct AllowEvents {
    std::uint8_t extension, request;
    std::uint16_t length;
    std::uint32_t time;
    std::uint16_t device;
    std::uint8_t replayDevice, padding;
    std::uint32_t touch, window;
  } replay;
  struct UngrabDevice {
    std::uint8_t extension, request;
    std::uint16_t length;
    std::uint32_t time;
    std::uint16_t device, padding;
  } whole;
};
static_assert(sizeof(LastRequests) == 24 + 24 + 20 + 12);

/// The number by which its requests are known; 0 where the server has none.
std::uint8_t inputExtension(xcb_connection_t* server) {
  constexpr char name[] = "XInputExtension";
  xcb_query_extension_reply_t* reply =
      xcb_query_extension_reply(server, xcb_query_extension(server, sizeof(name) - 1, name), nullptr);
  const std::uint8_t number = reply != nullptr ? reply->major_opcode : 0;
  std::free(reply);
  return number;
}

class Watcher {
 public:
  Watcher(xcb_connection_t* server, xcb_window_t root)
      : server_(server), root_(root), extension_(inputExtension(server)), program_(getppid()) {
    follow(root_, true);
  }

  /// Until the program or the server has gone.
  void run() {
    while (takeNews()) {
      if (isSure()) {
        unanswered_ = 0;
        wait(-1, POLLIN);
        wait(roundTime, 0);
        continue;
      }
      if (!askAndWait()) continue;
      if (!takeNews()) return;
      if (!hasAnswered_ && (!isServerAsked_ || isWorking_)) ++unanswered_;
      if (hasLost()) letGo();
    }
  }

 private:
  bool isSure() const { return connection_ < 0 || sureOf_ == happened_; }

  /// What a window is sent when a key is held at it: its focus goes to the holder, and comes back.
  void follow(xcb_window_t window, bool followed) {
    const std::uint32_t mask = followed ? std::uint32_t{XCB_EVENT_MASK_FOCUS_CHANGE} : 0U;
    xcb_change_window_attributes(server_, window, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(server_);
  }

  /// False when the program or the server has gone.
  bool takeNews() {
    ssize_t size = 0;
    while ((size = takeMessage()) == sizeof(KeyWatchMessage)) continue;
    while (xcb_generic_event_t* event = xcb_poll_for_event(server_)) {
      const int type = event->response_type & 0x7f;
      const bool isFocus = type == XCB_FOCUS_IN || type == XCB_FOCUS_OUT;
      if (isFocus && reinterpret_cast<xcb_focus_in_event_t*>(event)->mode == XCB_NOTIFY_MODE_GRAB)
        ++happened_;
      std::free(event);
    }
    takeServersAnswer();
    return size < 0 && xcb_connection_has_error(server_) == 0;
  }

  ssize_t takeMessage() {
    KeyWatchMessage message;
    iovec part{&message, sizeof(message)};
    alignas(cmsghdr) char files[CMSG_SPACE(sizeof(int))] = {};
    msghdr packet{};
    packet.msg_iov = &part;
    packet.msg_iovlen = 1;
    packet.msg_control = files;
    packet.msg_controllen = sizeof(files);
    const ssize_t size = recvmsg(keyWatchSocket, &packet, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
    if (size != sizeof(message)) return size;
    if (const cmsghdr* header = CMSG_FIRSTHDR(&packet)) {
      closeConnection();
      std::memcpy(&connection_, CMSG_DATA(header), sizeof(connection_));
      device_ = static_cast<std::uint16_t>(message.value);
    }
    take(message);
    return size;
  }

  void closeConnection() {
    if (connection_ >= 0) close(connection_);
    connection_ = -1;
    unanswered_ = 0;
  }

  void take(const KeyWatchMessage& message) {
    if (message.kind == Kind::keysHeldAt || message.kind == Kind::connection) {
      if (window_ != XCB_NONE && window_ != root_) follow(window_, false);
      window_ = message.kind == Kind::keysHeldAt ? message.value : XCB_NONE;
      if (window_ != XCB_NONE && window_ != root_) follow(window_, true);
    }
    if (message.kind == Kind::working) isWorking_ = true;
    if (message.kind == Kind::idle || message.kind == Kind::connection) isWorking_ = false;
    if (message.kind == Kind::alive || message.kind == Kind::idle) {
      hasAnswered_ = true;
      unanswered_ = 0;
      if (message.kind == Kind::idle) sureOf_ = message.value;
    } else {
      ++happened_;
    }
  }

  void takeServersAnswer() {
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (!isServerAsked_ || xcb_poll_for_reply(server_, serverQuestion_, &reply, &error) == 0) return;
    std::free(reply);
    std::free(error);
    isServerAsked_ = false;
    // Whoever waited for it can only answer from now on.
    if (std::exchange(isServerLate_, false)) unanswered_ = 0;
  }

  void askServer() {
    isServerLate_ = isServerAsked_;
    if (isServerLate_) return;
    serverQuestion_ = xcb_get_input_focus(server_).sequence;
    isServerAsked_ = true;
    xcb_flush(server_);
  }

  /// False when the pause was not the one that was meant.
  bool askAndWait() {
    const KeyWatchMessage question{Kind::question, happened_};
    hasAnswered_ = false;
    send(keyWatchSocket, &question, sizeof(question), MSG_DONTWAIT | MSG_NOSIGNAL);
    askServer();
    const long before = milliseconds();
    // An answer ends the pause only at its end: questions are to be few.
    wait(roundTime, 0);
    return milliseconds() - before <= roundTime + lateTime;
  }

  bool hasLost() const {
    if (unanswered_ >= patienceWithServer) return true;
    return unanswered_ >= patience && (!isServerAsked_ || isStopped(program_));
  }

  /// On the program's own connection: requests of ours would be left lying while it holds the whole server,
  /// and a client that merely goes takes all keys along that wait behind the held one. The program finds the
  /// connection closed.
  void letGo() {
    const KeyWatchMessage message{Kind::letGo, 0};
    send(keyWatchSocket, &message, sizeof(message), MSG_DONTWAIT | MSG_NOSIGNAL);
    const LastRequests requests(extension_, device_, root_, window_ == XCB_NONE ? root_ : window_);
    send(connection_, &requests, sizeof(requests), MSG_DONTWAIT | MSG_NOSIGNAL);
    shutdown(connection_, SHUT_WR);
    pollfd closed{connection_, 0, 0};
    poll(&closed, 1, roundTime);
    shutdown(connection_, SHUT_RDWR);
    closeConnection();
  }

  /// Until there is news of the kind, the program has gone, or the time is over.
  void wait(long time, short news) {
    pollfd sources[] = {{keyWatchSocket, news, 0}, {xcb_get_file_descriptor(server_), news, 0}};
    poll(sources, 2, static_cast<int>(time));
  }

  xcb_connection_t* server_;
  xcb_window_t root_;
  std::uint16_t device_ = 0;
  int connection_ = -1;  ///< the program's, while it stands
  std::uint8_t extension_;
  pid_t program_;
  xcb_window_t window_ = XCB_NONE;
  std::uint32_t happened_ = 1;  ///< times that a key may have been held; what came before us counts as one
  std::uint32_t sureOf_ = 0;    ///< the last of them that was dealt with
  int unanswered_ = 0;
  bool hasAnswered_ = false;
  bool isServerAsked_ = false;
  bool isServerLate_ = false;  ///< its answer belongs to an earlier question of ours
  bool isWorking_ = false;     ///< keys are being typed, as far as the program says
  unsigned serverQuestion_ = 0;
};

xcb_window_t rootOf(xcb_connection_t* server, int screen) {
  auto screens = xcb_setup_roots_iterator(xcb_get_setup(server));
  for (; screen > 0 && screens.rem > 1; --screen) xcb_screen_next(&screens);
  return screens.data->root;
}

}  // namespace
}  // namespace tessarin

int main(int argc, char** argv) {
  close_range(STDERR_FILENO + 1, ~0U, 0);
  if (chdir("/") != 0) return EXIT_FAILURE;
  int screen = 0;
  xcb_connection_t* server = xcb_connect(argc > 1 ? argv[1] : nullptr, &screen);
  if (xcb_connection_has_error(server) != 0) return EXIT_FAILURE;
  // So that a machine short of memory does not hold us up as well. May be refused.
  mlockall(MCL_CURRENT | MCL_FUTURE);
  tessarin::Watcher(server, tessarin::rootOf(server, screen)).run();
  return EXIT_SUCCESS;
}
