#include "platform/atspi/FakeApplication.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/atspi/BusCalls.h"
#include "platform/atspi/ObjectReference.h"
#include "platform/atspi/Roles.h"

namespace tessarin::testing {
namespace {

std::string utf8(const std::u32string& text) {
  std::string result;
  for (const char32_t c : text) {
    const int extra = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    constexpr unsigned lead[] = {0, 0xC0, 0xE0, 0xF0};
    result += static_cast<char>(lead[extra] | c >> 6 * extra);
    for (int i = extra - 1; i >= 0; --i) result += static_cast<char>(0x80 | (c >> 6 * i & 0x3F));
  }
  return result;
}

std::u32string utf32(const std::string& text) {
  std::u32string result;
  for (const unsigned char byte : text) {
    if ((byte & 0xC0) != 0x80) {
      result += byte < 0x80 ? byte : byte < 0xE0 ? byte & 0x1F : byte < 0xF0 ? byte & 0x0F : byte & 0x07;
    } else {
      result.back() = result.back() << 6 | (byte & 0x3F);
    }
  }
  return result;
}

void appendInt(DBusMessage* message, std::int32_t value) {
  dbus_message_append_args(message, DBUS_TYPE_INT32, &value, DBUS_TYPE_INVALID);
}

void appendUint(DBusMessage* message, std::uint32_t value) {
  dbus_message_append_args(message, DBUS_TYPE_UINT32, &value, DBUS_TYPE_INVALID);
}

void appendBoolean(DBusMessage* message, bool value) {
  const dbus_bool_t number = value ? TRUE : FALSE;
  dbus_message_append_args(message, DBUS_TYPE_BOOLEAN, &number, DBUS_TYPE_INVALID);
}

void appendString(DBusMessage* message, const std::string& value) {
  const char* text = value.c_str();
  dbus_message_append_args(message, DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
}

void appendVariant(DBusMessage* message, int type, const void* value) {
  DBusMessageIter iterator;
  DBusMessageIter variant;
  const char signature[] = {static_cast<char>(type), 0};
  dbus_message_iter_init_append(message, &iterator);
  dbus_message_iter_open_container(&iterator, DBUS_TYPE_VARIANT, signature, &variant);
  dbus_message_iter_append_basic(&variant, type, value);
  dbus_message_iter_close_container(&iterator, &variant);
}

void appendReference(DBusMessageIter* into, const std::string& bus, const char* path) {
  DBusMessageIter members;
  const char* name = bus.c_str();
  dbus_message_iter_open_container(into, DBUS_TYPE_STRUCT, nullptr, &members);
  dbus_message_iter_append_basic(&members, DBUS_TYPE_STRING, &name);
  dbus_message_iter_append_basic(&members, DBUS_TYPE_OBJECT_PATH, &path);
  dbus_message_iter_close_container(into, &members);
}

void appendParent(DBusMessage* message, const std::string& bus, const char* path) {
  DBusMessageIter iterator;
  DBusMessageIter variant;
  dbus_message_iter_init_append(message, &iterator);
  dbus_message_iter_open_container(&iterator, DBUS_TYPE_VARIANT, "(so)", &variant);
  appendReference(&variant, bus, path);
  dbus_message_iter_close_container(&iterator, &variant);
}

void appendArray(DBusMessage* message, const char* signature, int type,
                 const std::vector<const void*>& values) {
  DBusMessageIter iterator;
  DBusMessageIter array;
  dbus_message_iter_init_append(message, &iterator);
  dbus_message_iter_open_container(&iterator, DBUS_TYPE_ARRAY, signature, &array);
  for (const void* value : values) dbus_message_iter_append_basic(&array, type, value);
  dbus_message_iter_close_container(&iterator, &array);
}

void appendStates(DBusMessage* message, std::uint64_t states) {
  const auto low = static_cast<std::uint32_t>(states);
  const auto high = static_cast<std::uint32_t>(states >> 32);
  appendArray(message, "u", DBUS_TYPE_UINT32, {&low, &high});
}

void appendNames(DBusMessage* message, std::vector<const char*> names) {
  std::vector<const void*> values;
  values.reserve(names.size());
  for (const char*& name : names) values.push_back(&name);
  appendArray(message, "s", DBUS_TYPE_STRING, values);
}

std::string memberOf(DBusMessage* call) {
  const char* interface = nullptr;
  const char* property = nullptr;
  if (dbus_message_is_method_call(call, DBUS_INTERFACE_PROPERTIES, "Get") &&
      dbus_message_get_args(call, nullptr, DBUS_TYPE_STRING, &interface, DBUS_TYPE_STRING, &property,
                            DBUS_TYPE_INVALID)) {
    return property;
  }
  return dbus_message_get_member(call);
}

}  // namespace

FakeApplication::FakeApplication(const std::string& busAddress)
    : connection_(atspi::connectTo(busAddress)), thread_([this] { run(); }) {}

FakeApplication::~FakeApplication() {
  isStopping_ = true;
  thread_.join();
}

void FakeApplication::answer(const std::string& member, Answer answer) {
  const std::lock_guard lock(mutex_);
  answers_[member] = std::move(answer);
}

void FakeApplication::answerString(const std::string& member, const std::string& value) {
  answer(member, [value](DBusMessage*, DBusMessage* reply) { appendString(reply, value); });
}

void FakeApplication::answerInt(const std::string& member, std::int32_t value) {
  answer(member, [value](DBusMessage*, DBusMessage* reply) { appendInt(reply, value); });
}

void FakeApplication::answerUint(const std::string& member, std::uint32_t value) {
  answer(member, [value](DBusMessage*, DBusMessage* reply) { appendUint(reply, value); });
}

void FakeApplication::answerBoolean(const std::string& member, bool value) {
  answer(member, [value](DBusMessage*, DBusMessage* reply) { appendBoolean(reply, value); });
}

void FakeApplication::answerProperty(const std::string& name, std::int32_t value) {
  answer(name, [value](DBusMessage*, DBusMessage* reply) { appendVariant(reply, DBUS_TYPE_INT32, &value); });
}

void FakeApplication::answerProperty(const std::string& name, const std::string& value) {
  answer(name, [value](DBusMessage*, DBusMessage* reply) {
    const char* text = value.c_str();
    appendVariant(reply, DBUS_TYPE_STRING, &text);
  });
}

void FakeApplication::answerParent(const std::string& bus, const std::string& path) {
  answer("Parent", [bus, path](DBusMessage*, DBusMessage* reply) { appendParent(reply, bus, path.c_str()); });
}

void FakeApplication::answerStates(std::uint64_t states) {
  answer("GetState", [states](DBusMessage*, DBusMessage* reply) { appendStates(reply, states); });
}

void FakeApplication::answerInterface(const std::string& name) {
  answer("GetInterfaces", [name](DBusMessage*, DBusMessage* reply) { appendNames(reply, {name.c_str()}); });
}

void FakeApplication::answerAttribute(const std::string& name, const std::string& value) {
  answer("GetAttributes", [name, value](DBusMessage*, DBusMessage* reply) {
    DBusMessageIter iterator;
    DBusMessageIter array;
    DBusMessageIter entry;
    const char* texts[] = {name.c_str(), value.c_str()};
    dbus_message_iter_init_append(reply, &iterator);
    dbus_message_iter_open_container(&iterator, DBUS_TYPE_ARRAY, "{ss}", &array);
    dbus_message_iter_open_container(&array, DBUS_TYPE_DICT_ENTRY, nullptr, &entry);
    for (const char*& text : texts) dbus_message_iter_append_basic(&entry, DBUS_TYPE_STRING, &text);
    dbus_message_iter_close_container(&array, &entry);
    dbus_message_iter_close_container(&iterator, &array);
  });
}

void FakeApplication::answerBounds(const std::array<std::int32_t, 4>& bounds,
                                   std::optional<std::int32_t> position) {
  answer("GetCharacterExtents", [bounds, position](DBusMessage* call, DBusMessage* reply) {
    std::int32_t asked = 0;
    dbus_message_get_args(call, nullptr, DBUS_TYPE_INT32, &asked, DBUS_TYPE_INVALID);
    const bool isThere = !position || *position == asked;
    for (const std::int32_t number : bounds) appendInt(reply, isThere ? number : 0);
  });
}

void FakeApplication::answerExtents(const std::array<std::int32_t, 4>& extents) {
  answer("GetExtents", [extents](DBusMessage*, DBusMessage* reply) {
    DBusMessageIter iterator;
    DBusMessageIter members;
    dbus_message_iter_init_append(reply, &iterator);
    dbus_message_iter_open_container(&iterator, DBUS_TYPE_STRUCT, nullptr, &members);
    for (const std::int32_t number : extents) {
      dbus_message_iter_append_basic(&members, DBUS_TYPE_INT32, &number);
    }
    dbus_message_iter_close_container(&iterator, &members);
  });
}

void FakeApplication::answerChildren() {
  answer("GetChildren", [this](DBusMessage* call, DBusMessage* reply) {
    DBusMessageIter iterator;
    DBusMessageIter array;
    dbus_message_iter_init_append(reply, &iterator);
    dbus_message_iter_open_container(&iterator, DBUS_TYPE_ARRAY, "(so)", &array);
    if (dbus_message_has_path(call, windowPath)) {
      appendReference(&array, dbus_bus_get_unique_name(connection_.get()), fieldPath);
    }
    dbus_message_iter_close_container(&iterator, &array);
  });
}

void FakeApplication::refuse(const std::string& member) {
  answer(member, nullptr);
}

void FakeApplication::hold(const std::string& member) {
  const std::lock_guard lock(mutex_);
  heldMember_ = member;
}

void FakeApplication::release() {
  const std::lock_guard lock(mutex_);
  heldMember_.clear();
  for (const atspi::MessagePtr& call : std::exchange(held_, {})) reply(call.get());
  dbus_connection_flush(connection_.get());
}

void FakeApplication::setText(const std::u32string& text, std::int32_t caret) {
  const std::lock_guard lock(mutex_);
  text_ = text;
  caret_ = caret;
}

std::u32string FakeApplication::text() const {
  const std::lock_guard lock(mutex_);
  return text_;
}

int FakeApplication::calls(const std::string& member) const {
  const std::lock_guard lock(mutex_);
  const auto found = calls_.find(member);
  return found == calls_.end() ? 0 : found->second;
}

void FakeApplication::setActive(bool active) {
  const std::lock_guard lock(mutex_);
  isActive_ = active;
}

void FakeApplication::announceWindow(const char* event) {
  emit(windowPath, "org.a11y.atspi.Event.Window", event, "", 0);
}

void FakeApplication::announceFocus(const char* path, bool focused) {
  emit(path, "org.a11y.atspi.Event.Object", "StateChanged", "focused", focused ? 1 : 0);
}

void FakeApplication::emit(const char* path, const char* interface, const char* member, const char* detail,
                           int value) {
  const atspi::MessagePtr signal(dbus_message_new_signal(path, interface, member));
  appendString(signal.get(), detail);
  appendInt(signal.get(), value);
  appendInt(signal.get(), 0);
  dbus_connection_send(connection_.get(), signal.get(), nullptr);
  dbus_connection_flush(connection_.get());
}

void FakeApplication::run() {
  while (!isStopping_) {
    dbus_connection_read_write(connection_.get(), 10);
    while (DBusMessage* message = dbus_connection_pop_message(connection_.get())) {
      judge(atspi::MessagePtr(message));
    }
    dbus_connection_flush(connection_.get());
  }
}

void FakeApplication::judge(atspi::MessagePtr call) {
  if (dbus_message_get_type(call.get()) != DBUS_MESSAGE_TYPE_METHOD_CALL) return;
  const std::lock_guard lock(mutex_);
  const std::string member = memberOf(call.get());
  ++calls_[member];
  if (member == heldMember_) {
    held_.push_back(std::move(call));
  } else {
    reply(call.get());
  }
}

void FakeApplication::reply(DBusMessage* call) {
  const std::string member = memberOf(call);
  atspi::MessagePtr reply(dbus_message_new_method_return(call));
  const auto told = answers_.find(member);
  if (told == answers_.end()) {
    answerOfItself(member, call, reply.get());
  } else if (told->second) {
    told->second(call, reply.get());
  } else {
    reply.reset(dbus_message_new_error(call, DBUS_ERROR_UNKNOWN_METHOD, "Not here"));
  }
  dbus_connection_send(connection_.get(), reply.get(), nullptr);
}

void FakeApplication::answerOfItself(const std::string& member, DBusMessage* call, DBusMessage* reply) {
  using namespace atspi;
  const std::string path = dbus_message_get_path(call);
  const bool isWindow = path == windowPath;
  if (member == "GetRole") {
    appendUint(reply, isWindow ? busRole::frame : busRole::text);
  } else if (member == "GetState") {
    const std::uint64_t ofWindow = busState::visible | (isActive_ ? busState::active : 0);
    appendStates(reply, isWindow ? ofWindow : busState::visible | busState::editable | busState::focused);
  } else if (member == "GetInterfaces") {
    appendNames(reply, {"org.a11y.atspi.Accessible", "org.a11y.atspi.Text", "org.a11y.atspi.EditableText"});
  } else if (member == "Parent") {
    appendParent(reply, dbus_bus_get_unique_name(connection_.get()), isWindow ? applicationPath : windowPath);
  } else if (member == "ToolkitName" || member == "Version") {
    const char* name = "Fake";
    appendVariant(reply, DBUS_TYPE_STRING, &name);
  } else {
    answerText(member, call, reply);
  }
}

void FakeApplication::answerText(const std::string& member, DBusMessage* call, DBusMessage* reply) {
  std::int32_t start = 0;
  std::int32_t end = 0;
  const char* text = nullptr;
  const auto length = static_cast<std::int32_t>(text_.size());
  if (member == "CaretOffset") {
    appendVariant(reply, DBUS_TYPE_INT32, &caret_);
  } else if (member == "GetNSelections") {
    appendInt(reply, 0);
  } else if (member == "SetCaretOffset") {
    dbus_message_get_args(call, nullptr, DBUS_TYPE_INT32, &caret_, DBUS_TYPE_INVALID);
    appendBoolean(reply, true);
  } else if (member == "InsertText") {
    dbus_message_get_args(call, nullptr, DBUS_TYPE_INT32, &start, DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
    text_.insert(static_cast<std::size_t>(std::clamp(start, 0, length)), utf32(text));
    appendBoolean(reply, true);
  } else if (member == "GetText" || member == "DeleteText") {
    dbus_message_get_args(call, nullptr, DBUS_TYPE_INT32, &start, DBUS_TYPE_INT32, &end, DBUS_TYPE_INVALID);
    start = std::clamp(start, 0, length);
    const auto count = static_cast<std::size_t>(std::clamp(end, start, length) - start);
    if (member == "GetText")
      return appendString(reply, utf8(text_.substr(static_cast<std::size_t>(start), count)));
    text_.erase(static_cast<std::size_t>(start), count);
    appendBoolean(reply, true);
  }
}

}  // namespace tessarin::testing
