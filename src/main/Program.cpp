#include "main/Program.h"

#include <QApplication>
#include <QTimer>

#include "base/Log.h"

namespace tessarin {
namespace {

AppDelegate::Services services(Desktop& desktop, QApplication& application,
                               const std::filesystem::path& resources, const std::filesystem::path& storage) {
  AppDelegate::Services result = desktop.services({resources, storage});
  // Later, so that a request is answered and a menu has closed before the loop ends.
  result.menu.quit = [&application] { QTimer::singleShot(0, &application, &QApplication::quit); };
  return result;
}

}  // namespace

Program::Program(QApplication& application, UnixSignals& signals, const std::filesystem::path& resources,
                 const std::filesystem::path& storage)
    : controller_(services(desktop_, application, resources, storage)) {
  signals.onTermination([&application] { application.quit(); });
  listenForRequests(storage);
}

Program::~Program() = default;

int Program::run() {
  controller_.applicationDidFinishLaunching();
  const int status = QApplication::exec();
  controller_.applicationWillTerminate();
  desktop_.shutdown();
  return status;
}

void Program::listenForRequests(const std::filesystem::path& storage) {
  requests_ = freedesktop::InstanceSocket::listen(storage);
  if (!requests_) return;
  requestNotifier_ = std::make_unique<QSocketNotifier>(requests_->descriptor(), QSocketNotifier::Read);
  QObject::connect(requestNotifier_.get(), &QSocketNotifier::activated, requestNotifier_.get(), [this] {
    requests_->serve([this](const std::string& request) { return answer(request); });
  });
}

std::string Program::answer(const std::string& request) {
  if (request == "toggle") {
    controller_.menuBarManager().toggleEnabled();
    return controller_.menuBarManager().isEnabled() ? "on" : "off";
  }
  if (request == "quit") {
    controller_.menuBarManager().quitApp();
    return "quitting";
  }
  return "unknown request";
}

}  // namespace tessarin
