#pragma once

#include <stdexcept>

#include "platform/atspi/BusCalls.h"
#include "support/Eventually.h"
#include "support/TemporaryFolder.h"
#include "support/desktop/ChildProcess.h"

namespace tessarin::testing {

inline std::string configuration(const std::filesystem::path& folder) {
  return "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
         "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">"
         "<busconfig><type>session</type><listen>unix:path=" +
         (folder / "session").string() +
         "</listen><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
         "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>";
}

/// A desktop session of the test's own: a session bus that starts no services, an accessibility bus, and home
/// folders in a temporary folder. All of it ends with this object.
class PrivateSession {
 public:
  /// Answers once both buses are there. Throws std::runtime_error when one does not come up.
  PrivateSession() {
    dbus_threads_init_default();
    startBus();
    startAccessibility();
  }

  void stopAccessibility() { accessibility_.stop(); }
  /// Answers once the accessibility bus is there.
  void startAccessibility() {
    accessibility_ =
        ChildProcess({"/usr/libexec/at-spi-bus-launcher", "--launch-immediately"}, environment());
    if (!eventually([this] { return atspi::connectTo(accessibilityBusAddress()) != nullptr; })) {
      throw std::runtime_error("no accessibility bus came up");
    }
  }
  const std::string& busAddress() const { return busAddress_; }
  std::string accessibilityBusAddress() const {
    const atspi::ConnectionPtr connection = atspi::connectTo(busAddress_);
    if (!connection) return {};
    const atspi::MessagePtr request(
        dbus_message_new_method_call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
    const atspi::MessagePtr reply =
        atspi::callAndWait(connection.get(), request.get(), std::chrono::seconds(5));
    const char* address = nullptr;
    if (!reply ||
        !dbus_message_get_args(reply.get(), nullptr, DBUS_TYPE_STRING, &address, DBUS_TYPE_INVALID)) {
      return {};
    }
    return address;
  }

 private:
  std::vector<std::string> environment() const {
    const std::string home = folder_.path().string();
    return {"HOME=" + home,
            "XDG_CONFIG_HOME=" + home + "/config",
            "XDG_DATA_HOME=" + home + "/data",
            "XDG_CACHE_HOME=" + home + "/cache",
            "XDG_STATE_HOME=" + home + "/state",
            "XDG_RUNTIME_DIR=" + home,
            "DBUS_SESSION_BUS_ADDRESS=" + busAddress_,
            "GSETTINGS_BACKEND=memory",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1",
            "LANG=C.UTF-8",
            "LC_ALL=C.UTF-8"};
  }
  void startBus() {
    folder_.write("session.conf", configuration(folder_.path()));
    const std::string file = folder_ / "session.conf";
    bus_ = ChildProcess({"dbus-daemon", "--nofork", "--config-file=" + file, "--print-address=3"},
                        environment(), &busAddress_);
    if (busAddress_.empty()) throw std::runtime_error("no session bus came up");
  }

  TemporaryFolder folder_;
  std::string busAddress_;
  ChildProcess bus_;
  ChildProcess accessibility_;
};

}  // namespace tessarin::testing
