#include "main/Program.h"

#include <QApplication>
#include <QSessionManager>
#include <csignal>

#include "base/ProgramPages.h"
#include "base/Translate.h"
#include "main/SnippetCommands.h"
#include "main/WindowSystem.h"

namespace tessarin {
namespace {

/// From the start and from the closing of the last window: by then the keyboard is watched, and nothing is
/// drawn.
constexpr std::chrono::seconds timeUntilRest{3};

AppDelegate::Services services(Desktop& desktop, Windows& windows, QApplication& application,
                               const std::filesystem::path& resources, const std::filesystem::path& storage) {
  AppDelegate::Services result = desktop.services({resources, storage});
  result.startUpdateService = [&windows] { windows.startUpdateService(); };
  result.showOnboardingWindow = [&windows] { windows.showOnboarding(); };
  result.menu.checkForUpdates = [&windows] { windows.checkForUpdates(); };
  result.menu.openSettings = [&windows](SnippetStore* store) {
    if (store) windows.openSettings(*store);
  };
  // Later, so that a request is answered and a menu has closed before the loop ends.
  result.menu.quit = [&application] { QTimer::singleShot(0, &application, &QApplication::quit); };
  return result;
}

}  // namespace

Program::Program(QApplication& application, UnixSignals& signals, const std::filesystem::path& resources,
                 const std::filesystem::path& storage)
    : windows_(desktop_),
      controller_(services(desktop_, windows_, application, resources, storage)),
      shortcuts_({.quit = [this] { controller_.menuBarManager().quitApp(); },
                  .openSettings = [this] { showSettings(); }}) {
  trustObserver_ = desktop_.trust().onChange([this] { controller_.followTrust(); });
  observeSession(application, signals);
  listenForRequests(storage);
}

Program::~Program() = default;

int Program::run(bool opensSettings) {
  controller_.applicationDidFinishLaunching();
  if (opensSettings) showSettings();
  restAfterWork();
  const LostWindowSystem lost([this] { saveEverything(); });
  return QApplication::exec();
}

void Program::saveEverything() {
  controller_.applicationWillTerminate();
  desktop_.saveWhatIsMissing();
}

// What the signal itself does would leave keys held, for which nobody is there to answer.
void Program::stopProcess() {
  controller_.endCollecting();
  QGuiApplication::sync();
  desktop_.withoutKeyboard([] { std::raise(SIGSTOP); });
}

void Program::observeSession(QApplication& application, UnixSignals& signals) {
  signals.listen([&application] { application.quit(); }, [this] { stopProcess(); });
  // At the end of a session the loop may never return.
  QObject::connect(&application, &QApplication::aboutToQuit, &application, [this] { shutDown(); });
  // What starts us at login is the login item alone.
  QObject::connect(
      &application, &QApplication::saveStateRequest, &application,
      [](QSessionManager& session) { session.setRestartHint(QSessionManager::RestartNever); },
      Qt::DirectConnection);
}

void Program::restAfterWork() {
  rest_.setSingleShot(true);
  rest_.setInterval(timeUntilRest);
  QObject::connect(&rest_, &QTimer::timeout, &rest_, [] { restProgramPages(); });
  QObject::connect(qApp, &QGuiApplication::lastWindowClosed, &rest_, qOverload<>(&QTimer::start));
  rest_.start();
}

void Program::listenForRequests(const std::filesystem::path& storage) {
  requests_ = freedesktop::InstanceSocket::listen(storage);
  if (!requests_) return;
  requestNotifier_ = std::make_unique<QSocketNotifier>(requests_->descriptor(), QSocketNotifier::Read);
  QObject::connect(requestNotifier_.get(), &QSocketNotifier::activated, requestNotifier_.get(), [this] {
    requests_->serve([this](const std::string& line) {
      const auto request = Request::decode(line);
      return (request ? perform(*request) : Answer{false, translate("Program", "unknown request")}).encoded();
    });
  });
}

Answer Program::perform(const Request& request) {
  switch (request.kind) {
    case Request::Kind::settings:
      return showSettings();
    case Request::Kind::toggle:
      return {true, controller_.toggleEnabled() ? translate("Program", "on") : translate("Program", "off")};
    case Request::Kind::quit:
      controller_.menuBarManager().quitApp();
      return {true, translate("Program", "quitting")};
    case Request::Kind::trust:
      desktop_.trust().reload();
      return {controller_.hasFollowedTrust(), {}};
    case Request::Kind::importFile:
    case Request::Kind::exportFile:
    case Request::Kind::add:
    case Request::Kind::remove:
      return carryOut(controller_.snippetStore(), request);
  }
  return {false, translate("Program", "unknown request")};
}

Answer Program::showSettings() {
  if (!controller_.menuBarManager().canOpenSettings())
    return {false, translate("Program", "no settings window")};
  controller_.endCollecting();
  controller_.menuBarManager().openSettings();
  return {true, translate("Program", "settings")};
}

void Program::shutDown() {
  controller_.applicationWillTerminate();
  windows_.close();
  desktop_.shutdown();
}

}  // namespace tessarin
