#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/atspi/DBusHandles.h"
#include "platform/atspi/FocusModel.h"

namespace tessarin::atspi {

/// Looks through the trees of applications for the focused element, for when no event has told it. Slow (10
/// to 1,200 ms were seen): bounded in time and number of objects, and done off the main thread.
class FocusSearch {
 public:
  /// `isUnwanted`: asked between the steps; the search ends when it answers yes.
  FocusSearch(DBusConnection* connection, std::function<bool()> isUnwanted);

  /// The focused element inside one window.
  std::optional<ObjectReference> inWindow(const ObjectReference& window);
  /// The active window of all applications but our own, and the focused element in it.
  FocusModel::Focus everywhere(const std::function<bool(const std::string& bus)>& isOurs);
  /// The window that holds the element.
  std::optional<ObjectReference> windowOf(ObjectReference element);
  bool isActive(const ObjectReference& window);
  /// Whether it is shown and says that it has the focus.
  bool isFocused(const ObjectReference& element);
  bool isEditable(const ObjectReference& element);

 private:
  bool mayGoOn();
  std::optional<std::uint64_t> states(const ObjectReference& object);
  std::vector<ObjectReference> children(const ObjectReference& object);
  std::optional<std::uint32_t> role(const ObjectReference& object);
  void visit(const ObjectReference& object);

  DBusConnection* connection_;
  std::function<bool()> isUnwanted_;
  std::chrono::steady_clock::time_point deadline_;
  int objectsLeft_;
  bool isDone_ = false;
  std::optional<ObjectReference> focused_;
};

}  // namespace tessarin::atspi
