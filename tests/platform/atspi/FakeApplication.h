#pragma once

#include <dbus/dbus.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <type_traits>
#include <utility>

#include "platform/atspi/BusCalls.h"
#include "platform/atspi/DBusHandles.h"
#include "platform/atspi/ObjectReference.h"
#include "platform/atspi/Roles.h"

namespace tessarin::testing {

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
inline void contain(DBusMessageIter* into, int type, const char* signature,
                    const std::function<void(DBusMessageIter*)>& fill) {
  DBusMessageIter inner;
  dbus_message_iter_open_container(into, type, signature, &inner);
  fill(&inner);
  dbus_message_iter_close_container(into, &inner);
}

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

inline void appendReference(DBusMessageIter* into, const std::string& bus, const char* path) {
  contain(into, DBUS_TYPE_STRUCT, nullptr, [&](DBusMessageIter* members) {
    append(members, bus);
    dbus_message_iter_append_basic(members, DBUS_TYPE_OBJECT_PATH, &path);
  });
}

inline std::string memberOf(DBusMessage* call) {
  const char* interface = nullptr;
  const char* property = nullptr;
  if (dbus_message_is_method_call(call, DBUS_INTERFACE_PROPERTIES, "Get") &&
      dbus_message_get_args(call, nullptr, DBUS_TYPE_STRING, &interface, DBUS_TYPE_STRING, &property,
                            DBUS_TYPE_INVALID)) {
    return property;
  }
  return dbus_message_get_member(call);
}

inline std::string utf8(const std::u32string& text) {
  std::string result;
  return icu::UnicodeString::fromUTF32(reinterpret_cast<const UChar32*>(text.data()),
                                       static_cast<std::int32_t>(text.size()))
      .toUTF8String(result);
}

inline std::u32string utf32(const std::string& text) {
  const auto whole = icu::UnicodeString::fromUTF8(text);
  std::u32string result(static_cast<std::size_t>(whole.countChar32()), U'\0');
  UErrorCode error = U_ZERO_ERROR;
  whole.toUTF32(reinterpret_cast<UChar32*>(result.data()), whole.countChar32(), error);
  return result;
}

inline Answer parent(const std::string& bus, const std::string& path) {
  return [bus, path](DBusMessage*, DBusMessageIter* reply) {
    contain(reply, DBUS_TYPE_VARIANT, "(so)",
            [&](auto* variant) { appendReference(variant, bus, path.c_str()); });
  };
}

inline Answer states(std::uint64_t states) {
  return [states](DBusMessage*, DBusMessageIter* reply) {
    contain(reply, DBUS_TYPE_ARRAY, "u", [states](auto* array) {
      append(array, static_cast<std::uint32_t>(states));
      append(array, static_cast<std::uint32_t>(states >> 32));
    });
  };
}

inline Answer interfaces(const std::vector<const char*>& names) {
  return [names](DBusMessage*, DBusMessageIter* reply) {
    contain(reply, DBUS_TYPE_ARRAY, "s", [&names](auto* array) {
      for (const char* name : names) append(array, name);
    });
  };
}

/// The object's only attribute.
inline Answer onlyAttribute(const std::string& name, const std::string& value) {
  return [name, value](DBusMessage*, DBusMessageIter* reply) {
    contain(reply, DBUS_TYPE_ARRAY, "{ss}", [&](auto* array) {
      contain(array, DBUS_TYPE_DICT_ENTRY, nullptr, [&](auto* entry) {
        append(entry, name);
        append(entry, value);
      });
    });
  };
}

using Numbers = std::array<std::int32_t, 4>;
/// Of every character, or of the one at a position and none elsewhere.
inline Answer bounds(const Numbers& bounds, std::optional<std::int32_t> position = {}) {
  return [bounds, position](DBusMessage* call, DBusMessageIter* reply) {
    std::int32_t asked = 0;
    dbus_message_get_args(call, nullptr, DBUS_TYPE_INT32, &asked, DBUS_TYPE_INVALID);
    const bool isThere = !position || *position == asked;
    for (const std::int32_t number : bounds) append(reply, isThere ? number : 0);
  };
}

inline Answer extents(const Numbers& extents) {
  return [extents](DBusMessage*, DBusMessageIter* reply) {
    contain(reply, DBUS_TYPE_STRUCT, nullptr, [&extents](auto* members) {
      for (const std::int32_t number : extents) append(members, number);
    });
  };
}

/// An application on the accessibility bus with a window and one text field, whose answers a test can spoil.
/// Counts its text in code points. Runs on a thread of its own.
class FakeApplication {
 public:
  static constexpr const char* windowPath = "/test/window";
  static constexpr const char* fieldPath = "/test/field";
  static constexpr const char* otherFieldPath = "/test/other";

  explicit FakeApplication(const std::string& busAddress)
      : connection_(atspi::connectTo(busAddress)), thread_([this] { run(); }) {}
  ~FakeApplication() {
    isStopping_ = true;
    thread_.join();
  }

  /// From now on the call, e.g. "GetText", or the property, e.g. "CaretOffset", is answered like this.
  void answer(const std::string& member, Answer answer) {
    const std::lock_guard lock(mutex_);
    answers_[member] = std::move(answer);
  }
  void answerAsUsual(const std::string& member) {
    const std::lock_guard lock(mutex_);
    answers_.erase(member);
  }
  /// The field is the window's child, and the window the application's.
  void answerChildren() {
    answer("GetChildren", [this](DBusMessage* call, DBusMessageIter* reply) {
      contain(reply, DBUS_TYPE_ARRAY, "(so)", [&](auto* array) {
        const bool isWindow = dbus_message_has_path(call, windowPath);
        if (!isWindow && !dbus_message_has_path(call, atspi::applicationPath)) return;
        appendReference(array, dbus_bus_get_unique_name(connection_.get()),
                        isWindow ? fieldPath : windowPath);
      });
    });
  }
  /// Has the desktop count it among its applications.
  void join() {
    const atspi::MessagePtr request(dbus_message_new_method_call(
        "org.a11y.atspi.Registry", atspi::applicationPath, "org.a11y.atspi.Socket", "Embed"));
    DBusMessageIter arguments;
    dbus_message_iter_init_append(request.get(), &arguments);
    appendReference(&arguments, dbus_bus_get_unique_name(connection_.get()), atspi::applicationPath);
    dbus_connection_send(connection_.get(), request.get(), nullptr);
    dbus_connection_flush(connection_.get());
  }
  /// As if the application did not know it.
  void refuse(const std::string& member) { answer(member, nullptr); }
  /// Keeps the call, and all that come behind it, unanswered until `release`, and carries them out then.
  void hold(const std::string& member) {
    const std::lock_guard lock(mutex_);
    heldMember_ = member;
  }
  void release() {
    const std::lock_guard lock(mutex_);
    heldMember_.clear();
    for (const atspi::MessagePtr& call : std::exchange(held_, {})) reply(call.get());
    dbus_connection_flush(connection_.get());
  }

  void setText(const std::u32string& text, std::int32_t caret) {
    const std::lock_guard lock(mutex_);
    text_ = text;
    caret_ = caret;
  }
  std::u32string text() const {
    const std::lock_guard lock(mutex_);
    return text_;
  }
  std::int32_t caret() const {
    const std::lock_guard lock(mutex_);
    return caret_;
  }
  /// From now on the caret stays before what is inserted at it.
  void leaveCaret() {
    const std::lock_guard lock(mutex_);
    leavesCaret_ = true;
  }
  /// How many calls of this name, or reads of this property, have come.
  int calls(const std::string& member) const {
    const std::lock_guard lock(mutex_);
    return calls_.contains(member) ? calls_.at(member) : 0;
  }

  void announceWindow(const char* event) { emit(windowPath, "org.a11y.atspi.Event.Window", event, "", 0); }
  void announceFocus(const char* path, bool focused) {
    emit(path, "org.a11y.atspi.Event.Object", "StateChanged", "focused", focused ? 1 : 0);
  }

 private:
  void run() {
    while (!isStopping_) {
      dbus_connection_read_write(connection_.get(), 10);
      while (DBusMessage* message = dbus_connection_pop_message(connection_.get())) {
        judge(atspi::MessagePtr(message));
      }
      dbus_connection_flush(connection_.get());
    }
  }
  void judge(atspi::MessagePtr call) {
    if (dbus_message_get_type(call.get()) != DBUS_MESSAGE_TYPE_METHOD_CALL) return;
    const std::lock_guard lock(mutex_);
    const std::string member = memberOf(call.get());
    ++calls_[member];
    if (member == heldMember_ || !held_.empty()) {
      held_.push_back(std::move(call));
    } else {
      reply(call.get());
    }
  }
  void reply(DBusMessage* call) {
    const std::string member = memberOf(call);
    atspi::MessagePtr reply(dbus_message_new_method_return(call));
    DBusMessageIter values;
    dbus_message_iter_init_append(reply.get(), &values);
    const auto told = answers_.find(member);
    if (told == answers_.end()) {
      answerOfItself(member, call, &values);
    } else if (told->second) {
      // A copy: an answer may change the answers.
      Answer(told->second)(call, &values);
    } else {
      reply.reset(dbus_message_new_error(call, DBUS_ERROR_UNKNOWN_METHOD, "Not here"));
    }
    dbus_connection_send(connection_.get(), reply.get(), nullptr);
  }
  void answerOfItself(const std::string& member, DBusMessage* call, DBusMessageIter* reply) {
    using namespace atspi;
    const bool isWindow = dbus_message_has_path(call, windowPath);
    if (member == "GetRole") {
      append(reply, isWindow ? busRole::frame : busRole::text);
    } else if (member == "GetState") {
      const std::uint64_t own = isWindow ? busState::active : busState::editable | busState::focused;
      states(busState::visible | own)(call, reply);
    } else if (member == "GetInterfaces") {
      interfaces({"org.a11y.atspi.Text", "org.a11y.atspi.EditableText"})(call, reply);
    } else if (member == "Parent") {
      parent(dbus_bus_get_unique_name(connection_.get()), isWindow ? applicationPath : windowPath)(call,
                                                                                                   reply);
    } else if (member == "ToolkitName" || member == "Version") {
      property("Fake")(call, reply);
    } else {
      answerText(member, call, reply);
    }
  }
  void answerText(const std::string& member, DBusMessage* call, DBusMessageIter* reply) {
    std::int32_t start = 0;
    std::int32_t end = 0;
    const char* text = nullptr;
    const auto length = static_cast<std::int32_t>(text_.size());
    if (member == "CaretOffset") {
      property(caret_)(call, reply);
    } else if (member == "GetNSelections") {
      append(reply, 0);
    } else if (member == "SetCaretOffset") {
      dbus_message_get_args(call, nullptr, DBUS_TYPE_INT32, &caret_, DBUS_TYPE_INVALID);
      append(reply, true);
    } else if (member == "InsertText") {
      dbus_message_get_args(call, nullptr, DBUS_TYPE_INT32, &start, DBUS_TYPE_STRING, &text,
                            DBUS_TYPE_INVALID);
      start = std::clamp(start, 0, length);
      text_.insert(static_cast<std::size_t>(start), utf32(text));
      const bool isMoved = start < caret_ || (start == caret_ && !leavesCaret_);
      if (isMoved) caret_ += static_cast<std::int32_t>(utf32(text).size());
      append(reply, true);
    } else if (member == "GetText" || member == "DeleteText") {
      dbus_message_get_args(call, nullptr, DBUS_TYPE_INT32, &start, DBUS_TYPE_INT32, &end, DBUS_TYPE_INVALID);
      start = std::clamp(start, 0, length);
      const auto count = static_cast<std::size_t>(std::clamp(end, start, length) - start);
      if (member == "GetText")
        return append(reply, utf8(text_.substr(static_cast<std::size_t>(start), count)));
      text_.erase(static_cast<std::size_t>(start), count);
      if (start < caret_) caret_ = std::max(start, caret_ - static_cast<std::int32_t>(count));
      append(reply, true);
    }
  }
  void emit(const char* path, const char* interface, const char* member, const char* detail, int value) {
    const atspi::MessagePtr signal(dbus_message_new_signal(path, interface, member));
    DBusMessageIter arguments;
    dbus_message_iter_init_append(signal.get(), &arguments);
    append(&arguments, detail);
    append(&arguments, value);
    append(&arguments, 0);
    dbus_connection_send(connection_.get(), signal.get(), nullptr);
    dbus_connection_flush(connection_.get());
  }

  atspi::ConnectionPtr connection_;
  /// Recursive: an answer may change the answers.
  mutable std::recursive_mutex mutex_;
  std::map<std::string, Answer> answers_;
  std::map<std::string, int> calls_;
  std::string heldMember_;
  std::vector<atspi::MessagePtr> held_;
  std::u32string text_ = U"é😀 ñ:smile";
  std::int32_t caret_ = 10;
  bool leavesCaret_ = false;
  std::atomic<bool> isStopping_ = false;
  std::thread thread_;
};

}  // namespace tessarin::testing
