#include "platform/freedesktop/DesktopEntry.h"

#include <map>
#include <utility>

#include "platform/freedesktop/DesktopEntryText.h"

namespace tessarin::freedesktop {
namespace {

using Keys = std::map<std::string, std::string, std::less<>>;

Keys readMainGroup(std::string_view content) {
  Keys keys;
  bool isMainGroup = false;
  while (!content.empty()) {
    const auto end = content.find('\n');
    const std::string_view line = trimmed(content.substr(0, end));
    content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
    if (line.empty() || line.front() == '#') continue;
    if (line.front() == '[') {
      if (isMainGroup) break;
      isMainGroup = line == "[Desktop Entry]";
      continue;
    }
    const auto equals = line.find('=');
    if (!isMainGroup || equals == std::string_view::npos) continue;
    keys.emplace(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
  }
  return keys;
}

std::string value(const Keys& keys, std::string_view key) {
  const auto found = keys.find(key);
  return found == keys.end() ? std::string() : unescaped(found->second);
}

std::string localizedName(const Keys& keys, const std::vector<std::string>& locales) {
  for (const auto& locale : locales) {
    if (auto name = value(keys, "Name[" + locale + "]"); !name.empty()) return name;
  }
  return value(keys, "Name");
}

bool lists(const Keys& keys, std::string_view key, std::string_view wanted) {
  const auto found = keys.find(key);
  if (found == keys.end()) return false;
  return (";" + found->second + ";").find(";" + std::string(wanted) + ";") != std::string::npos;
}

/// The file name of the first word of a command line.
std::string programOf(std::string_view command) {
  const bool isQuoted = command.starts_with('"');
  if (isQuoted) command.remove_prefix(1);
  command = command.substr(0, command.find(isQuoted ? '"' : ' '));
  return std::string(command.substr(command.rfind('/') + 1));
}

}  // namespace

std::vector<std::string> localeCandidates(std::string_view locale) {
  std::string modifier;
  if (const auto at = locale.find('@'); at != std::string_view::npos) {
    modifier = locale.substr(at);
    locale = locale.substr(0, at);
  }
  const std::string full(locale.substr(0, locale.find('.')));
  const std::string language = full.substr(0, full.find('_'));
  if (language.empty() || language == "C" || language == "POSIX") return {};
  std::vector<std::string> candidates;
  for (const std::string& base : {full, language}) {
    if (!candidates.empty() && candidates.back() == base) break;  // there is no country
    if (!modifier.empty()) candidates.push_back(base + modifier);
    candidates.push_back(base);
  }
  return candidates;
}

std::optional<DesktopEntry> parseDesktopEntry(std::string_view content,
                                              const std::vector<std::string>& locales) {
  const Keys keys = readMainGroup(content);
  DesktopEntry entry;
  entry.isHidden = value(keys, "Hidden") == "true";
  entry.name = localizedName(keys, locales);
  const bool isApplication = value(keys, "Type") == "Application" && !entry.name.empty();
  if (!isApplication && !entry.isHidden) return std::nullopt;
  entry.icon = value(keys, "Icon");
  entry.startupWmClass = value(keys, "StartupWMClass");
  entry.program = programOf(value(keys, "Exec"));
  entry.isTerminalEmulator = lists(keys, "Categories", "TerminalEmulator");
  return entry;
}

}  // namespace tessarin::freedesktop
