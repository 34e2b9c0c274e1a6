#pragma once

#include <atomic>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/atspi/DBusHandles.h"
#include "platform/atspi/FocusModel.h"

namespace tessarin::atspi {

/// Listens on one connection to the accessibility bus and keeps the FocusModel up to date. All of it on the
/// watcher's thread.
class FocusEvents {
 public:
  /// `isStopping`: ends a search early.
  FocusEvents(ConnectionPtr connection, std::uint32_t ownProcess, const std::atomic<bool>& isStopping);
  ~FocusEvents();
  FocusEvents(const FocusEvents&) = delete;
  FocusEvents& operator=(const FocusEvents&) = delete;

  bool isConnected() const { return dbus_connection_get_is_connected(connection_.get()); }
  /// For poll; -1 when there is none.
  int fd() const;
  /// Whether something has been read off the connection and not been judged.
  bool hasUnread() const {
    return dbus_connection_get_dispatch_status(connection_.get()) == DBUS_DISPATCH_DATA_REMAINS;
  }
  /// Judges everything that has come.
  void takeIn();
  /// Looks for the focused element when no event has told it. False when events cut it short.
  bool search();
  /// Whether there is still something to look for: a window's focused element; or any window at all, as long
  /// as none has told of itself. One that was opened while we began to listen may have told nobody.
  bool hasToSearch() const { return model_.windowToSearch() || hasHeardOfNoWindow(); }

  const FocusModel& model() const { return model_; }
  /// Whether the focus has moved since the last time it was asked.
  bool takeMoved() { return std::exchange(moved_, false); }

 private:
  static DBusHandlerResult onMessage(DBusConnection* connection, DBusMessage* message, void* self);
  void addMatches();
  void registerEvents();
  void onStateChanged(DBusMessage* message);
  void onFocused(const ObjectReference& element);
  void moveTo(const ObjectReference& element);
  void onWindow(DBusMessage* message);
  void onNameOwnerChanged(DBusMessage* message);
  bool isOurs(const std::string& bus);
  bool hasHeardOfNoWindow() const {
    return model_.activations() == 0 && model_.focus() == FocusModel::Focus{};
  }

  ConnectionPtr connection_;
  const std::uint32_t ownProcess_;
  const std::atomic<bool>& isStopping_;
  FocusModel model_;
  std::map<std::string, bool> ours_;
  bool moved_ = false;
  bool mustRegister_ = true;
};

}  // namespace tessarin::atspi
