#include "main/CommandLine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

namespace tessarin {
namespace {

using Action = CommandLine::Action;

struct Option {
  std::string_view name;
  Action action;              // of those that are one
  std::string_view argument;  // what it is called; empty for none
  std::string_view help;
};

constexpr std::array actions{
    Option{"--settings", Action::settings, "", "open the settings, starting the program if need be"},
    Option{"--toggle", Action::toggle, "", "switch expansion off or on in the running program"},
    Option{"--quit", Action::quit, "", "end the running program"},
    Option{"--allow", Action::allow, "",
           "let Tessarin judge keys and write into other applications, and switch the session's "
           "accessibility on"},
    Option{"--disallow", Action::disallow, "", "take that back"},
    Option{"--import", Action::importFile, "FILE", "add the snippets of a file to your own"},
    Option{"--export", Action::exportFile, "FILE", "write your own snippets into a file"},
    Option{"--search", Action::search, "QUERY", "list what the popup would offer, best first"},
    Option{"--help", Action::help, "", "show this text"},
    Option{"--version", Action::version, "", "show the version"},
};
constexpr std::array searchOptions{
    Option{"--json", Action::search, "", "with --search: write a JSON array"},
    Option{"--limit", Action::search, "NUMBER", "with --search: list at most so many (8)"},
};

template <std::size_t count>
const Option* find(const std::array<Option, count>& options, std::string_view name) {
  const auto found = std::ranges::find(options, name, &Option::name);
  return found == options.end() ? nullptr : &*found;
}

std::optional<std::size_t> numberIn(const std::string& text) {
  std::size_t number = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || rest != end || number == 0) return std::nullopt;
  return number;
}

/// Reads the arguments one after the other into a result, until something is wrong.
class Parser {
 public:
  explicit Parser(const std::vector<std::string>& arguments) : arguments_(arguments) {}

  CommandLine parse() {
    while (problem_.empty() && next_ < arguments_.size()) readOption(arguments_[next_++]);
    const bool isSearch = result_.action == Action::search;
    if (problem_.empty() && !searchOption_.empty() && !isSearch) problem_ = searchOption_ + " needs --search";
    if (problem_.empty()) return result_;
    return {.action = Action::wrongUsage, .argument = problem_};
  }

 private:
  void readOption(const std::string& argument) {
    if (argument == "--") {
      if (next_ < arguments_.size()) problem_ = "unexpected argument " + arguments_[next_];
      return;
    }
    const auto equals = argument.find('=');
    const std::string name = argument.substr(0, equals);
    if (equals != std::string::npos) attached_ = argument.substr(equals + 1);
    if (const Option* action = find(actions, name)) {
      takeAction(*action);
    } else if (const Option* option = find(searchOptions, name)) {
      takeSearchOption(*option);
    } else {
      problem_ = (argument.starts_with('-') ? "unknown option " : "unexpected argument ") + argument;
    }
    attached_.reset();
  }

  void takeAction(const Option& option) {
    // Doing one of two things would be a guess.
    if (result_.action != Action::run) problem_ = std::string(option.name) + " cannot be combined";
    result_.action = option.action;
    result_.argument = argumentOf(option);
    const bool isFile = option.argument == "FILE";
    if (isFile && result_.argument.empty() && problem_.empty()) {
      problem_ = std::string(option.name) + " needs a file";
    }
  }

  void takeSearchOption(const Option& option) {
    searchOption_ = option.name;
    const std::string argument = argumentOf(option);
    if (option.argument.empty()) {
      result_.json = true;
    } else if (const auto limit = numberIn(argument)) {
      result_.limit = *limit;
    } else if (problem_.empty()) {
      problem_ = std::string(option.name) + " needs a number from 1 on";
    }
  }

  std::string argumentOf(const Option& option) {
    if (option.argument.empty()) {
      if (attached_) problem_ = std::string(option.name) + " takes no argument";
      return {};
    }
    if (attached_) return *attached_;
    if (next_ < arguments_.size() && arguments_[next_] == "--") {
      ++next_;
    } else if (next_ < arguments_.size() && arguments_[next_].starts_with("--")) {
      next_ = arguments_.size();
    }
    if (next_ < arguments_.size()) return arguments_[next_++];
    problem_ = std::string(option.name) + " needs an argument: " + std::string(option.argument);
    return {};
  }

  const std::vector<std::string>& arguments_;
  std::size_t next_ = 0;
  std::optional<std::string> attached_;  // behind "="
  std::string searchOption_;
  std::string problem_;
  CommandLine result_;
};

void addHelp(std::string& text, const Option& option) {
  constexpr std::size_t column = 18;
  std::string name = "  " + std::string(option.name);
  if (!option.argument.empty()) name += " " + std::string(option.argument);
  name.resize(std::max(column, name.size() + 1), ' ');
  text += name + std::string(option.help) + "\n";
}

}  // namespace

CommandLine CommandLine::parse(const std::vector<std::string>& arguments) {
  return Parser(arguments).parse();
}

std::string usage() {
  std::string text =
      "usage: tessarin [OPTION]\n\nExpands shortcodes such as :smile in any application. Started again "
      "without an option, it opens the\nsettings of the program that runs.\n\n";
  for (const Option& option : actions) addHelp(text, option);
  for (const Option& option : searchOptions) addHelp(text, option);
  return text;
}

}  // namespace tessarin
