#include "main/Commands.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <thread>

#include "base/AtomicFile.h"
#include "base/Log.h"
#include "base/TemporaryFile.h"
#include "base/Translate.h"
#include "base/UserLanguages.h"
#include "importers/SnippetImport.h"
#include "input/Preferences.h"
#include "main/Resources.h"
#include "main/SnippetCommands.h"
#include "model/SnippetFile.h"
#include "model/SnippetStore.h"
#include "model/StorageFolder.h"
#include "platform/WallClock.h"
#include "platform/atspi/AccessibilityBus.h"
#include "platform/freedesktop/BaseFolders.h"
#include "platform/freedesktop/InstanceSocket.h"
#include "platform/freedesktop/JsonUserDefaults.h"
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

Request requestFor(const CommandLine& line) {
  using Action = CommandLine::Action;
  using Kind = Request::Kind;
  switch (line.action) {
    case Action::add:
      return {Kind::add, {line.argument, line.text, line.name, line.keywords}};
    case Action::remove:
      return {Kind::remove, {line.argument}};
    default:
      return {line.action == Action::importFile ? Kind::importFile : Kind::exportFile,
              {std::filesystem::absolute(line.argument).string()}};
  }
}

/// None where an instance runs that does not answer.
std::optional<Answer> carriedOut(const Request& request) {
  const bool isOfAFile =
      request.kind == Request::Kind::importFile || request.kind == Request::Kind::exportFile;
  const Reached reached = isOfAFile ? reachInstance(request, fileTime) : reachInstance(request, turnTime);
  if (reached.answer || !reached.folder) return reached.answer;
  OwnStore store;
  return carryOut(*store, request);
}

ImportTerms importTerms() {
  const LogCapture log(logProblem);
  const freedesktop::JsonUserDefaults defaults(freedesktop::configFolder(processEnvironment) /
                                               "preferences.json");
  return {.triggerCharacter = preferences::currentTriggerCharacter(defaults)};
}

/// What another program has, by way of a file of ours: a running instance has keys to judge and no time to
/// make anything of it.
int importForeign(const std::filesystem::path& path) {
  try {
    const ForeignSnippets read = readAnySnippets(path, importTerms());
    const TemporaryFile ours;
    writeSnippetFile(ours.path(), read.snippets);
    auto answer = carriedOut({Request::Kind::importFile, {ours.path().string()}});
    if (!answer) return reportNoAnswer();
    const std::string notes = notesOf(read);
    if (!notes.empty()) answer->text += "\n" + notes.substr(0, notes.size() - 1);
    return report(*answer);
  } catch (const std::exception& error) {
    return report({false, filledIn(translate("SnippetCommands", "Import failed: %1"), {error.what()})});
  }
}

int printListed(const std::vector<Snippet>& snippets, bool asJson) {
  print(stdout, listed(snippets, asJson));
  return std::fflush(stdout) == 0 ? success : failure;
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

int change(const CommandLine& line) {
  if (line.action == CommandLine::Action::importFile && isForeign(line.argument))
    return importForeign(line.argument);
  const auto answer = carriedOut(requestFor(line));
  return answer ? report(*answer) : reportNoAnswer();
}

int list(const CommandLine& line) {
  try {
    const TemporaryFile exported;
    const auto answer = carriedOut({Request::Kind::exportFile, {exported.path().string()}});
    if (!answer) return reportNoAnswer();
    if (!answer->isSuccess) return report(*answer);
    return printListed(readSnippetFile(exported.path()), line.json);
  } catch (const std::exception& error) {
    return report({false, error.what()});
  }
}

int search(const CommandLine& line) {
  OwnStore store;
  (*store).learnLanguages(userLanguages());
  try {
    return printListed((*store).search(line.argument, line.limit), line.json);
  } catch (const std::exception& error) {
    return report({false, error.what()});
  }
}

}  // namespace tessarin::commands
