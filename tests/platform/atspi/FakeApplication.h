#pragma once

#include <dbus/dbus.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/atspi/DBusHandles.h"

namespace tessarin::testing {

/// An application on the accessibility bus with a window and one text field, whose answers a test can spoil.
/// Counts its text in code points. Runs on a thread of its own.
class FakeApplication {
 public:
  /// Fills in the reply to a call.
  using Answer = std::function<void(DBusMessage* call, DBusMessage* reply)>;

  static constexpr const char* windowPath = "/test/window";
  static constexpr const char* fieldPath = "/test/field";
  static constexpr const char* otherFieldPath = "/test/other";

  explicit FakeApplication(const std::string& busAddress);
  ~FakeApplication();

  /// From now on the call, e.g. "GetText", or the property, e.g. "CaretOffset", is answered like this.
  void answer(const std::string& member, Answer answer);
  void answerString(const std::string& member, const std::string& value);
  void answerInt(const std::string& member, std::int32_t value);
  void answerUint(const std::string& member, std::uint32_t value);
  void answerBoolean(const std::string& member, bool value);
  void answerProperty(const std::string& name, std::int32_t value);
  void answerProperty(const std::string& name, const std::string& value);
  void answerParent(const std::string& bus, const std::string& path);
  void answerStates(std::uint64_t states);
  void answerInterface(const std::string& name);
  /// The object's only attribute.
  void answerAttribute(const std::string& name, const std::string& value);
  /// Of every character, or of the one at a position and none elsewhere.
  void answerBounds(const std::array<std::int32_t, 4>& bounds, std::optional<std::int32_t> position = {});
  void answerExtents(const std::array<std::int32_t, 4>& extents);
  /// The field is the window's child.
  void answerChildren();
  /// As if the application did not know it.
  void refuse(const std::string& member);
  /// Keeps the call unanswered until `release`, and carries it out then.
  void hold(const std::string& member);
  void release();

  void setText(const std::u32string& text, std::int32_t caret);
  std::u32string text() const;
  /// How many calls of this name, or reads of this property, have come.
  int calls(const std::string& member) const;

  void setActive(bool active);
  void announceWindow(const char* event);
  void announceFocus(const char* path, bool focused);

 private:
  void run();
  void judge(atspi::MessagePtr call);
  void reply(DBusMessage* call);
  bool answerAsTold(const std::string& member, DBusMessage* call, DBusMessage* reply);
  void answerOfItself(const std::string& member, DBusMessage* call, DBusMessage* reply);
  void answerText(const std::string& member, DBusMessage* call, DBusMessage* reply);
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
  bool isActive_ = true;
  std::atomic<bool> isStopping_ = false;
  std::thread thread_;
};

}  // namespace tessarin::testing
