#include "platform/atspi/Messages.h"

#include <cstdlib>

namespace tessarin::atspi {

MessageReader::MessageReader(DBusMessage* message) {
  failed_ = message == nullptr || !dbus_message_iter_init(message, &position_);
}

bool MessageReader::isAt(int type) {
  if (!failed_ && dbus_message_iter_get_arg_type(&position_) == type) return true;
  failed_ = true;
  return false;
}

bool MessageReader::atEnd() {
  return failed_ || dbus_message_iter_get_arg_type(&position_) == DBUS_TYPE_INVALID;
}

template <class T>
std::optional<T> MessageReader::basic(int type) {
  if (!isAt(type)) return std::nullopt;
  T value{};
  dbus_message_iter_get_basic(&position_, &value);
  dbus_message_iter_next(&position_);
  return value;
}

std::optional<bool> MessageReader::boolean() {
  const auto value = basic<dbus_bool_t>(DBUS_TYPE_BOOLEAN);
  if (!value) return std::nullopt;
  return *value != FALSE;
}

std::optional<std::int32_t> MessageReader::int32() {
  return basic<dbus_int32_t>(DBUS_TYPE_INT32);
}

std::optional<std::uint32_t> MessageReader::uint32() {
  return basic<dbus_uint32_t>(DBUS_TYPE_UINT32);
}

std::optional<std::string> MessageReader::string() {
  const auto value = basic<const char*>(DBUS_TYPE_STRING);
  if (!value) return std::nullopt;
  return std::string(*value);
}

std::optional<MessageReader> MessageReader::container(int type) {
  if (!isAt(type)) return std::nullopt;
  MessageReader inside;
  dbus_message_iter_recurse(&position_, &inside.position_);
  dbus_message_iter_next(&position_);
  return inside;
}

std::optional<MessageReader> MessageReader::variant() {
  return container(DBUS_TYPE_VARIANT);
}

std::optional<MessageReader> MessageReader::structure() {
  return container(DBUS_TYPE_STRUCT);
}

std::optional<MessageReader> MessageReader::array() {
  return container(DBUS_TYPE_ARRAY);
}

std::optional<MessageReader> MessageReader::dictionaryEntry() {
  return container(DBUS_TYPE_DICT_ENTRY);
}

std::optional<ObjectReference> MessageReader::reference() {
  auto inside = structure();
  if (!inside) return std::nullopt;
  const auto bus = inside->string();
  const auto path = inside->basic<const char*>(DBUS_TYPE_OBJECT_PATH);
  // A malformed bus name would end the program as soon as a message is addressed to it.
  if (!bus || !path || !dbus_validate_bus_name(bus->c_str(), nullptr)) return std::nullopt;
  ObjectReference reference{*bus, *path};
  if (reference.path == nullPath) return std::nullopt;
  return reference;
}

MessagePtr methodCall(const ObjectReference& object, const char* interface, const char* method) {
  return MessagePtr(dbus_message_new_method_call(object.bus.c_str(), object.path.c_str(), interface, method));
}

MessagePtr processQuery(const std::string& bus) {
  MessagePtr query =
      methodCall({DBUS_SERVICE_DBUS, DBUS_PATH_DBUS}, DBUS_INTERFACE_DBUS, "GetConnectionUnixProcessID");
  const char* name = bus.c_str();
  dbus_message_append_args(query.get(), DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID);
  return query;
}

MessagePtr propertyRead(const ObjectReference& object, const char* interface, const char* property) {
  MessagePtr message = methodCall(object, DBUS_INTERFACE_PROPERTIES, "Get");
  dbus_message_append_args(message.get(), DBUS_TYPE_STRING, &interface, DBUS_TYPE_STRING, &property,
                           DBUS_TYPE_INVALID);
  return message;
}

std::optional<std::uint64_t> readStates(DBusMessage* reply) {
  auto words = MessageReader(reply).array();
  if (!words) return std::nullopt;
  const auto low = words->uint32();
  if (!low) return std::nullopt;
  const auto high = words->uint32();
  return *low | static_cast<std::uint64_t>(high.value_or(0)) << 32;
}

std::optional<std::vector<ObjectReference>> readReferences(DBusMessage* reply) {
  auto items = MessageReader(reply).array();
  if (!items) return std::nullopt;
  std::vector<ObjectReference> references;
  while (!items->atEnd()) {
    if (auto reference = items->reference()) references.push_back(*std::move(reference));
  }
  return references;
}

std::optional<Rect> readRect(MessageReader& reader) {
  const auto x = reader.int32();
  const auto y = reader.int32();
  const auto width = reader.int32();
  const auto height = reader.int32();
  if (!x || !y || !width || !height) return std::nullopt;
  constexpr std::int64_t farthest = 32767;  // X11's coordinates end there
  const bool isPlaced = std::abs(std::int64_t{*x}) <= farthest && std::abs(std::int64_t{*y}) <= farthest;
  const bool isSized = *width >= 0 && *width <= farthest && *height > 0 && *height <= farthest;
  if (!isPlaced || !isSized) return std::nullopt;
  return Rect{double(*x), double(*y), double(*width), double(*height)};
}

}  // namespace tessarin::atspi
