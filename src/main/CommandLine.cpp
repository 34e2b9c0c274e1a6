#include "main/CommandLine.h"

#include <QtGlobal>
#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

#include "base/Translate.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

using Action = CommandLine::Action;

struct Option {
  std::string_view name;
  Action action;         // of those that are one
  const char* argument;  // what it is called; none for none
  const char* help;

  bool takesArgument() const { return argument != nullptr; }
  bool takesFile() const { return action == Action::importFile || action == Action::exportFile; }
};

constexpr const char* fileArgument = QT_TRANSLATE_NOOP("CommandLine", "FILE");
constexpr std::array actions{
    Option{"--settings", Action::settings, nullptr,
           QT_TRANSLATE_NOOP("CommandLine", "open the settings, starting the program if need be")},
    Option{"--toggle", Action::toggle, nullptr,
           QT_TRANSLATE_NOOP("CommandLine", "switch expansion off or on in the running program")},
    Option{"--quit", Action::quit, nullptr, QT_TRANSLATE_NOOP("CommandLine", "end the running program")},
    Option{"--allow", Action::allow, nullptr,
           QT_TRANSLATE_NOOP("CommandLine",
                             "let Tessarin judge keys and write into other applications, and switch the "
                             "session's accessibility on")},
    Option{"--disallow", Action::disallow, nullptr, QT_TRANSLATE_NOOP("CommandLine", "take that back")},
    Option{"--import", Action::importFile, fileArgument,
           QT_TRANSLATE_NOOP("CommandLine", "add the snippets of a file to your own")},
    Option{"--export", Action::exportFile, fileArgument,
           QT_TRANSLATE_NOOP("CommandLine", "write your own snippets into a file")},
    Option{"--search", Action::search, QT_TRANSLATE_NOOP("CommandLine", "QUERY"),
           QT_TRANSLATE_NOOP("CommandLine", "list what the popup would offer, best first")},
    Option{"--help", Action::help, nullptr, QT_TRANSLATE_NOOP("CommandLine", "show this text")},
    Option{"--version", Action::version, nullptr, QT_TRANSLATE_NOOP("CommandLine", "show the version")},
};
constexpr std::array searchOptions{
    Option{"--json", Action::search, nullptr,
           QT_TRANSLATE_NOOP("CommandLine", "with --search: write a JSON array")},
    Option{"--limit", Action::search, QT_TRANSLATE_NOOP("CommandLine", "NUMBER"),
           QT_TRANSLATE_NOOP("CommandLine", "with --search: list at most so many (8)")},
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

std::string argumentName(const Option& option) {
  return option.takesArgument() ? translate("CommandLine", option.argument) : std::string();
}

/// Reads the arguments one after the other into a result, until something is wrong.
class Parser {
 public:
  explicit Parser(const std::vector<std::string>& arguments) : arguments_(arguments) {}

  CommandLine parse() {
    while (problem_.empty() && next_ < arguments_.size()) readOption(arguments_[next_++]);
    const bool isSearch = result_.action == Action::search;
    if (problem_.empty() && !searchOption_.empty() && !isSearch) {
      problem_ = filledIn(translate("CommandLine", "%1 needs --search"), {searchOption_});
    }
    if (problem_.empty()) return result_;
    return {.action = Action::wrongUsage, .argument = problem_};
  }

 private:
  void readOption(const std::string& argument) {
    if (argument == "--") {
      if (next_ < arguments_.size()) problem_ = unexpected(arguments_[next_]);
      return;
    }
    const auto equals = argument.find('=');
    const std::string name = argument.substr(0, equals);
    if (equals != std::string::npos) attached_ = argument.substr(equals + 1);
    if (const Option* action = find(actions, name)) {
      takeAction(*action);
    } else if (const Option* option = find(searchOptions, name)) {
      takeSearchOption(*option);
    } else if (argument.starts_with('-')) {
      problem_ = filledIn(translate("CommandLine", "unknown option %1"), {argument});
    } else {
      problem_ = unexpected(argument);
    }
    attached_.reset();
  }

  static std::string unexpected(const std::string& argument) {
    return filledIn(translate("CommandLine", "unexpected argument %1"), {argument});
  }

  void takeAction(const Option& option) {
    // Doing one of two things would be a guess.
    if (result_.action != Action::run) {
      problem_ = wrong(translate("CommandLine", "%1 cannot be combined"), option);
    }
    result_.action = option.action;
    result_.argument = argumentOf(option);
    if (option.takesFile() && result_.argument.empty() && problem_.empty()) {
      problem_ = wrong(translate("CommandLine", "%1 needs a file"), option);
    }
  }

  void takeSearchOption(const Option& option) {
    searchOption_ = option.name;
    const std::string argument = argumentOf(option);
    if (!option.takesArgument()) {
      result_.json = true;
    } else if (const auto limit = numberIn(argument)) {
      result_.limit = *limit;
    } else if (problem_.empty()) {
      problem_ = wrong(translate("CommandLine", "%1 needs a number from 1 on"), option);
    }
  }

  static std::string wrong(const std::string& text, const Option& option) {
    return filledIn(text, {std::string(option.name), argumentName(option)});
  }

  std::string argumentOf(const Option& option) {
    if (!option.takesArgument()) {
      if (attached_) problem_ = wrong(translate("CommandLine", "%1 takes no argument"), option);
      return {};
    }
    if (attached_) return *attached_;
    if (next_ < arguments_.size() && arguments_[next_] == "--") {
      ++next_;
    } else if (next_ < arguments_.size() && arguments_[next_].starts_with("--")) {
      next_ = arguments_.size();
    }
    if (next_ < arguments_.size()) return arguments_[next_++];
    problem_ = wrong(translate("CommandLine", "%1 needs an argument: %2"), option);
    return {};
  }

  const std::vector<std::string>& arguments_;
  std::size_t next_ = 0;
  std::optional<std::string> attached_;  // behind "="
  std::string searchOption_;
  std::string problem_;
  CommandLine result_;
};

void addHelp(std::string& help, const Option& option) {
  constexpr std::size_t column = 18;
  std::string name = "  " + std::string(option.name);
  if (option.takesArgument()) name += " " + argumentName(option);
  const std::size_t width = text::characterCount(name);
  help += name + std::string(width < column ? column - width : 1, ' ');
  help += translate("CommandLine", option.help) + "\n";
}

}  // namespace

CommandLine CommandLine::parse(const std::vector<std::string>& arguments) {
  return Parser(arguments).parse();
}

std::string usage() {
  std::string text = translate("CommandLine", "usage: tessarin [OPTION]") + "\n\n" +
                     translate("CommandLine",
                               "Expands shortcodes such as :smile in any application. Started again without "
                               "an option, it opens the\nsettings of the program that runs.") +
                     "\n\n";
  for (const Option& option : actions) addHelp(text, option);
  for (const Option& option : searchOptions) addHelp(text, option);
  return text;
}

}  // namespace tessarin
