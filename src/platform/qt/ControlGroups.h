#pragma once

#include <sys/types.h>

#include <QDBusPendingCallWatcher>
#include <QObject>

namespace tessarin::ui {

/// The control groups of the session, as the manager of the user's services (systemd) keeps them. Main
/// thread; never waits.
class ControlGroups final : public QObject {
 public:
  /// Has our child put into a group of its own, so that it goes on when somebody freezes ours. Where nobody
  /// manages groups it stays where it is; the log says so, once, only where the manager refuses.
  void separate(pid_t child);

 private:
  void handleAnswer(QDBusPendingCallWatcher* call);

  bool hasComplained_ = false;
};

}  // namespace tessarin::ui
