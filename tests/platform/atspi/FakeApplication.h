#pragma once

#include <dbus/dbus.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <type_traits>

#include "platform/atspi/DBusHandles.h"

namespace tessarin::testing {

std::string utf8(const std::u32string& text);
std::u32string utf32(const std::string& text);

/// Fills in the reply to a call.
using Answer = std::function<void(DBusMessage* call, DBusMessageIter* reply)>;

template <class T>
void append(DBusMessageIter* into, const T& value) {
  if constexpr (std::is_same_v<T, bool>) {
    const dbus_bool_t number = value ? TRUE : FALSE;
    dbus_message_iter_append_basic(into, DBUS_TYPE_BOOLEAN, &number);
  } else if constexpr (std::is_integral_v<T>) {
    dbus_message_iter_append_basic(into, std::is_signed_v<T> ? DBUS_TYPE_INT32 : DBUS_TYPE_UINT32, &value);
  } else {
    const char* text = std::string_view(value).data();
    dbus_message_iter_append_basic(into, DBUS_TYPE_STRING, &text);
  }
}
/// Opens a container of this type and signature, has it filled and closes it.
void contain(DBusMessageIter* into, int type, const char* signature,
             const std::function<void(DBusMessageIter*)>& fill);

/// What calls and reads of properties are answered with.
template <class T>
Answer value(const T& what) {
  return [what](DBusMessage*, DBusMessageIter* reply) { append(reply, what); };
}
template <class T>
Answer property(T what) {
  return [what](DBusMessage*, DBusMessageIter* reply) {
    const char* signature = std::is_same_v<T, std::int32_t> ? "i" : "s";
    contain(reply, DBUS_TYPE_VARIANT, signature, [&](auto* variant) { append(variant, what); });
  };
}
Answer parent(const std::string& bus, const std::string& path);
Answer states(std::uint64_t states);
Answer interfaces(const std::vector<const char*>& names);
/// The object's only attribute.
Answer onlyAttribute(const std::string& name, const std::string& value);
using Numbers = std::array<std::int32_t, 4>;
/// Of every character, or of the one at a position and none elsewhere.
Answer bounds(const Numbers& bounds, std::optional<std::int32_t> position = {});
Answer extents(const Numbers& extents);

/// An application on the accessibility bus with a window and one text field, whose answers a test can spoil.
/// Counts its text in code points. Runs on a thread of its own.
class FakeApplication {
 public:
  static constexpr const char* windowPath = "/test/window";
  static constexpr const char* fieldPath = "/test/field";
  static constexpr const char* otherFieldPath = "/test/other";

  explicit FakeApplication(const std::string& busAddress);
  ~FakeApplication();

  /// From now on the call, e.g. "GetText", or the property, e.g. "CaretOffset", is answered like this.
  void answer(const std::string& member, Answer answer);
  void answerAsUsual(const std::string& member);
  /// The field is the window's child, and the window the application's.
  void answerChildren();
  /// Has the desktop count it among its applications.
  void join();
  /// As if the application did not know it.
  void refuse(const std::string& member) { answer(member, nullptr); }
  /// Keeps the call, and all that come behind it, unanswered until `release`, and carries them out then.
  void hold(const std::string& member);
  void release();

  void setText(const std::u32string& text, std::int32_t caret);
  std::u32string text() const;
  /// How many calls of this name, or reads of this property, have come.
  int calls(const std::string& member) const;

  void announceWindow(const char* event);
  void announceFocus(const char* path, bool focused);

 private:
  void run();
  void judge(atspi::MessagePtr call);
  void reply(DBusMessage* call);
  void answerOfItself(const std::string& member, DBusMessage* call, DBusMessageIter* reply);
  void answerText(const std::string& member, DBusMessage* call, DBusMessageIter* reply);
  void emit(const char* path, const char* interface, const char* member, const char* detail, int value);

  atspi::ConnectionPtr connection_;
  /// Recursive: an answer may change the answers.
  mutable std::recursive_mutex mutex_;
  std::map<std::string, Answer> answers_;
  std::map<std::string, int> calls_;
  std::string heldMember_;
  std::vector<atspi::MessagePtr> held_;
  std::u32string text_ = U"é😀 ñ:smile";
  std::int32_t caret_ = 10;
  std::atomic<bool> isStopping_ = false;
  std::thread thread_;
};

}  // namespace tessarin::testing
