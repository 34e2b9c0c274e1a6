#pragma once

#include <QAbstractNativeEventFilter>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QObject>
#include <functional>
#include <memory>

namespace tessarin::ui {

/// Waits for a tray: a host of StatusNotifierItems on the session bus, or an old-style tray on the X server.
/// Qt looks for the former only when the program's first tray item is made, and never again, so that one
/// must not be made before there is a tray to be seen.
class TrayPresence final : public QObject, private QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  TrayPresence() = default;
  ~TrayPresence() override;

  /// `arrived` runs once, later, as soon as there is a tray; one of the bus goes before an old-style one.
  void waitForTray(std::function<void()> arrived);

 private:
  Q_SLOT void askForHost();
  void handleAnswer(QDBusPendingCallWatcher* call);
  void finish();
  bool hasOldStyleTray() const;
  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

  std::function<void()> arrived_;
  std::unique_ptr<QDBusServiceWatcher> watcher_;
  quint32 manager_ = 0;  ///< the atoms that announce an old-style tray
  quint32 selection_ = 0;
};

}  // namespace tessarin::ui
