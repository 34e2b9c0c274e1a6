#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "base/Geometry.h"
#include "platform/atspi/CallChannel.h"
#include "platform/atspi/ObjectReference.h"

namespace tessarin::atspi {

/// One object of another application. Every read is one call; none when it is refused, does not come in time
/// or makes no sense.
class RemoteObject {
 public:
  RemoteObject(CallChannel& channel, ObjectReference object);

  std::optional<std::uint32_t> role();
  std::optional<std::uint64_t> states();
  std::optional<ObjectReference> parent();
  /// The value of one of the object's attributes; empty when it has none of that name.
  std::string attribute(std::string_view name);
  /// Pixels, from the window's top left instead of the screen's if wanted.
  std::optional<Rect> extents(bool isWindowRelative);

  std::optional<std::string> stringProperty(const char* interface, const char* name);

 protected:
  MessagePtr request(const char* interface, const char* method) const;
  MessagePtr roleRequest() const;
  MessagePtr statesRequest() const;
  MessagePtr interfacesRequest() const;
  MessagePtr ask(MessagePtr request);
  /// Asks several things at once; the answers come in the same order.
  template <class... Requests>
  std::array<MessagePtr, sizeof...(Requests)> askAll(Requests... requests) {
    std::array<MessagePtr, sizeof...(Requests)> all{std::move(requests)...};
    replaceByReplies(all);
    return all;
  }

  void replaceByReplies(std::span<MessagePtr> requests);

  CallChannel& channel_;
  const ObjectReference object_;
};

}  // namespace tessarin::atspi
