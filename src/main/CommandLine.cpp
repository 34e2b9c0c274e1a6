#include "main/CommandLine.h"

#include <array>
#include <string_view>

namespace tessarin {
namespace {

struct Option {
  std::string_view name;
  CommandLine::Action action;
  std::string_view help;
};

constexpr std::array options{
    Option{"--help", CommandLine::Action::help, "show this text"},
    Option{"--version", CommandLine::Action::version, "show the version"},
    Option{"--allow", CommandLine::Action::allow,
           "let Tessarin judge keys and write into other applications, and switch the session's "
           "accessibility on"},
    Option{"--disallow", CommandLine::Action::disallow, "take that back"},
    Option{"--toggle", CommandLine::Action::toggle, "switch expansion off or on in the running program"},
    Option{"--quit", CommandLine::Action::quit, "end the running program"},
};

const Option* find(const std::string& name) {
  for (const Option& option : options) {
    if (option.name == name) return &option;
  }
  return nullptr;
}

}  // namespace

CommandLine CommandLine::parse(const std::vector<std::string>& arguments) {
  CommandLine result;
  for (const std::string& argument : arguments) {
    const Option* option = find(argument);
    if (option == nullptr || result.action != Action::run) return {Action::unknown, argument};
    result.action = option->action;
  }
  return result;
}

std::string usage() {
  std::string text = "usage: tessarin [OPTION]\n\nExpands shortcodes such as :smile in any application.\n\n";
  for (const Option& option : options) {
    std::string name = "  " + std::string(option.name);
    name.resize(14, ' ');
    text += name + std::string(option.help) + "\n";
  }
  return text;
}

}  // namespace tessarin
