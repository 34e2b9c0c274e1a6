#pragma once

#include <chrono>
#include <optional>

#include "main/CommandLine.h"
#include "main/Request.h"
#include "platform/freedesktop/FolderLock.h"

/// What the program does for one option and then ends: the exit status, and what the user reads.
namespace tessarin::commands {

inline constexpr int success = 0;
inline constexpr int failure = 1;
inline constexpr int wrongUsage = 2;

/// How long a running instance may take for an answer that costs it nothing, and for an import or export,
/// whose file may be of any size.
inline constexpr std::chrono::seconds answerTime{2};
inline constexpr std::chrono::minutes fileTime{10};
/// How long to wait for one that is only starting, or for other commands at work in the folder.
inline constexpr std::chrono::seconds turnTime{10};

/// Either the running instance has answered, or none runs and the data folder is ours and tidied up. Neither
/// where there is an instance that does not answer.
struct Reached {
  std::optional<Answer> answer;
  std::optional<freedesktop::FolderLock> folder;
};

/// Waits for its turn where the folder is held by one that does not listen, or not yet.
Reached reachInstance(const Request& request, std::chrono::milliseconds patience);
/// Writes a success to standard output and a failure to standard error.
int report(const Answer& answer);
int reportNoAnswer();

int allow();
int disallow();
/// Of the running instance alone.
int request(Request::Kind kind);
/// Import, export, adding and removing: by the running instance, else here.
int change(const CommandLine& line);
/// The user's own snippets, as the running instance has them.
int list(const CommandLine& line);
int search(const CommandLine& line);

}  // namespace tessarin::commands
