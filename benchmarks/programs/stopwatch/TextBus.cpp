#include "TextBus.h"

#include <sstream>

#include "Moment.h"
#include "platform/atspi/AccessibilityBus.h"
#include "platform/atspi/BusCalls.h"
#include "platform/atspi/Messages.h"

namespace tessarin::stopwatch {
namespace {

constexpr const char* editableText = "org.a11y.atspi.EditableText";
constexpr const char* registry = "org.a11y.atspi.Registry";
constexpr std::chrono::milliseconds longestCall{1000};
constexpr const char* inserted =
    "type='signal',interface='org.a11y.atspi.Event.Object',member='TextChanged',arg0='insert'";

atspi::ConnectionPtr accessibilityBus() {
  const atspi::ConnectionPtr session = atspi::connectToSessionBus("");
  const auto address = session ? atspi::AccessibilityBus::address(session.get()) : std::nullopt;
  return address ? atspi::connectTo(*address) : nullptr;
}

}  // namespace

TextBus::TextBus() : connection_(accessibilityBus()) {
  if (connection_) listen();
}

int TextBus::fd() const {
  int fd = -1;
  return dbus_connection_get_unix_fd(connection_.get(), &fd) ? fd : -1;
}

void TextBus::listen() {
  dbus_connection_add_filter(connection_.get(), &onMessage, nullptr, nullptr);
  dbus_bus_add_match(connection_.get(), inserted, nullptr);
  const char* event = "object:text-changed:insert";
  const auto request = atspi::methodCall({registry, "/org/a11y/atspi/registry"}, registry, "RegisterEvent");
  dbus_message_append_args(request.get(), DBUS_TYPE_STRING, &event, DBUS_TYPE_INVALID);
  dbus_connection_send(connection_.get(), request.get(), nullptr);
  dbus_connection_flush(connection_.get());
}

void TextBus::replace(const atspi::ObjectReference& document, int start, int end, int length,
                      const std::string& text) {
  const char* written = text.c_str();
  const auto erase = atspi::methodCall(document, editableText, "DeleteText");
  dbus_message_append_args(erase.get(), DBUS_TYPE_INT32, &start, DBUS_TYPE_INT32, &end, DBUS_TYPE_INVALID);
  const auto insert = atspi::methodCall(document, editableText, "InsertText");
  dbus_message_append_args(insert.get(), DBUS_TYPE_INT32, &start, DBUS_TYPE_STRING, &written, DBUS_TYPE_INT32,
                           &length, DBUS_TYPE_INVALID);
  const std::string moment = now();
  dbus_connection_send(connection_.get(), erase.get(), nullptr);
  dbus_connection_send(connection_.get(), insert.get(), nullptr);
  dbus_connection_flush(connection_.get());
  report("began " + moment);
}

void TextBus::tellPlace(const atspi::ObjectReference& document, int position) {
  constexpr dbus_uint32_t relativeToWindow = 1;
  const auto question = atspi::methodCall(document, "org.a11y.atspi.Text", "GetCharacterExtents");
  dbus_message_append_args(question.get(), DBUS_TYPE_INT32, &position, DBUS_TYPE_UINT32, &relativeToWindow,
                           DBUS_TYPE_INVALID);
  const auto reply = atspi::callAndWait(connection_.get(), question.get(), longestCall);
  atspi::MessageReader reader(reply.get());
  const Rect place = atspi::readRect(reader).value_or(Rect{});
  std::ostringstream line;
  line << "place " << place.x << ' ' << place.y << ' ' << place.width << ' ' << place.height;
  report(line.str());
}

void TextBus::takeIn() {
  dbus_connection_read_write(connection_.get(), 0);
  while (dbus_connection_dispatch(connection_.get()) == DBUS_DISPATCH_DATA_REMAINS) {
  }
}

DBusHandlerResult TextBus::onMessage(DBusConnection*, DBusMessage* message, void*) {
  if (!dbus_message_is_signal(message, "org.a11y.atspi.Event.Object", "TextChanged")) {
    return DBUS_HANDLER_RESULT_NOT_YET_HANDLED;
  }
  const std::string moment = now();
  atspi::MessageReader reader(message);
  reader.string();
  const int start = reader.int32().value_or(-1);
  reader.int32();
  auto content = reader.variant();
  const std::string text = content ? content->string().value_or("") : "";
  report("text " + moment + " " + dbus_message_get_sender(message) + " " + dbus_message_get_path(message) +
         " " + std::to_string(start) + " " + text);
  return DBUS_HANDLER_RESULT_HANDLED;
}

}  // namespace tessarin::stopwatch
