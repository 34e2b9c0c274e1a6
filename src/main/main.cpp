#include <unistd.h>

#include <QApplication>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string_view>

#include "base/AtomicFile.h"
#include "base/Translate.h"
#include "main/CommandLine.h"
#include "main/Commands.h"
#include "main/Program.h"
#include "main/Resources.h"
#include "main/WindowSystem.h"
#include "model/StorageFolder.h"
#include "platform/freedesktop/BaseFolders.h"
#include "platform/freedesktop/DesktopEntry.h"
#include "platform/x11/SelectionKeeper.h"
#include "ui/Translations.h"
#include "ui/settings/ApplicationIcon.h"

namespace tessarin {
namespace {

/// What earlier instances left when they were killed, except what `--allow` may be writing just now.
void tidyUpPreferences() {
  const auto now = std::filesystem::file_time_type::clock::now();
  removeAbandonedReplacements(freedesktop::configFolder(processEnvironment), now - std::chrono::minutes(1));
}

int run(int argc, char** argv, bool opensSettings) {
  // Held to the end.
  const auto reached = commands::reachInstance({Request::Kind::settings, {}}, commands::answerTime);
  if (reached.answer) return commands::report(*reached.answer);
  if (!reached.folder) return commands::reportNoAnswer();
  if (!canOpenWindows()) {
    return commands::report(
        {false, translate("Commands", "no display to open a window on; try from a desktop session")});
  }
  tidyUpPreferences();
  UnixSignals signals;
  logMessagesOfQt();
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication application(argc, argv);
  // What trays and screen readers read out, and the class of our windows. Not the display name, which would
  // be added to every title.
  QApplication::setApplicationName("Tessarin");
  QApplication::setDesktopFileName("tessarin");
  ui::installTranslations(application);
  ui::searchIconsBeside(freedesktop::applicationFolders(processEnvironment));
  Program program(application, signals, resourceFolder(std::filesystem::canonical("/proc/self/exe")),
                  applicationSupportFolder());
  return program.run(opensSettings);
}

int start(int argc, char** argv) {
  using Action = CommandLine::Action;
  const bool keepsSelections = argc == 2 && std::string_view(argv[1]) == x11::SelectionKeeper::option;
  if (keepsSelections) return x11::SelectionKeeper::run(STDIN_FILENO, STDOUT_FILENO);
  ui::installTerminalTranslations();
  const CommandLine line = CommandLine::parse({argv + 1, argv + argc});
  switch (line.action) {
    case Action::run:
    case Action::settings:
      return run(argc, argv, line.action == Action::settings);
    case Action::help:
      std::fputs(usage().c_str(), stdout);
      return commands::success;
    case Action::version:
      std::puts("tessarin " TESSARIN_VERSION);
      return commands::success;
    case Action::allow:
      return commands::allow();
    case Action::disallow:
      return commands::disallow();
    case Action::toggle:
      return commands::request(Request::Kind::toggle);
    case Action::quit:
      return commands::request(Request::Kind::quit);
    case Action::importFile:
    case Action::exportFile:
    case Action::add:
    case Action::remove:
      return commands::change(line);
    case Action::list:
      return commands::list(line);
    case Action::search:
      return commands::search(line);
    case Action::wrongUsage:
      break;
  }
  std::fprintf(stderr, "tessarin: %s\n%s", line.argument.c_str(), usage().c_str());
  return commands::wrongUsage;
}

}  // namespace
}  // namespace tessarin

int main(int argc, char** argv) {
  return tessarin::start(argc, argv);
}
