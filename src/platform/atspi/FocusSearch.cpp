#include "platform/atspi/FocusSearch.h"

#include <utility>

#include "platform/atspi/BusCalls.h"
#include "platform/atspi/Messages.h"
#include "platform/atspi/Roles.h"

namespace tessarin::atspi {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* accessible = "org.a11y.atspi.Accessible";
constexpr std::chrono::milliseconds longestSearchCall{100};
constexpr std::chrono::milliseconds longestSearch{1500};
constexpr int mostObjects = 2000;
constexpr int deepestWindow = 64;

}  // namespace

FocusSearch::FocusSearch(DBusConnection* connection, std::function<bool()> isUnwanted)
    : connection_(connection),
      isUnwanted_(std::move(isUnwanted)),
      deadline_(Clock::now() + longestSearch),
      objectsLeft_(mostObjects) {}

std::optional<ObjectReference> FocusSearch::inWindow(const ObjectReference& window) {
  visit(window);
  return focused_;
}

FocusModel::Focus FocusSearch::everywhere(const std::function<bool(const std::string& bus)>& isOurs) {
  const ObjectReference desktop{"org.a11y.atspi.Registry", applicationPath};
  for (const ObjectReference& application : children(desktop)) {
    if (isOurs(application.bus)) continue;
    for (const ObjectReference& window : children(application)) {
      if (isActive(window)) return {inWindow(window), window};
    }
  }
  return {};
}

bool FocusSearch::mayGoOn() {
  return !isDone_ && objectsLeft_ > 0 && Clock::now() < deadline_ && !isUnwanted_();
}

std::optional<std::uint64_t> FocusSearch::states(const ObjectReference& object) {
  const MessagePtr request = methodCall(object, accessible, "GetState");
  return readStates(callAndWait(connection_, request.get(), longestSearchCall).get());
}

std::vector<ObjectReference> FocusSearch::children(const ObjectReference& object) {
  if (!mayGoOn()) return {};
  const MessagePtr request = methodCall(object, accessible, "GetChildren");
  return readReferences(callAndWait(connection_, request.get(), longestSearchCall).get())
      .value_or(std::vector<ObjectReference>{});
}

std::optional<std::uint32_t> FocusSearch::role(const ObjectReference& object) {
  const MessagePtr request = methodCall(object, accessible, "GetRole");
  return MessageReader(callAndWait(connection_, request.get(), longestSearchCall).get()).uint32();
}

std::optional<ObjectReference> FocusSearch::windowOf(ObjectReference element) {
  for (int step = 0; step < deepestWindow && mayGoOn(); ++step) {
    const auto found = role(element);
    if (!found) return std::nullopt;
    if (isWindow(*found)) return element;
    const MessagePtr request = propertyRead(element, accessible, "Parent");
    const MessagePtr reply = callAndWait(connection_, request.get(), longestSearchCall);
    auto value = MessageReader(reply.get()).variant();
    auto parent = value ? value->reference() : std::nullopt;
    if (!parent) return std::nullopt;
    element = *std::move(parent);
  }
  return std::nullopt;
}

bool FocusSearch::isActive(const ObjectReference& window) {
  return (states(window).value_or(0) & busState::active) != 0;
}

bool FocusSearch::isFocused(const ObjectReference& element) {
  constexpr std::uint64_t wanted = busState::focused | busState::showing;
  return (states(element).value_or(0) & wanted) == wanted;
}

bool FocusSearch::isEditable(const ObjectReference& element) {
  return (states(element).value_or(0) & busState::editable) != 0;
}

void FocusSearch::visit(const ObjectReference& object) {
  if (!mayGoOn()) return;
  --objectsLeft_;
  const auto found = states(object);
  if (!found || (*found & busState::visible) == 0) return;
  if ((*found & busState::focused) != 0) {
    focused_ = object;
    // Qt says of the current tab of a tab bar that it is focused, too: an editable one is the better answer.
    isDone_ = (*found & busState::editable) != 0;
  }
  if ((*found & busState::managesDescendants) != 0 || isDone_ || role(object) == busRole::menuBar) return;
  for (const ObjectReference& child : children(object)) visit(child);
}

}  // namespace tessarin::atspi
