#include "platform/x11/KeyWatch.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

#include "base/Log.h"

namespace tessarin::x11 {
namespace {

constexpr std::chrono::minutes timeBetweenWatchers{1};

/// In a session of its own, so that what stops the terminal's programs does not stop it, and with the signals
/// as at a program's start. -1 when it cannot be started.
pid_t spawnWatcher(const std::string& program, std::string display, int socket) {
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_adddup2(&files, socket, keyWatchSocket);
  posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  sigset_t signals;
  sigemptyset(&signals);
  posix_spawnattr_setsigmask(&attributes, &signals);
  for (const int number : {SIGPIPE, SIGTTIN, SIGTTOU}) sigaddset(&signals, number);
  posix_spawnattr_setsigdefault(&attributes, &signals);
  std::string name = program.substr(program.rfind('/') + 1);
  char* const arguments[] = {name.data(), display.empty() ? nullptr : display.data(), nullptr};
  pid_t process = -1;
  if (posix_spawn(&process, program.c_str(), &files, &attributes, arguments, environ) != 0) process = -1;
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&files);
  return process;
}

}  // namespace

KeyWatch::KeyWatch(Options options, const SessionKeyboard& keyboard)
    : options_(std::move(options)), keyboard_(keyboard) {
  if (!options_.program.empty()) start();
}

KeyWatch::~KeyWatch() {
  end();
}

void KeyWatch::start() {
  std::array<int, 2> ends{-1, -1};
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) == 0) {
    socket_ = FileDescriptor(ends[0]);
    const FileDescriptor its(ends[1]);
    process_ = spawnWatcher(options_.program, options_.display, its.get());
  }
  if (process_ > 0) {
    sayConnection();
    if (options_.started) options_.started(process_);
    return;
  }
  socket_ = FileDescriptor();
  log("KeyWatch", "The keyboard's watcher cannot be started: nobody frees the keyboard should we be stopped");
}

// It has nothing to tidy up, and may itself have been stopped.
void KeyWatch::end() {
  socket_ = FileDescriptor();
  if (process_ <= 0) return;
  kill(process_, SIGKILL);
  waitpid(std::exchange(process_, -1), nullptr, 0);
}

void KeyWatch::follow(const SessionKeyboard& keyboard) {
  keyboard_ = keyboard;
  hasLetGo_ = false;
  question_.reset();
  sayConnection();
}

void KeyWatch::sayConnection() {
  if (!socket_) return;
  KeyWatchMessage message{KeyWatchMessage::Kind::connection, keyboard_.device};
  iovec part{&message, sizeof(message)};
  alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> files{};
  msghdr packet{};
  packet.msg_iov = &part;
  packet.msg_iovlen = 1;
  packet.msg_control = files.data();
  packet.msg_controllen = files.size();
  cmsghdr* header = CMSG_FIRSTHDR(&packet);
  header->cmsg_level = SOL_SOCKET;
  header->cmsg_type = SCM_RIGHTS;
  header->cmsg_len = CMSG_LEN(sizeof(int));
  const int file = xcb_get_file_descriptor(keyboard_.connection);
  std::memcpy(CMSG_DATA(header), &file, sizeof(file));
  sendmsg(socket_.get(), &packet, MSG_DONTWAIT | MSG_NOSIGNAL);
}

void KeyWatch::sayAlive() {
  listen();
  answer(KeyWatchMessage::Kind::alive);
}

void KeyWatch::sayIdle() {
  answer(KeyWatchMessage::Kind::idle);
  if (hasGone_) replace();
}

void KeyWatch::replace() {
  end();
  hasGone_ = false;
  const auto now = std::chrono::steady_clock::now();
  const bool isTooSoon = replaced_ && now - *replaced_ < timeBetweenWatchers;
  log("KeyWatch", isTooSoon ? "The keyboard's watcher has died again: nobody frees the keyboard should we be "
                              "stopped"
                            : "The keyboard's watcher has died: starting another");
  if (isTooSoon) return;
  replaced_ = now;
  start();
}

// Whoever does not read what we say is answered for by nobody: then it is as if there were no watcher.
void KeyWatch::say(KeyWatchMessage::Kind kind, std::uint32_t value) {
  const KeyWatchMessage message{kind, value};
  if (socket_) send(socket_.get(), &message, sizeof(message), MSG_DONTWAIT | MSG_NOSIGNAL);
}

void KeyWatch::answer(KeyWatchMessage::Kind kind) {
  if (question_) say(kind, *std::exchange(question_, std::nullopt));
}

void KeyWatch::listen() {
  KeyWatchMessage message;
  while (socket_) {
    const ssize_t size = recv(socket_.get(), &message, sizeof(message), MSG_DONTWAIT);
    if (size == sizeof(message) && message.kind == KeyWatchMessage::Kind::question) question_ = message.value;
    if (size == sizeof(message) && message.kind == KeyWatchMessage::Kind::letGo) hasLetGo_ = true;
    if (size == sizeof(message)) continue;
    hasGone_ |= size == 0 || (errno != EAGAIN && errno != EINTR);
    return;
  }
}

}  // namespace tessarin::x11
