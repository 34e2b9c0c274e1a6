#include "platform/atspi/RemoteText.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/atspi/Messages.h"
#include "text/Graphemes.h"

namespace tessarin::atspi {
namespace {

constexpr const char* textInterface = "org.a11y.atspi.Text";
constexpr const char* editableText = "org.a11y.atspi.EditableText";
/// Positions are 32 bits wide on the bus.
constexpr std::int64_t lastPosition = std::numeric_limits<dbus_int32_t>::max();
/// More than any shortcode has; keeps the fetched stretch small whatever is asked for.
constexpr std::int64_t mostClusters = 1024;
/// Enough for most clusters; the rest of them are families of emoji and the like.
constexpr std::int64_t unitsPerCluster = 8;
constexpr std::int64_t unitsInReserve = 16;

void append(DBusMessage* message, std::int64_t value) {
  const auto number = static_cast<dbus_int32_t>(value);
  dbus_message_append_args(message, DBUS_TYPE_INT32, &number, DBUS_TYPE_INVALID);
}

void append(DBusMessage* message, const std::string& value) {
  const char* text = value.c_str();
  dbus_message_append_args(message, DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
}

bool canBeSent(const std::string& text) {
  return text.find('\0') == std::string::npos && dbus_validate_utf8(text.c_str(), nullptr);
}

std::optional<Rect> rectOf(DBusMessage* reply) {
  MessageReader reader(reply);
  return readRect(reader);
}

bool saysYes(const Answer& answer) {
  return answer.kind == Answer::Kind::replied && MessageReader(answer.reply.get()).boolean() == true;
}

}  // namespace

RemoteText::RemoteText(CallChannel& channel, ObjectReference object, Toolkit toolkit)
    : RemoteObject(channel, std::move(object)), toolkit_(toolkit) {}

std::optional<TextRange> RemoteText::selectedRange() {
  const auto [offset, count] =
      askAll(propertyRead(object_, textInterface, "CaretOffset"), request(textInterface, "GetNSelections"));
  auto value = MessageReader(offset.get()).variant();
  const auto caret = value ? value->int32() : std::nullopt;
  if (!caret || *caret < 0) return std::nullopt;
  const TextRange atCaret{*caret, 0};
  if (MessageReader(count.get()).int32().value_or(0) < 1) return atCaret;
  MessagePtr question = request(textInterface, "GetSelection");
  append(question.get(), std::int64_t{0});
  const MessagePtr reply = ask(std::move(question));
  MessageReader reader(reply.get());
  const auto start = reader.int32();
  const auto end = reader.int32();
  if (!start || !end || *start < 0 || *end <= *start) return atCaret;
  return TextRange{*start, *end - *start};
}

std::optional<std::string> RemoteText::string(const TextRange& range) {
  auto found = stretch(range);
  if (!found) return std::nullopt;
  return std::move(found->text);
}

std::optional<RemoteText::Stretch> RemoteText::stretch(const TextRange& range) {
  const std::int64_t end = range.location + range.length;
  const std::int64_t clusters = range.length;
  if (clusters < 0 || clusters > mostClusters || end < 0 || end > lastPosition) return std::nullopt;
  if (clusters == 0) return Stretch{end, end, {}};
  for (const std::int64_t factor : {1, 8}) {
    const std::int64_t start =
        std::max<std::int64_t>(0, end - (unitsPerCluster * clusters + unitsInReserve) * factor);
    const auto fetched = text(start, end);
    if (!fetched) return std::nullopt;
    std::string last = text::lastCharacters(*fetched, static_cast<std::size_t>(clusters));
    // The first cluster that was fetched may be the end of a longer one.
    if (last.size() == fetched->size() && start > 0) continue;
    return Stretch{end - countUnits(last, toolkit_.offset), end, std::move(last)};
  }
  return std::nullopt;
}

MessagePtr RemoteText::textRequest(std::int64_t start, std::int64_t end) const {
  MessagePtr question = request(textInterface, "GetText");
  append(question.get(), start);
  append(question.get(), end);
  return question;
}

std::optional<std::string> RemoteText::text(std::int64_t start, std::int64_t end) {
  const MessagePtr reply = ask(textRequest(start, end));
  auto text = MessageReader(reply.get()).string();
  if (text && toolkit_.pads) text = withoutPadding(*text);
  // An application that answers less or more than was asked for, or counts otherwise than its toolkit does,
  // would have us erase the wrong characters.
  if (!text || countUnits(*text, toolkit_.offset) != end - start) return std::nullopt;
  return text;
}

std::optional<Rect> RemoteText::caretBounds(const TextRange& range) {
  const std::int64_t position = range.location + range.length;
  if (range.length < 0 || position < 0 || position > lastPosition) return std::nullopt;
  std::optional<Rect> bounds;
  if (position == 0) {
    const MessagePtr reply = ask(extentsRequest(position));
    bounds = rectOf(reply.get());
  } else {
    const auto [at, before, letter] =
        askAll(extentsRequest(position), extentsRequest(position - 1), textRequest(position - 1, position));
    bounds = rectOf(at.get());
    if (!bounds) bounds = behind(rectOf(before.get()), MessageReader(letter.get()).string());
  }
  if (bounds) bounds->width = 1;
  return bounds;
}

MessagePtr RemoteText::extentsRequest(std::int64_t position) const {
  MessagePtr question = request(textInterface, "GetCharacterExtents");
  append(question.get(), position);
  const dbus_uint32_t origin = toolkit_.isWindowRelative ? 1 : 0;
  dbus_message_append_args(question.get(), DBUS_TYPE_UINT32, &origin, DBUS_TYPE_INVALID);
  return question;
}

std::optional<Rect> RemoteText::behind(std::optional<Rect> letter, const std::optional<std::string>& text) {
  if (!letter) return std::nullopt;
  if (text == "\n") {
    const auto whole = extents(toolkit_.isWindowRelative);
    if (!whole) return std::nullopt;
    return Rect{whole->x, letter->y + letter->height, 0, letter->height};
  }
  letter->x += letter->width;
  return letter;
}

AccessibilityStatus RemoteText::replace(const TextRange& range, const std::string& text) {
  if (!canBeSent(text)) return AccessibilityStatus::failure;
  const auto old = stretch(range);
  if (!old) return AccessibilityStatus::failure;
  const bool erases = !old->text.empty();
  if (erases) {
    const AccessibilityStatus erased = erase(*old);
    if (erased != AccessibilityStatus::success) return erased;
  }
  const AccessibilityStatus inserted = insert(old->start, text);
  if (inserted == AccessibilityStatus::failure && erases) return AccessibilityStatus::erasedOnly;
  return inserted;
}

AccessibilityStatus RemoteText::erase(const Stretch& stretch) {
  MessagePtr change = request(editableText, "DeleteText");
  append(change.get(), stretch.start);
  append(change.get(), stretch.end);
  const Answer answer = carryOut(std::move(change));
  if (saysYes(answer)) return AccessibilityStatus::success;
  if (answer.kind == Answer::Kind::notSent) return AccessibilityStatus::failure;
  // Not answered: it stands in the application's queue and will be carried out when the application wakes, so
  // it must not be erased a second time. Refused: believed only when the text is still there.
  if (answer.kind == Answer::Kind::unanswered || !stillHolds(stretch)) return AccessibilityStatus::erasedOnly;
  return AccessibilityStatus::failure;
}

bool RemoteText::stillHolds(const Stretch& stretch) {
  return text(stretch.start, stretch.end) == stretch.text;
}

AccessibilityStatus RemoteText::insert(std::int64_t position, const std::string& text) {
  if (text.empty()) return AccessibilityStatus::success;
  MessagePtr change = request(editableText, "InsertText");
  append(change.get(), position);
  append(change.get(), text);
  append(change.get(), countUnits(text, toolkit_.insertedLength));
  const Answer answer = carryOut(std::move(change));
  // In the application's queue it is as good as done; another way of inserting would bring the text twice.
  if (answer.kind == Answer::Kind::unanswered) return AccessibilityStatus::success;
  if (!saysYes(answer)) return AccessibilityStatus::failure;
  if (!toolkit_.movesCaret) placeCaret(position + countUnits(text, toolkit_.offset));
  return AccessibilityStatus::success;
}

void RemoteText::placeCaret(std::int64_t position) {
  const auto caret = intProperty(textInterface, "CaretOffset");
  if (!caret || *caret == position) return;
  MessagePtr change = request(textInterface, "SetCaretOffset");
  append(change.get(), position);
  ask(std::move(change));
}

Answer RemoteText::carryOut(MessagePtr change) {
  Answer answer = channel_.call(std::move(change));
  if (answer.kind == Answer::Kind::unanswered) answer = channel_.awaitOwed(object_.bus);
  return answer;
}

}  // namespace tessarin::atspi
