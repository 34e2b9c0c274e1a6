#include "platform/freedesktop/AutostartLoginItem.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <exception>
#include <sstream>
#include <string_view>
#include <utility>

#include "base/AtomicFile.h"
#include "base/Files.h"
#include "platform/freedesktop/BaseFolders.h"
#include "platform/freedesktop/DesktopEntryText.h"

namespace tessarin::freedesktop {
namespace {

namespace fs = std::filesystem;

constexpr const char* fileName = "tessarin.desktop";
constexpr const char* sessionSwitch = "X-GNOME-Autostart-enabled";
/// What an entry of ours may hold.
constexpr std::array<std::string_view, 8> ownKeys = {"Type",    "Name",   "Comment",  "Exec",
                                                     "TryExec", "Hidden", "Terminal", sessionSwitch};

std::vector<std::string> split(const std::string& list, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(list);
  for (std::string part; std::getline(stream, part, separator);) {
    if (!part.empty()) parts.push_back(part);
  }
  return parts;
}

std::vector<std::string> listed(const Environment& environment, const char* variable, const char* fallback) {
  const std::string list = environment(variable).value_or("");
  return split(list.empty() ? fallback : list, ':');
}

bool isTrue(const DesktopEntryText& entry, std::string_view key, bool whenAbsent = false) {
  const auto value = entry.value(key);
  return value ? *value == "true" : whenAbsent;
}

bool shareOne(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  return std::ranges::find_first_of(a, b) != a.end();
}

bool isOurs(const DesktopEntryText& entry) {
  return !entry.hasMore() && std::ranges::all_of(entry.keys(), [](const std::string& key) {
    return std::ranges::find(ownKeys, key) != ownKeys.end();
  });
}

template <class Change>
std::optional<std::string> failureOf(Change change) {
  try {
    change();
    return std::nullopt;
  } catch (const std::exception& error) {
    return error.what();
  }
}

}  // namespace

AutostartLoginItem::AutostartLoginItem(fs::path program, const Environment& environment)
    : program_(std::move(program)),
      file_(configFolder(environment).parent_path() / "autostart" / fileName),
      desktops_(listed(environment, "XDG_CURRENT_DESKTOP", "")),
      path_(listed(environment, "PATH", "/usr/local/bin:/usr/bin:/bin")) {
  for (const std::string& folder : listed(environment, "XDG_CONFIG_DIRS", "/etc/xdg")) {
    if (fs::path(folder).is_absolute()) systemFiles_.push_back(fs::path(folder) / "autostart" / fileName);
  }
}

std::optional<std::string> AutostartLoginItem::registerItem() {
  return failureOf([this] { enable(); });
}

std::optional<std::string> AutostartLoginItem::unregisterItem() {
  return failureOf([this] { disable(); });
}

bool AutostartLoginItem::isEnabled() {
  try {
    // The first file that is there decides, whatever it says.
    if (const auto own = readFileIfPresent(file_)) return starts(DesktopEntryText(*own));
    for (const fs::path& file : systemFiles_) {
      if (const auto content = readFileIfPresent(file)) return starts(DesktopEntryText(*content));
    }
  } catch (const std::exception&) {
    // What we cannot read the desktop cannot read either.
  }
  return false;
}

bool AutostartLoginItem::starts(const DesktopEntryText& entry) const {
  if (isTrue(entry, "Hidden") || !isTrue(entry, sessionSwitch, true)) return false;
  if (entry.value("Exec").value_or("").empty() || !isForThisDesktop(entry)) return false;
  const auto needed = entry.value("TryExec");
  return !needed || needed->empty() || isProgram(*needed);
}

bool AutostartLoginItem::isForThisDesktop(const DesktopEntryText& entry) const {
  const auto only = entry.value("OnlyShowIn");
  if (only && !shareOne(split(*only, ';'), desktops_)) return false;
  return !shareOne(split(entry.value("NotShowIn").value_or(""), ';'), desktops_);
}

bool AutostartLoginItem::isProgram(const std::string& name) const {
  if (name.find('/') != std::string::npos) return ::access(name.c_str(), X_OK) == 0;
  return std::ranges::any_of(
      path_, [&](const std::string& folder) { return ::access((folder + "/" + name).c_str(), X_OK) == 0; });
}

bool AutostartLoginItem::hasSystemEntry() const {
  return std::ranges::any_of(systemFiles_, [](const fs::path& file) {
    std::error_code ignored;
    return fs::exists(file, ignored);
  });
}

void AutostartLoginItem::write(const DesktopEntryText& entry) const {
  createFolders(file_.parent_path());
  replaceFile(file_, entry.content(), Durability::powerCut);
}

void AutostartLoginItem::enable() const {
  DesktopEntryText entry(readFileIfPresent(file_).value_or(""));
  entry.set("Type", "Application");
  if (!entry.value("Name")) entry.set("Name", "Tessarin");
  entry.set("Exec", quotedArgument(program_.string()));
  // The entry of a program that was taken away must not fail at every login.
  entry.set("TryExec", program_.string());
  entry.remove("Hidden");
  if (entry.value(sessionSwitch)) entry.set(sessionSwitch, "true");
  if (!isForThisDesktop(entry)) {
    entry.remove("OnlyShowIn");
    entry.remove("NotShowIn");
  }
  write(entry);
}

void AutostartLoginItem::disable() const {
  const auto content = readFileIfPresent(file_);
  if (!content && !hasSystemEntry()) return;
  DesktopEntryText entry(content.value_or(""));
  if (isOurs(entry) && !hasSystemEntry()) {
    fs::remove(file_);
    return;
  }
  if (!content) {
    entry.set("Type", "Application");
    entry.set("Name", "Tessarin");
  }
  entry.set("Hidden", "true");
  write(entry);
}

}  // namespace tessarin::freedesktop
