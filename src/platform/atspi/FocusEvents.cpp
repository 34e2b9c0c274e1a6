#include "platform/atspi/FocusEvents.h"

#include <string_view>
#include <utility>

#include "platform/atspi/BusCalls.h"
#include "platform/atspi/FocusSearch.h"
#include "platform/atspi/Messages.h"

namespace tessarin::atspi {
namespace {

constexpr const char* objectEvents = "org.a11y.atspi.Event.Object";
constexpr const char* windowEvents = "org.a11y.atspi.Event.Window";
constexpr const char* registry = "org.a11y.atspi.Registry";
constexpr std::chrono::milliseconds longestCall{1000};

// GTK 4 writes the window events in lower case. An application that leaves the bus gives its unique name up
// without a new owner.
constexpr const char* matches[] = {
    "type='signal',interface='org.a11y.atspi.Event.Object',member='StateChanged',arg0='focused'",
    "type='signal',interface='org.a11y.atspi.Event.Window',member='Activate'",
    "type='signal',interface='org.a11y.atspi.Event.Window',member='activate'",
    "type='signal',interface='org.a11y.atspi.Event.Window',member='Deactivate'",
    "type='signal',interface='org.a11y.atspi.Event.Window',member='deactivate'",
    "type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',arg2=''",
    "type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',arg0='org.a11y.atspi.Registry'",
};

constexpr const char* wantedEvents[] = {"object:state-changed:focused", "window:activate",
                                        "window:deactivate"};

std::optional<ObjectReference> sender(DBusMessage* message) {
  const char* bus = dbus_message_get_sender(message);
  const char* path = dbus_message_get_path(message);
  if (bus == nullptr || path == nullptr) return std::nullopt;
  return ObjectReference{bus, path};
}

}  // namespace

FocusEvents::FocusEvents(ConnectionPtr connection, std::uint32_t ownProcess,
                         const std::atomic<bool>& isStopping)
    : connection_(std::move(connection)), ownProcess_(ownProcess), isStopping_(isStopping) {
  dbus_connection_add_filter(connection_.get(), &onMessage, this, nullptr);
  addMatches();
  registerEvents();
}

FocusEvents::~FocusEvents() {
  dbus_connection_remove_filter(connection_.get(), &onMessage, this);
}

int FocusEvents::fd() const {
  int fd = -1;
  return dbus_connection_get_unix_fd(connection_.get(), &fd) ? fd : -1;
}

void FocusEvents::addMatches() {
  // Without an error to fill, the bus is not waited for.
  for (const char* match : matches) dbus_bus_add_match(connection_.get(), match, nullptr);
}

void FocusEvents::registerEvents() {
  mustRegister_ = false;
  for (const char* event : wantedEvents) {
    const MessagePtr request = methodCall({registry, "/org/a11y/atspi/registry"}, registry, "RegisterEvent");
    dbus_message_append_args(request.get(), DBUS_TYPE_STRING, &event, DBUS_TYPE_INVALID);
    dbus_message_set_no_reply(request.get(), TRUE);
    dbus_connection_send(connection_.get(), request.get(), nullptr);
  }
  dbus_connection_flush(connection_.get());
}

void FocusEvents::takeIn() {
  dbus_connection_read_write(connection_.get(), 0);
  while (dbus_connection_dispatch(connection_.get()) == DBUS_DISPATCH_DATA_REMAINS) {
  }
  if (mustRegister_) registerEvents();
}

DBusHandlerResult FocusEvents::onMessage(DBusConnection*, DBusMessage* message, void* self) {
  auto* events = static_cast<FocusEvents*>(self);
  if (dbus_message_is_signal(message, objectEvents, "StateChanged")) {
    events->onStateChanged(message);
  } else if (dbus_message_has_interface(message, windowEvents)) {
    events->onWindow(message);
  } else if (dbus_message_is_signal(message, DBUS_INTERFACE_DBUS, "NameOwnerChanged")) {
    events->onNameOwnerChanged(message);
  }
  return DBUS_HANDLER_RESULT_NOT_YET_HANDLED;
}

void FocusEvents::onStateChanged(DBusMessage* message) {
  MessageReader reader(message);
  const auto state = reader.string();
  const auto isSet = reader.int32();
  const auto element = sender(message);
  if (state != "focused" || !isSet || !element) return;
  if (*isSet == 0) {
    model_.elementUnfocused(*element);
  } else if (isOurs(element->bus)) {
    model_.ownFocused();
  } else {
    onFocused(*element);
  }
}

void FocusEvents::onFocused(const ObjectReference& element) {
  const auto& known = model_.focus().window;
  // Taken back what was let go: its window, or the process of the active one, tells whether that is so.
  // Asking around would keep the application busy at every key that is held for its verdict.
  if (!known && model_.lost().element == element && model_.lost().window) return;
  if (!known || known->bus != element.bus) {
    // Windows in the background move their focus about, too. Believing them would write into the wrong one.
    FocusSearch search(connection_.get(), [this] { return isStopping_.load(); });
    const auto window = search.windowOf(element);
    if (window && !search.isActive(*window)) return;
    if (window) model_.windowActivated(*window);
  }
  moveTo(element);
}

/// A browser says of the pane around the page that it has the focus whenever its window gets it back, also
/// after every key that was held for its verdict, and the text field in the page never lost it.
void FocusEvents::moveTo(const ObjectReference& element) {
  const auto last = model_.lastElement();
  if (last && last->bus == element.bus && *last != element) {
    FocusSearch search(connection_.get(), [this] { return isStopping_.load(); });
    if (search.isFocused(*last)) {
      model_.elementFocused(search.isEditable(*last) ? *last : element);
      return;
    }
  }
  if (model_.elementFocused(element)) moved_ = true;
}

void FocusEvents::onWindow(DBusMessage* message) {
  const std::string_view member = dbus_message_get_member(message);
  const auto window = sender(message);
  if (!window) return;
  if (member == "Deactivate" || member == "deactivate") {
    model_.windowDeactivated(*window);
  } else if (member == "Activate" || member == "activate") {
    isOurs(window->bus) ? model_.ownFocused() : model_.windowActivated(*window);
  }
}

void FocusEvents::onNameOwnerChanged(DBusMessage* message) {
  MessageReader reader(message);
  const auto name = reader.string();
  reader.string();
  const auto newOwner = reader.string();
  if (!name || !newOwner) return;
  if (*name == registry && !newOwner->empty()) mustRegister_ = true;
  if (newOwner->empty()) {
    ours_.erase(*name);
    model_.applicationGone(*name);
  }
}

bool FocusEvents::isOurs(const std::string& bus) {
  const auto known = ours_.find(bus);
  if (known != ours_.end()) return known->second;
  const MessagePtr reply = callAndWait(connection_.get(), processQuery(bus).get(), longestCall);
  const auto process = MessageReader(reply.get()).uint32();
  return ours_[bus] = process == ownProcess_;
}

bool FocusEvents::search() {
  bool wasCutShort = false;
  FocusSearch search(connection_.get(), [this, &wasCutShort] {
    // What has come meanwhile is newer than anything that the search can find.
    wasCutShort = isStopping_ || hasUnread();
    return wasCutShort;
  });
  if (const auto window = model_.windowToSearch()) {
    if (const auto element = search.inWindow(*window)) model_.found({element, window});
  } else if (hasHeardOfNoWindow()) {
    const auto focus = search.everywhere([this](const std::string& bus) { return isOurs(bus); });
    if (focus.window) model_.found(focus);
  }
  return !wasCutShort;
}

}  // namespace tessarin::atspi
