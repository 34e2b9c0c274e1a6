#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "platform/atspi/DBusHandles.h"

/// Blocking calls of the thread that follows the focus; the main thread has its CallChannel.
namespace tessarin::atspi {

/// The address of the session bus to use when none is given: that of the environment.
ConnectionPtr connectToSessionBus(const std::string& address);
/// A connection of our own, registered with the bus. None when there is no bus.
ConnectionPtr connectTo(const std::string& address);
/// None when no answer came in time or it was an error.
MessagePtr callAndWait(DBusConnection* connection, DBusMessage* request, std::chrono::milliseconds longest);

}  // namespace tessarin::atspi
