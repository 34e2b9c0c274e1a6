#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "main/Desktop.h"
#include "main/Request.h"
#include "main/UnixSignals.h"
#include "main/Windows.h"
#include "platform/freedesktop/InstanceSocket.h"
#include "ui/WindowShortcuts.h"

class QApplication;

namespace tessarin {

/// The running instance: the desktop's backends with the controller on top, requests of later instances, and
/// an orderly end. Needs the application object.
class Program {
 public:
  Program(QApplication& application, UnixSignals& signals, const std::filesystem::path& resources,
          const std::filesystem::path& storage);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Until the user quits, the session ends or a signal asks for it. Returns the exit status.
  int run(bool opensSettings);

 private:
  void observeSession(QApplication& application, UnixSignals& signals);
  /// Gives memory back that only the start or a window needed.
  void restAfterWork();
  void listenForRequests(const std::filesystem::path& storage);
  Answer perform(const Request& request);
  Answer showSettings();
  void shutDown();
  void saveEverything();
  void stopProcess();

  Desktop desktop_;
  Windows windows_;
  AppDelegate controller_;
  ui::WindowShortcuts shortcuts_;
  Subscription trustObserver_;
  std::optional<freedesktop::InstanceSocket> requests_;
  std::unique_ptr<QSocketNotifier> requestNotifier_;
  QTimer rest_;
};

}  // namespace tessarin
