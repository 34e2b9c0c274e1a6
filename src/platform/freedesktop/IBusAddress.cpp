#include "platform/freedesktop/IBusAddress.h"

#include <dbus/dbus.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <string_view>

#include "platform/freedesktop/BaseFolders.h"

namespace tessarin::freedesktop {
namespace {

/// "unix-0" for ":0" and ":0.1", "host-0" for "host:0".
std::string displayPart(const std::string& display) {
  const auto colon = display.rfind(':');
  if (colon == std::string::npos) return "unix-0";
  const std::string host = colon == 0 ? "unix" : display.substr(0, colon);
  const auto number = display.substr(colon + 1);
  return host + "-" + number.substr(0, number.find('.'));
}

std::string machineId() {
  char* id = dbus_try_get_local_machine_id(nullptr);
  if (id == nullptr) return {};
  std::string text = id;
  dbus_free(id);
  return text;
}

std::filesystem::path addressFile(const Environment& environment) {
  if (const auto given = environment("IBUS_ADDRESS_FILE")) return *given;
  return configFolder(environment).parent_path() / "ibus" / "bus" /
         (machineId() + "-" + displayPart(environment("DISPLAY").value_or("")));
}

}  // namespace

IBusAddress::IBusAddress(const Environment& environment)
    : fixed_(environment("IBUS_ADDRESS").value_or("")), path_(addressFile(environment)) {}

std::string IBusAddress::read() {
  if (!fixed_.empty()) return fixed_;
  takeInChanges();
  constexpr std::string_view key = "IBUS_ADDRESS=";
  std::ifstream file(path_);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(key)) return line.substr(key.size());
  }
  return {};
}

void IBusAddress::takeInChanges() {
  if (!changes_) {
    FileDescriptor changes(inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
    const auto folder = path_.parent_path();
    if (inotify_add_watch(changes.get(), folder.c_str(), IN_CLOSE_WRITE | IN_MOVED_TO | IN_ONLYDIR) >= 0) {
      changes_ = std::move(changes);
    }
    return;
  }
  std::array<char, 4096> events{};
  while (::read(changes_.get(), events.data(), events.size()) > 0) {
  }
}

}  // namespace tessarin::freedesktop
