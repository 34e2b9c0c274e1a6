#include "main/Commands.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <thread>

#include "base/AtomicFile.h"
#include "base/Log.h"
#include "base/Translate.h"
#include "main/Resources.h"
#include "main/SnippetFiles.h"
#include "model/SnippetStore.h"
#include "model/StorageFolder.h"
#include "platform/WallClock.h"
#include "platform/atspi/AccessibilityBus.h"
#include "platform/freedesktop/BaseFolders.h"
#include "platform/freedesktop/InstanceSocket.h"
#include "platform/freedesktop/TrustRecord.h"

namespace tessarin::commands {
namespace {

freedesktop::TrustRecord trustRecord() {
  return freedesktop::TrustRecord(freedesktop::configFolder(processEnvironment));
}

void print(std::FILE* stream, const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stream);
}

/// Standard output belongs to the answer, so what could not be read goes to standard error, and what could is
/// not worth a line.
void logProblem(const std::string& line) {
  if (line.find("] Loaded ") == std::string::npos) print(stderr, line + "\n");
}

/// The user's snippets, without any running instance.
class OwnStore {
 public:
  SnippetStore& operator*() { return store_; }

 private:
  LogCapture log_{logProblem};
  SystemWallClock clock_;
  SnippetStore store_{{.resources = resourceFolder(std::filesystem::canonical("/proc/self/exe")),
                       .storage = applicationSupportFolder()},
                      clock_};
};

/// Whether nobody goes by an older answer any more: a running instance is told of the record, and waited for.
bool isTrustFollowed() {
  constexpr std::chrono::milliseconds pause{20};
  const auto deadline = std::chrono::steady_clock::now() + answerTime;
  for (;;) {
    const Reached reached = reachInstance({Request::Kind::trust, {}}, answerTime);
    if (reached.folder || (reached.answer && reached.answer->isSuccess)) return true;
    if (!reached.answer || std::chrono::steady_clock::now() >= deadline) return false;
    std::this_thread::sleep_for(pause);
  }
}

Answer perform(const Request& request) {
  OwnStore store;
  return request.kind == Request::Kind::importFile ? importSnippets(*store, request.file)
                                                   : exportSnippets(*store, request.file);
}

}  // namespace

Reached reachInstance(const Request& request, std::chrono::milliseconds patience) {
  constexpr std::chrono::milliseconds pause{20};
  const std::filesystem::path folder = applicationSupportFolder();
  using Clock = std::chrono::steady_clock;
  const auto deadline = Clock::now() + turnTime;
  for (;;) {
    auto lock = freedesktop::FolderLock::acquire(folder);
    const auto asked = Clock::now();
    // Even if the lock was free: the running instance's folder may have been removed, its lock with it.
    const auto line = freedesktop::requestOfRunningInstance(folder, request.encoded(), patience);
    if (line) return {Answer::decode(*line), std::nullopt};
    if (lock) {
      // What was killed while it saved left this, whatever the clock said then; nobody else writes there now.
      removeAbandonedReplacements(folder, std::filesystem::file_time_type::max());
      return {std::nullopt, std::move(lock)};
    }
    if (Clock::now() - asked >= patience || Clock::now() >= deadline) return {};
    std::this_thread::sleep_for(pause);
  }
}

int report(const Answer& answer) {
  if (!answer.isSuccess) {
    print(stderr, "tessarin: " + answer.text + "\n");
    return failure;
  }
  print(stdout, answer.text + "\n");
  return success;
}

int reportNoAnswer() {
  return report({false, translate("Commands", "the running instance does not answer")});
}

int allow() {
  if (!trustRecord().allow()) return failure;
  const bool isEnabled = atspi::AccessibilityBus::enable();
  if (!isTrustFollowed()) return reportNoAnswer();
  return report(
      {true, translate("Commands", "Tessarin may judge keys and write into other applications.") + "\n" +
                 (isEnabled ? translate("Commands",
                                        "The session's accessibility is switched on, for later sessions too. "
                                        "Qt applications and browsers that are open now notice it when they "
                                        "are started again; until then, text is pasted there.")
                            : translate("Commands",
                                        "The session's accessibility could not be switched on; text will be "
                                        "pasted."))});
}

int disallow() {
  if (!trustRecord().disallow()) return failure;
  if (!isTrustFollowed()) return reportNoAnswer();
  return report(
      {true, translate("Commands", "Tessarin no longer judges keys or writes into other applications.")});
}

int request(Request::Kind kind) {
  const Reached reached = reachInstance({kind, {}}, answerTime);
  if (reached.answer) return report(*reached.answer);
  return reached.folder ? report({false, translate("Commands", "no instance is running")}) : reportNoAnswer();
}

int importOrExport(const CommandLine& line) {
  const auto kind =
      line.action == CommandLine::Action::importFile ? Request::Kind::importFile : Request::Kind::exportFile;
  const Request request{kind, std::filesystem::absolute(line.argument)};
  const Reached reached = reachInstance(request, fileTime);
  if (reached.answer) return report(*reached.answer);
  return reached.folder ? report(perform(request)) : reportNoAnswer();
}

int search(const CommandLine& line) {
  OwnStore store;
  try {
    print(stdout, searchResults(*store, line.argument, {.limit = line.limit, .json = line.json}));
  } catch (const std::exception& error) {
    return report({false, error.what()});
  }
  return std::fflush(stdout) == 0 ? success : failure;
}

}  // namespace tessarin::commands
