#include "main/CommandLine.h"

#include <QtGlobal>
#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "base/Translate.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

using Action = CommandLine::Action;

struct Option {
  std::string_view name;
  const char* argument;  // what it is called; none for none
  const char* help;

  bool takesArgument() const { return argument != nullptr; }
};

struct ActionOption : Option {
  Action action;

  bool takesFile() const { return action == Action::importFile || action == Action::exportFile; }
};

/// Says more about an action.
struct Companion : Option {
  std::string_view actions;  // that it goes with
  std::variant<bool CommandLine::*, std::size_t CommandLine::*, std::string CommandLine::*> target;
};

constexpr const char* fileArgument = QT_TRANSLATE_NOOP("CommandLine", "FILE");
constexpr const char* triggerArgument = QT_TRANSLATE_NOOP("CommandLine", "TRIGGER");
constexpr std::array actionOptions{
    ActionOption{{"--settings", nullptr,
                  QT_TRANSLATE_NOOP("CommandLine", "open the settings, starting the program if need be")},
                 Action::settings},
    ActionOption{{"--toggle", nullptr,
                  QT_TRANSLATE_NOOP("CommandLine", "switch expansion off or on in the running program")},
                 Action::toggle},
    ActionOption{{"--quit", nullptr, QT_TRANSLATE_NOOP("CommandLine", "end the running program")},
                 Action::quit},
    ActionOption{{"--allow", nullptr,
                  QT_TRANSLATE_NOOP("CommandLine",
                                    "let Tessarin judge keys and write into other applications, and switch "
                                    "the session's accessibility on")},
                 Action::allow},
    ActionOption{{"--disallow", nullptr, QT_TRANSLATE_NOOP("CommandLine", "take that back")},
                 Action::disallow},
    ActionOption{{"--list", nullptr, QT_TRANSLATE_NOOP("CommandLine", "list your own snippets")},
                 Action::list},
    ActionOption{{"--add", QT_TRANSLATE_NOOP("CommandLine", "TRIGGER TEXT"),
                  QT_TRANSLATE_NOOP("CommandLine", "add a snippet to your own")},
                 Action::add},
    ActionOption{{"--remove", triggerArgument,
                  QT_TRANSLATE_NOOP("CommandLine", "remove your snippets with that trigger")},
                 Action::remove},
    ActionOption{{"--import", fileArgument,
                  QT_TRANSLATE_NOOP("CommandLine", "add the snippets of a file to your own")},
                 Action::importFile},
    ActionOption{
        {"--export", fileArgument, QT_TRANSLATE_NOOP("CommandLine", "write your own snippets into a file")},
        Action::exportFile},
    ActionOption{{"--search", QT_TRANSLATE_NOOP("CommandLine", "QUERY"),
                  QT_TRANSLATE_NOOP("CommandLine", "list what the popup would offer, best first")},
                 Action::search},
    ActionOption{{"--help", nullptr, QT_TRANSLATE_NOOP("CommandLine", "show this text")}, Action::help},
    ActionOption{{"--version", nullptr, QT_TRANSLATE_NOOP("CommandLine", "show the version")},
                 Action::version},
};
constexpr std::array companions{
    Companion{
        {"--json", nullptr, QT_TRANSLATE_NOOP("CommandLine", "with --list or --search: write a JSON array")},
        "--list/--search",
        &CommandLine::json},
    Companion{{"--limit", QT_TRANSLATE_NOOP("CommandLine", "NUMBER"),
               QT_TRANSLATE_NOOP("CommandLine", "with --search: list at most so many (8)")},
              "--search",
              &CommandLine::limit},
    Companion{{"--name", QT_TRANSLATE_NOOP("CommandLine", "NAME"),
               QT_TRANSLATE_NOOP("CommandLine", "with --add: what the popup calls it (the trigger)")},
              "--add",
              &CommandLine::name},
    Companion{{"--keywords", QT_TRANSLATE_NOOP("CommandLine", "WORDS"),
               QT_TRANSLATE_NOOP("CommandLine", "with --add: further words to find it by, between commas")},
              "--add",
              &CommandLine::keywords},
};

template <class Kind, std::size_t count>
const Kind* find(const std::array<Kind, count>& options, std::string_view name) {
  const auto found = std::ranges::find(options, name, &Kind::name);
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
    for (const Companion* companion : companions_) requireActionOf(*companion);
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
    if (const ActionOption* action = find(actionOptions, name)) {
      takeAction(*action);
    } else if (const Companion* companion = find(companions, name)) {
      takeCompanion(*companion);
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

  void takeAction(const ActionOption& option) {
    // Doing one of two things would be a guess.
    if (result_.action != Action::run) {
      problem_ = wrong(translate("CommandLine", "%1 cannot be combined"), option);
    }
    action_ = option.name;
    result_.action = option.action;
    result_.argument = argumentOf(option);
    if (option.action == Action::add) result_.text = argumentOf(option);
    if (option.takesFile() && result_.argument.empty() && problem_.empty()) {
      problem_ = wrong(translate("CommandLine", "%1 needs a file"), option);
    }
  }

  void takeCompanion(const Companion& option) {
    companions_.push_back(&option);
    const std::string argument = argumentOf(option);
    if (const auto* isWanted = std::get_if<bool CommandLine::*>(&option.target)) {
      result_.*(*isWanted) = true;
    } else if (const auto* text = std::get_if<std::string CommandLine::*>(&option.target)) {
      result_.*(*text) = argument;
    } else if (const auto number = numberIn(argument)) {
      result_.*std::get<std::size_t CommandLine::*>(option.target) = *number;
    } else if (problem_.empty()) {
      problem_ = wrong(translate("CommandLine", "%1 needs a number from 1 on"), option);
    }
  }

  void requireActionOf(const Companion& option) {
    const bool isThere = !action_.empty() && option.actions.find(action_) != std::string_view::npos;
    if (isThere || !problem_.empty()) return;
    problem_ = filledIn(translate("CommandLine", "%1 needs %2"),
                        {std::string(option.name), std::string(option.actions)});
  }

  static std::string wrong(const std::string& text, const Option& option) {
    return filledIn(text, {std::string(option.name), argumentName(option)});
  }

  std::string argumentOf(const Option& option) {
    if (!option.takesArgument()) {
      if (attached_) problem_ = wrong(translate("CommandLine", "%1 takes no argument"), option);
      return {};
    }
    if (attached_) return *std::exchange(attached_, std::nullopt);
    if (next_ < arguments_.size() && arguments_[next_] == "--") {
      ++next_;
    } else if (next_ < arguments_.size() && arguments_[next_].starts_with("--")) {
      next_ = arguments_.size();
    }
    if (next_ < arguments_.size()) return arguments_[next_++];
    if (problem_.empty()) problem_ = wrong(translate("CommandLine", "%1 needs an argument: %2"), option);
    return {};
  }

  const std::vector<std::string>& arguments_;
  std::size_t next_ = 0;
  std::optional<std::string> attached_;  // behind "="
  std::string_view action_;
  std::vector<const Companion*> companions_;
  std::string problem_;
  CommandLine result_;
};

using HelpLine = std::pair<std::string, std::string>;

HelpLine helpLine(const Option& option) {
  std::string name = "  " + std::string(option.name);
  if (option.takesArgument()) name += " " + argumentName(option);
  return {std::move(name), translate("CommandLine", option.help)};
}

/// The explanations below one another, in any language.
std::string aligned(const std::vector<HelpLine>& lines) {
  std::size_t widest = 0;
  for (const auto& [name, help] : lines) widest = std::max(widest, text::columnCount(name));
  std::string text;
  for (const auto& [name, help] : lines)
    text.append(name).append(widest + 2 - text::columnCount(name), ' ').append(help).append("\n");
  return text;
}

}  // namespace

CommandLine CommandLine::parse(const std::vector<std::string>& arguments) {
  return Parser(arguments).parse();
}

std::string usage() {
  std::vector<HelpLine> options;
  options.reserve(actionOptions.size() + companions.size());
  for (const Option& option : actionOptions) options.push_back(helpLine(option));
  for (const Option& option : companions) options.push_back(helpLine(option));
  return translate("CommandLine", "usage: tessarin [OPTION]") + "\n\n" +
         translate("CommandLine",
                   "Expands shortcodes such as :smile in any application. Started again without "
                   "an option, it opens the\nsettings of the program that runs.") +
         "\n\n" + aligned(options);
}

}  // namespace tessarin
