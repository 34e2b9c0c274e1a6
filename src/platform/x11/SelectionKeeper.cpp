#include "platform/x11/SelectionKeeper.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/eventfd.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <deque>

#include "base/FileDescriptor.h"
#include "base/Log.h"
#include "platform/x11/Atoms.h"
#include "platform/x11/KeptSelectionCoding.h"
#include "platform/x11/OutgoingTransfers.h"
#include "platform/x11/SelectionOwner.h"
#include "platform/x11/XThread.h"

namespace tessarin::x11 {
namespace {

constexpr int startPatience = 1000;  // milliseconds

bool writeAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

std::string readAll(int file) {
  std::string bytes;
  char part[65536];
  for (ssize_t count = read(file, part, sizeof(part)); count > 0; count = read(file, part, sizeof(part)))
    bytes.append(part, static_cast<std::size_t>(count));
  return bytes;
}

/// Starts the program outside of our process group, with these files as its input and output.
bool spawnKeeper(const std::string& program, int input, int output) {
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
  std::string name = "tessarin";
  std::string option = SelectionKeeper::option;
  char* const arguments[] = {name.data(), option.data(), nullptr};
  pid_t process = 0;
  const int error = posix_spawn(&process, program.c_str(), &files, &attributes, arguments, environ);
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&files);
  return error == 0;
}

/// The process's own side: owns the selections until the last of them is lost.
class Keeper {
 public:
  explicit Keeper(std::unique_ptr<XThread> thread)
      : thread_(std::move(thread)),
        atoms_(thread_->connection()),
        transfers_(thread_->connection(), atoms_.atom("INCR")),
        window_(createSelectionWindow(thread_->connection(), *thread_->screen())) {}
  ~Keeper() { thread_->stop(); }
  Keeper(const Keeper&) = delete;
  Keeper& operator=(const Keeper&) = delete;

  /// False when the server did not answer in time.
  bool take(std::vector<KeptSelection> selections) {
    thread_->start([this](const xcb_generic_event_t& event) { handle(event); });
    return thread_->call(
        [this, selections = std::move(selections)]() mutable {
          for (auto& kept : selections) {
            owners_.emplace_back(*thread_, atoms_, transfers_, window_, kept.selection);
            owners_.back().take(std::move(kept.contents), nullptr);
          }
          noticeLoss();
        },
        std::chrono::milliseconds(startPatience));
  }

  void waitUntilLost() const {
    pollfd files[] = {{lost_.get(), POLLIN, 0},
                      {xcb_get_file_descriptor(thread_->connection()), POLLRDHUP, 0}};
    while (poll(files, std::size(files), -1) < 0) {
    }
  }

 private:
  void handle(const xcb_generic_event_t& event) {
    transfers_.handle(event);
    for (auto& owner : owners_) owner.handle(event);
    noticeLoss();
  }

  void noticeLoss() {
    const bool isAllLost = !owners_.empty() && std::ranges::none_of(owners_, &SelectionOwner::isOwner);
    if (isAllLost) eventfd_write(lost_.get(), 1);
  }

  FileDescriptor lost_{eventfd(0, EFD_CLOEXEC)};
  std::unique_ptr<XThread> thread_;
  Atoms atoms_;
  OutgoingTransfers transfers_;
  xcb_window_t window_;
  std::deque<SelectionOwner> owners_;
};

}  // namespace

bool SelectionKeeper::start(const std::string& program, const std::vector<KeptSelection>& selections) {
  const FileDescriptor contents(memfd_create("selections", MFD_CLOEXEC));
  int ends[2] = {-1, -1};
  if (pipe2(ends, O_CLOEXEC) != 0) return false;
  const FileDescriptor taken(ends[0]);
  FileDescriptor taking(ends[1]);
  bool isStarted = writeAll(contents.get(), encodeSelections(selections)) &&
                   lseek(contents.get(), 0, SEEK_SET) == 0 &&
                   spawnKeeper(program, contents.get(), taking.get());
  taking = FileDescriptor();
  pollfd answer{taken.get(), POLLIN, 0};
  char byte = 0;
  isStarted = isStarted && poll(&answer, 1, startPatience) == 1 && read(taken.get(), &byte, 1) == 1;
  if (!isStarted) log("Pasteboard", "what was copied could not be kept beyond the end of the program");
  return isStarted;
}

int SelectionKeeper::run(int input, int output) {
  auto selections = decodeSelections(readAll(input));
  auto thread = XThread::connect();
  if (!selections || selections->empty() || !thread) return EXIT_FAILURE;
  Keeper keeper(std::move(thread));
  if (!keeper.take(std::move(*selections)) || !writeAll(output, "k")) return EXIT_FAILURE;
  close(output);
  keeper.waitUntilLost();
  return EXIT_SUCCESS;
}

}  // namespace tessarin::x11
