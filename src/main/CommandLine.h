#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tessarin {

/// What the program was started for.
struct CommandLine {
  enum class Action {
    run,  ///< also brings up the settings of an instance that runs already
    settings,
    help,
    version,
    allow,
    disallow,
    toggle,
    quit,
    importFile,
    exportFile,
    list,
    add,
    remove,
    search,
    wrongUsage,
  };
  static constexpr std::size_t defaultLimit = 8;

  Action action = Action::run;
  /// The file, the query or the trigger, byte for byte; what is wrong where the usage is.
  std::string argument;
  std::string text = {};      ///< of a snippet that is added
  std::string name = {};      ///< of the same; none for none
  std::string keywords = {};  ///< of the same, between commas
  bool json = false;
  std::size_t limit = defaultLimit;

  bool operator==(const CommandLine&) const = default;

  /// An option's argument follows behind "=" or as the next argument; one that begins with "--" only behind
  /// "=" or behind "--".
  static CommandLine parse(const std::vector<std::string>& arguments);
};

/// The text of `--help`.
std::string usage();

}  // namespace tessarin
