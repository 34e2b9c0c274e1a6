#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "Check.h"
#include "platform/freedesktop/ApplicationMatcher.h"
#include "platform/freedesktop/DesktopEntry.h"
#include "platform/freedesktop/DesktopEntryText.h"
#include "support/TemporaryFolder.h"

namespace tessarin::fuzz {
namespace {

using freedesktop::DesktopEntryText;

std::map<std::string, std::string> valuesOf(const DesktopEntryText& text) {
  std::map<std::string, std::string> values;
  for (const std::string& key : text.keys()) {
    const auto value = text.value(key);
    check(value.has_value(), "every key has a value");
    values[key] = *value;
  }
  return values;
}

/// The two readers see the same.
void checkEntry(const std::string& content, const DesktopEntryText& text) {
  const auto entry = freedesktop::parseDesktopEntry(content, freedesktop::localeCandidates("de_AT@euro"));
  if (!entry) return;
  check(entry->icon == text.value("Icon").value_or(""), "an icon is what the text says");
  check(entry->startupWmClass == text.value("StartupWMClass").value_or(""), "a class is what the text says");
  check(entry->isHidden == (text.value("Hidden") == "true"), "hidden is what the text says");
  check(entry->program.find('/') == std::string::npos, "a program is a file name");
}

void checkChange(const std::string& content, const std::string& value) {
  DesktopEntryText text(content);
  auto expected = valuesOf(text);
  const bool hadMore = text.hasMore();
  text.set("Name", value);
  expected["Name"] = value;
  check(valuesOf(DesktopEntryText(text.content())) == expected, "one key changes, the others stay");
  check(text.hasMore() == hadMore, "a change leaves the rest of the text");
  text.set("Type", "Application");
  const auto entry = freedesktop::parseDesktopEntry(text.content(), {});
  if (!value.empty()) check(entry && entry->name == value, "the name written is the name read");
  text.remove("Name");
  check(!text.value("Name").has_value(), "what is removed is gone");
}

/// The word that a quoted argument stands for.
std::string unquoted(std::string_view argument) {
  const bool isQuoted = argument.starts_with('"');
  if (isQuoted) argument = argument.substr(1, argument.size() - 2);
  std::string word;
  for (std::size_t i = 0; i < argument.size(); ++i) {
    if (isQuoted && argument[i] == '\\') ++i;
    if (argument[i] == '%') ++i;
    word += argument.substr(i, 1);
  }
  return word;
}

void checkText(const std::string& text) {
  check(freedesktop::unescaped(freedesktop::escaped(text)) == text, "escaping can be undone");
  check(unquoted(freedesktop::quotedArgument(text)) == text, "quoting can be undone");
  const auto locales = freedesktop::localeCandidates(text);
  check(std::set<std::string>(locales.begin(), locales.end()).size() == locales.size(),
        "no locale is tried twice");
}

/// An installed application is found by the class of its windows, whatever it is.
void checkMatcher(const std::string& content, const std::string& windowName) {
  static const testing::TemporaryFolder folder;
  folder.write("some.program.desktop", content);
  const freedesktop::ApplicationMatcher matcher(std::make_shared<freedesktop::DesktopEntries>(
      std::vector<std::filesystem::path>{folder.path()}, std::vector<std::string>{}));
  const auto entry = freedesktop::parseDesktopEntry(content, {});
  if (entry && !entry->isHidden && !entry->startupWmClass.empty()) {
    const auto found = matcher.applicationOf({.windowClass = entry->startupWmClass});
    check(found && found->name == entry->name, "a window belongs to the entry of its class");
  }
  const auto any = matcher.applicationOf({windowName, windowName, "other", windowName});
  check(any && !any->name.empty() && !any->bundleIdentifier.empty(), "a window with a class has a name");
}

}  // namespace
}  // namespace tessarin::fuzz

/// The first line is a text by itself, the others are an entry.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarin;
  const std::string_view input = fuzz::asText(data, size);
  const std::size_t end = std::min(input.find('\n'), input.size());
  const std::string line(input.substr(0, end));
  const std::string content(input.substr(std::min(end + 1, input.size())));

  const freedesktop::DesktopEntryText text(content);
  const freedesktop::DesktopEntryText again(text.content());
  fuzz::check(again.content() == text.content(), "a text that was written is read as it is");
  fuzz::check(fuzz::valuesOf(again) == fuzz::valuesOf(text), "its values are, too");
  fuzz::checkEntry(content, text);
  fuzz::checkChange(content, line);
  fuzz::checkText(line);
  fuzz::checkText(content);
  fuzz::checkMatcher(content, line);
  return 0;
}
