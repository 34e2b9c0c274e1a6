#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Geometry.h"
#include "platform/atspi/DBusHandles.h"
#include "platform/atspi/ObjectReference.h"

namespace tessarin::atspi {

/// Reads the arguments of a message one after the other. Applications answer all sorts of things: what is not
/// of the type asked for reads as none, and so does everything after it.
class MessageReader {
 public:
  explicit MessageReader(DBusMessage* message);

  std::optional<bool> boolean();
  std::optional<std::int32_t> int32();
  std::optional<std::uint32_t> uint32();
  std::optional<std::string> string();
  /// None for the null reference too.
  std::optional<ObjectReference> reference();
  /// The reader of what stands inside the variant.
  std::optional<MessageReader> variant();
  /// The readers of a structure's or an array's members.
  std::optional<MessageReader> structure();
  std::optional<MessageReader> array();
  std::optional<MessageReader> dictionaryEntry();
  bool atEnd();

 private:
  MessageReader() = default;
  bool isAt(int type);
  template <class T>
  std::optional<T> basic(int type);
  std::optional<MessageReader> container(int type);

  DBusMessageIter position_{};
  bool failed_ = false;
};

/// A call without arguments; they are appended to it.
MessagePtr methodCall(const ObjectReference& object, const char* interface, const char* method);
/// Asks the bus for the process, an unsigned number, that a name on it belongs to.
MessagePtr processQuery(const std::string& bus);
MessagePtr propertyRead(const ObjectReference& object, const char* interface, const char* property);

/// The two words of an object's state set.
std::optional<std::uint64_t> readStates(DBusMessage* reply);
std::optional<std::vector<ObjectReference>> readReferences(DBusMessage* reply);
/// Four integers: x, y, width and height in pixels. None when no sane rectangle comes of them: some
/// applications answer uninitialised numbers.
std::optional<Rect> readRect(MessageReader& reader);

}  // namespace tessarin::atspi
