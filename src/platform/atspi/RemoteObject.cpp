#include "platform/atspi/RemoteObject.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "platform/atspi/Messages.h"

namespace tessarin::atspi {
namespace {

constexpr const char* accessibleInterface = "org.a11y.atspi.Accessible";
constexpr const char* component = "org.a11y.atspi.Component";

std::optional<MessageReader> propertyValue(DBusMessage* reply) {
  return MessageReader(reply).variant();
}

}  // namespace

RemoteObject::RemoteObject(CallChannel& channel, ObjectReference object)
    : channel_(channel), object_(std::move(object)) {}

MessagePtr RemoteObject::request(const char* interface, const char* method) const {
  return methodCall(object_, interface, method);
}

MessagePtr RemoteObject::ask(MessagePtr request) {
  return channel_.call(std::move(request)).reply;
}

void RemoteObject::replaceByReplies(std::span<MessagePtr> requests) {
  std::vector<MessagePtr> moved(std::make_move_iterator(requests.begin()),
                                std::make_move_iterator(requests.end()));
  std::vector<Answer> answers = channel_.callAll(std::move(moved));
  std::ranges::transform(answers, requests.begin(), [](Answer& answer) { return std::move(answer.reply); });
}

MessagePtr RemoteObject::roleRequest() const {
  return request(accessibleInterface, "GetRole");
}

MessagePtr RemoteObject::statesRequest() const {
  return request(accessibleInterface, "GetState");
}

MessagePtr RemoteObject::interfacesRequest() const {
  return request(accessibleInterface, "GetInterfaces");
}

std::optional<std::uint32_t> RemoteObject::role() {
  return MessageReader(ask(roleRequest()).get()).uint32();
}

std::optional<std::uint64_t> RemoteObject::states() {
  return readStates(ask(statesRequest()).get());
}

std::optional<ObjectReference> RemoteObject::parent() {
  const MessagePtr reply = ask(propertyRead(object_, accessibleInterface, "Parent"));
  auto value = propertyValue(reply.get());
  return value ? value->reference() : std::nullopt;
}

std::string RemoteObject::attribute(std::string_view name) {
  const MessagePtr reply = ask(request(accessibleInterface, "GetAttributes"));
  auto entries = MessageReader(reply.get()).array();
  while (entries && !entries->atEnd()) {
    auto entry = entries->dictionaryEntry();
    if (entry && entry->string() == name) return entry->string().value_or("");
  }
  return {};
}

std::optional<Rect> RemoteObject::extents(bool isWindowRelative) {
  MessagePtr question = request(component, "GetExtents");
  const dbus_uint32_t origin = isWindowRelative ? 1 : 0;
  dbus_message_append_args(question.get(), DBUS_TYPE_UINT32, &origin, DBUS_TYPE_INVALID);
  const MessagePtr reply = ask(std::move(question));
  auto rect = MessageReader(reply.get()).structure();
  return rect ? readRect(*rect) : std::nullopt;
}

std::optional<std::string> RemoteObject::stringProperty(const char* interface, const char* name) {
  const MessagePtr reply = ask(propertyRead(object_, interface, name));
  auto value = propertyValue(reply.get());
  return value ? value->string() : std::nullopt;
}

}  // namespace tessarin::atspi
