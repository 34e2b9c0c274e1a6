#include "support/desktop/PrivateSession.h"

#include <fstream>
#include <stdexcept>

#include "platform/atspi/BusCalls.h"
#include "support/Eventually.h"

namespace tessarin::testing {
namespace {

namespace fs = std::filesystem;

atspi::MessagePtr askLauncher(const std::string& busAddress, const char* interface, const char* method,
                              const char* property) {
  const atspi::ConnectionPtr connection = atspi::connectTo(busAddress);
  if (!connection) return nullptr;
  const atspi::MessagePtr request(
      dbus_message_new_method_call("org.a11y.Bus", "/org/a11y/bus", interface, method));
  if (property != nullptr) {
    const char* owner = "org.a11y.Status";
    dbus_message_append_args(request.get(), DBUS_TYPE_STRING, &owner, DBUS_TYPE_STRING, &property,
                             DBUS_TYPE_INVALID);
  }
  return atspi::callAndWait(connection.get(), request.get(), std::chrono::seconds(5));
}

std::string configuration(const fs::path& folder) {
  return "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
         "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">"
         "<busconfig><type>session</type><listen>unix:path=" +
         (folder / "session").string() +
         "</listen><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
         "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>";
}

}  // namespace

PrivateSession::PrivateSession(const std::string& display) : display_(display) {
  dbus_threads_init_default();
  startBus();
  startAccessibility();
}

void PrivateSession::startBus() {
  const fs::path file = folder_.path() / "session.conf";
  std::ofstream(file) << configuration(folder_.path());
  bus_ = ChildProcess({"dbus-daemon", "--nofork", "--config-file=" + file.string(), "--print-address=3"},
                      environment(), &busAddress_);
  if (busAddress_.empty()) throw std::runtime_error("no session bus came up");
}

void PrivateSession::startAccessibility() {
  accessibility_ = start({"/usr/libexec/at-spi-bus-launcher", "--launch-immediately"});
  if (!eventually([this] { return atspi::connectTo(accessibilityBusAddress()) != nullptr; })) {
    throw std::runtime_error("no accessibility bus came up");
  }
}

void PrivateSession::stopAccessibility() {
  accessibility_.stop();
}

std::string PrivateSession::accessibilityBusAddress() const {
  const atspi::MessagePtr reply = askLauncher(busAddress_, "org.a11y.Bus", "GetAddress", nullptr);
  const char* address = nullptr;
  if (!reply || !dbus_message_get_args(reply.get(), nullptr, DBUS_TYPE_STRING, &address, DBUS_TYPE_INVALID)) {
    return {};
  }
  return address;
}

bool PrivateSession::isAccessibilityEnabled() const {
  const atspi::MessagePtr reply = askLauncher(busAddress_, DBUS_INTERFACE_PROPERTIES, "Get", "IsEnabled");
  DBusMessageIter iterator;
  DBusMessageIter value;
  dbus_bool_t enabled = FALSE;
  if (!reply || !dbus_message_iter_init(reply.get(), &iterator)) return false;
  dbus_message_iter_recurse(&iterator, &value);
  if (dbus_message_iter_get_arg_type(&value) == DBUS_TYPE_BOOLEAN) {
    dbus_message_iter_get_basic(&value, &enabled);
  }
  return enabled != FALSE;
}

std::vector<std::string> PrivateSession::environment() const {
  const std::string home = folder_.path().string();
  std::vector<std::string> variables{"HOME=" + home,
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
  if (!display_.empty()) variables.push_back(display_);
  return variables;
}

ChildProcess PrivateSession::start(const std::vector<std::string>& command) const {
  return ChildProcess(command, environment());
}

int PrivateSession::run(const std::vector<std::string>& command) const {
  return testing::run(command, environment());
}

}  // namespace tessarin::testing
