#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "main/CommandLine.h"
#include "main/Program.h"
#include "main/Resources.h"
#include "main/SessionKind.h"
#include "model/StorageFolder.h"
#include "platform/atspi/AccessibilityBus.h"
#include "platform/freedesktop/BaseFolders.h"
#include "platform/freedesktop/TrustRecord.h"
#include "platform/x11/Handles.h"

namespace tessarin {
namespace {

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;

freedesktop::TrustRecord trustRecord() {
  return freedesktop::TrustRecord(freedesktop::configFolder(processEnvironment));
}

int allow() {
  if (!trustRecord().allow()) return failure;
  std::puts("Tessarin may judge keys and write into other applications.");
  if (!atspi::AccessibilityBus::enable()) {
    std::puts("The session's accessibility could not be switched on; text will be pasted.");
  }
  return success;
}

int disallow() {
  if (!trustRecord().disallow()) return failure;
  std::puts("Tessarin no longer judges keys or writes into other applications.");
  return success;
}

int request(const std::string& what) {
  const auto answer = freedesktop::requestOfRunningInstance(applicationSupportFolder(), what);
  if (!answer) {
    std::fputs("tessarin: no running instance answers\n", stderr);
    return failure;
  }
  std::puts(answer->c_str());
  return success;
}

/// Qt would abort where no window can open; this says so in a sentence.
bool canOpenWindows() {
  if (std::getenv("QT_QPA_PLATFORM") != nullptr || isWaylandSession()) return true;
  const x11::Connection connection(xcb_connect(nullptr, nullptr));
  return xcb_connection_has_error(connection.get()) == 0;
}

int run(int argc, char** argv) {
  if (!canOpenWindows()) {
    std::fputs("tessarin: no display to open a window on; try from a desktop session\n", stderr);
    return failure;
  }
  const std::filesystem::path storage = applicationSupportFolder();
  const auto lock = freedesktop::FolderLock::acquire(storage);
  if (!lock) {
    std::fputs("tessarin: already running\n", stderr);
    return success;
  }
  UnixSignals signals;
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication application(argc, argv);
  QApplication::setApplicationName("tessarin");
  QApplication::setDesktopFileName("tessarin");
  Program program(application, signals, resourceFolder(std::filesystem::canonical("/proc/self/exe")),
                  storage);
  return program.run();
}

int start(int argc, char** argv) {
  const CommandLine line = CommandLine::parse({argv + 1, argv + argc});
  switch (line.action) {
    case CommandLine::Action::run:
      return run(argc, argv);
    case CommandLine::Action::help:
      std::fputs(usage().c_str(), stdout);
      return success;
    case CommandLine::Action::version:
      std::puts("tessarin " TESSARIN_VERSION);
      return success;
    case CommandLine::Action::allow:
      return allow();
    case CommandLine::Action::disallow:
      return disallow();
    case CommandLine::Action::toggle:
      return request("toggle");
    case CommandLine::Action::quit:
      return request("quit");
    case CommandLine::Action::unknown:
      break;
  }
  std::fprintf(stderr, "tessarin: unknown option %s\n%s", line.unknownOption.c_str(), usage().c_str());
  return wrongUsage;
}

}  // namespace
}  // namespace tessarin

int main(int argc, char** argv) {
  return tessarin::start(argc, argv);
}
