#include "platform/x11/WindowProperties.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>

#include "platform/x11/Atoms.h"
#include "platform/x11/Handles.h"

namespace tessarin::x11 {
namespace {

using PropertyReply = Owned<xcb_get_property_reply_t>;

xcb_get_property_cookie_t ask(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property) {
  constexpr std::uint32_t mostUnits = 4096;
  return xcb_get_property(connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, mostUnits);
}

PropertyReply take(xcb_connection_t* connection, xcb_get_property_cookie_t cookie) {
  xcb_generic_error_t* error = nullptr;
  PropertyReply reply(xcb_get_property_reply(connection, cookie, &error));
  const Owned<xcb_generic_error_t> windowHasGone(error);
  return reply;
}

std::string_view bytes(const PropertyReply& reply) {
  if (!reply || reply->format != 8) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())), reply->value_len};
}

std::vector<std::uint32_t> unitsOf(const PropertyReply& reply) {
  if (!reply || reply->format != 32) return {};
  const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {first, first + reply->value_len};
}

std::string untilZero(std::string_view text) {
  return std::string(text.substr(0, text.find('\0')));
}

std::string programOf(const std::vector<std::uint32_t>& pid) {
  if (pid.empty()) return {};
  std::error_code ignored;
  return std::filesystem::read_symlink("/proc/" + std::to_string(pid.front()) + "/exe", ignored).filename();
}

}  // namespace

WindowProperties::WindowProperties(xcb_connection_t* connection, Atoms& atoms, xcb_window_t root)
    : connection_(connection), atoms_(atoms), root_(root) {}

freedesktop::WindowIdentity WindowProperties::identity(xcb_window_t window) {
  const auto wmClass = ask(connection_, window, XCB_ATOM_WM_CLASS);
  const auto applicationId = ask(connection_, window, atoms_.atom("_GTK_APPLICATION_ID"));
  const auto pid = ask(connection_, window, atoms_.atom("_NET_WM_PID"));
  const auto classReply = take(connection_, wmClass);
  const std::string_view names = bytes(classReply);
  freedesktop::WindowIdentity identity;
  identity.windowInstance = untilZero(names);
  if (identity.windowInstance.size() < names.size()) {
    identity.windowClass = untilZero(names.substr(identity.windowInstance.size() + 1));
  }
  identity.applicationId = untilZero(bytes(take(connection_, applicationId)));
  identity.program = programOf(unitsOf(take(connection_, pid)));
  return identity;
}

bool WindowProperties::belongsInTaskBar(xcb_window_t window) {
  const auto states = units(window, "_NET_WM_STATE");
  const auto types = units(window, "_NET_WM_WINDOW_TYPE");
  const bool isSkipped = std::ranges::find(states, atoms_.atom("_NET_WM_STATE_SKIP_TASKBAR")) != states.end();
  // A list of kinds, the most fitting first; windows that say nothing are ordinary ones.
  const std::vector<xcb_atom_t> shown =
      atoms_.atoms({"_NET_WM_WINDOW_TYPE_NORMAL", "_NET_WM_WINDOW_TYPE_DIALOG"});
  const bool isOrdinary = types.empty() || std::ranges::find(shown, types.front()) != shown.end();
  return !isSkipped && isOrdinary;
}

std::vector<xcb_window_t> WindowProperties::managedWindows() {
  return units(root_, "_NET_CLIENT_LIST");
}

xcb_window_t WindowProperties::activeWindow() {
  return windowIn(root_, "_NET_ACTIVE_WINDOW");
}

xcb_window_t WindowProperties::managerWindow() {
  const xcb_window_t window = windowIn(root_, "_NET_SUPPORTING_WM_CHECK");
  // A window manager that was killed leaves its property on the root, but not its window.
  const bool isThere = window != XCB_WINDOW_NONE && windowIn(window, "_NET_SUPPORTING_WM_CHECK") == window;
  return isThere ? window : xcb_window_t{XCB_WINDOW_NONE};
}

xcb_window_t WindowProperties::identifiedWindow(xcb_window_t window) {
  constexpr int deepest = 64;
  for (int depth = 0; depth < deepest; ++depth) {
    if (!bytes(take(connection_, ask(connection_, window, XCB_ATOM_WM_CLASS))).empty()) return window;
    xcb_generic_error_t* error = nullptr;
    const Owned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, window), &error));
    const Owned<xcb_generic_error_t> windowHasGone(error);
    if (!tree || tree->parent == root_ || tree->parent == XCB_WINDOW_NONE) return window;
    window = tree->parent;
  }
  return window;
}

std::vector<std::uint32_t> WindowProperties::units(xcb_window_t window, const char* property) {
  return unitsOf(take(connection_, ask(connection_, window, atoms_.atom(property))));
}

xcb_window_t WindowProperties::windowIn(xcb_window_t window, const char* property) {
  const auto found = units(window, property);
  return found.empty() ? xcb_window_t{XCB_WINDOW_NONE} : found.front();
}

}  // namespace tessarin::x11
