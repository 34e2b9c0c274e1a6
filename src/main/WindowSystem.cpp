#include "main/WindowSystem.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <QDir>
#include <QLibraryInfo>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <utility>

#include "base/Environment.h"
#include "base/FileDescriptor.h"
#include "base/Log.h"
#include "platform/x11/Handles.h"

namespace tessarin {
namespace {

bool hasXServer() {
  const x11::Connection connection(xcb_connect(nullptr, nullptr));
  return xcb_connection_has_error(connection.get()) == 0;
}

bool isListenedTo(const std::filesystem::path& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string name = path.string();
  if (name.size() >= sizeof(address.sun_path)) return false;
  std::memcpy(static_cast<char*>(address.sun_path), name.data(), name.size());
  const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  return ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
}

/// Qt's part for Wayland is a package of its own.
bool hasWaylandCompositor() {
  const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
  if (plugins.entryList({QStringLiteral("libqwayland*")}).isEmpty()) return false;
  const std::filesystem::path folder = processEnvironment("XDG_RUNTIME_DIR").value_or("");
  return isListenedTo(folder / processEnvironment("WAYLAND_DISPLAY").value_or("wayland-0"));
}

std::function<void()>& workAtLoss() {
  static std::function<void()> work;
  return work;
}

/// Qt calls exit in the middle of the main loop.
void endHere() {
  const auto work = std::exchange(workAtLoss(), {});
  if (!work) return;
  work();
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

LostWindowSystem::LostWindowSystem(std::function<void()> work) {
  workAtLoss() = std::move(work);
  // After all that would be destroyed at the exit was made, so that it is still there.
  [[maybe_unused]] static const int registered = std::atexit(endHere);
}

LostWindowSystem::~LostWindowSystem() {
  workAtLoss() = {};
}

void logMessagesOfQt() {
  qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& message) { log("Qt", message.toStdString()); });
}

bool canOpenWindows() {
  const std::string wanted = processEnvironment("QT_QPA_PLATFORM").value_or("");
  if (wanted.starts_with("xcb")) return hasXServer();
  if (wanted.starts_with("wayland")) return hasWaylandCompositor();
  return !wanted.empty() || hasXServer() || hasWaylandCompositor();
}

}  // namespace tessarin
