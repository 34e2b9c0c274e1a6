#include "platform/atspi/RemoteText.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/Log.h"
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
/// Most shortcodes are shorter.
constexpr std::int64_t clustersAtAGlance = 16;
/// The text stands there already, so its order is worth this even where the key's account is used up.
constexpr std::chrono::milliseconds caretTime{40};

std::int64_t startOfClusters(std::int64_t end, std::int64_t clusters, std::int64_t factor = 1) {
  return std::max<std::int64_t>(0, end - (unitsPerCluster * clusters + unitsInReserve) * factor);
}

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

/// Whether a reply that lists names has this one.
bool contains(DBusMessage* reply, std::string_view wanted) {
  auto names = MessageReader(reply).array();
  while (names && !names->atEnd()) {
    if (names->string() == wanted) return true;
  }
  return false;
}

template <class... Messages>
std::vector<MessagePtr> all(Messages... messages) {
  std::vector<MessagePtr> result;
  (result.push_back(std::move(messages)), ...);
  return result;
}

std::optional<std::int32_t> caretIn(DBusMessage* reply) {
  auto value = MessageReader(reply).variant();
  return value ? value->int32() : std::nullopt;
}

bool saysYes(const Answer& answer) {
  return answer.kind == Answer::Kind::replied && MessageReader(answer.reply.get()).boolean() == true;
}

}  // namespace

RemoteText::RemoteText(CallChannel& channel, ObjectReference object, Toolkit toolkit)
    : RemoteObject(channel, std::move(object)), toolkit_(toolkit) {}

std::optional<TextRange> RemoteText::selectedRange() {
  const auto [caret, selections] =
      askAll(propertyRead(object_, textInterface, "CaretOffset"), request(textInterface, "GetNSelections"));
  return rangeOf(caret.get(), selections.get());
}

RemoteText::Glance RemoteText::glance(std::optional<std::int64_t> expectedCaret) {
  auto asked =
      all(roleRequest(), statesRequest(), interfacesRequest(),
          propertyRead(object_, textInterface, "CaretOffset"), request(textInterface, "GetNSelections"));
  const std::int64_t end = expectedCaret.value_or(0);
  const std::int64_t start = startOfClusters(end, clustersAtAGlance);
  if (expectedCaret) asked.push_back(textRequest(start, end));
  replaceByReplies(asked);
  auto before = expectedCaret ? textIn(asked.back().get(), end - start) : std::nullopt;
  return {MessageReader(asked[0].get()).uint32(), readStates(asked[1].get()),
          contains(asked[2].get(), editableText), rangeOf(asked[3].get(), asked[4].get()),
          before ? std::optional(Stretch{start, end, *std::move(before)}) : std::nullopt};
}

std::optional<RemoteText::Stretch> RemoteText::stretchIn(const Stretch& read, const TextRange& range) const {
  const std::int64_t end = range.location + range.length;
  if (end != read.end || range.length <= 0 || range.length > mostClusters) return std::nullopt;
  auto last = lastClusters(read.text, read.start, range.length);
  if (!last) return std::nullopt;
  return Stretch{end - countUnits(*last, toolkit_.offset), end, *std::move(last)};
}

std::optional<TextRange> RemoteText::rangeOf(DBusMessage* caret, DBusMessage* selections) {
  const auto offset = caretIn(caret);
  if (!offset || *offset < 0) return std::nullopt;
  const TextRange atCaret{*offset, 0};
  if (MessageReader(selections).int32().value_or(0) < 1) return atCaret;
  MessagePtr question = request(textInterface, "GetSelection");
  append(question.get(), std::int64_t{0});
  const MessagePtr reply = ask(std::move(question));
  MessageReader reader(reply.get());
  const auto start = reader.int32();
  const auto end = reader.int32();
  if (!start || !end || *start < 0 || *end <= *start) return atCaret;
  return TextRange{*start, *end - *start};
}

std::optional<RemoteText::Stretch> RemoteText::stretch(const TextRange& range) {
  const std::int64_t end = range.location + range.length;
  const std::int64_t clusters = range.length;
  if (clusters < 0 || clusters > mostClusters || end < 0 || end > lastPosition) return std::nullopt;
  if (clusters == 0) return Stretch{end, end, {}};
  for (const std::int64_t factor : {1, 8}) {
    const std::int64_t start = startOfClusters(end, clusters, factor);
    auto fetched = text(start, end);
    if (!fetched) return std::nullopt;
    if (auto found = stretchIn({start, end, *std::move(fetched)}, range)) return found;
  }
  return std::nullopt;
}

std::optional<std::string> RemoteText::lastClusters(const std::string& fetched, std::int64_t start,
                                                    std::int64_t clusters) {
  std::string last = text::lastCharacters(fetched, static_cast<std::size_t>(clusters));
  return last.size() == fetched.size() && start > 0 ? std::nullopt : std::optional(std::move(last));
}

MessagePtr RemoteText::textRequest(std::int64_t start, std::int64_t end) const {
  MessagePtr question = request(textInterface, "GetText");
  append(question.get(), start);
  append(question.get(), end);
  return question;
}

std::optional<std::string> RemoteText::text(std::int64_t start, std::int64_t end) {
  const MessagePtr reply = ask(textRequest(start, end));
  return textIn(reply.get(), end - start);
}

std::optional<std::string> RemoteText::textIn(DBusMessage* reply, std::int64_t units) const {
  auto text = MessageReader(reply).string();
  if (text && toolkit_.pads) text = withoutPadding(*text);
  // An application that answers less or more than was asked for, or counts otherwise than its toolkit does,
  // would have us erase the wrong characters.
  if (!text || countUnits(*text, toolkit_.offset) != units) return std::nullopt;
  return text;
}

RemoteText::CaretPlace RemoteText::caretPlace(const TextRange& range) {
  const std::int64_t position = range.location + range.length;
  if (range.length < 0 || range.length > mostClusters || position < 0 || position > lastPosition) return {};
  CaretPlace place;
  if (position == 0) {
    const MessagePtr reply = ask(extentsRequest(position));
    place.bounds = rectOf(reply.get());
  } else {
    place = range.length == 0 ? placeBehind(position) : placeBehind(range);
  }
  if (place.bounds) place.bounds->width = 1;
  return place;
}

RemoteText::CaretPlace RemoteText::placeBehind(std::int64_t position) {
  const auto [at, before, letter] =
      askAll(extentsRequest(position), extentsRequest(position - 1), textRequest(position - 1, position));
  return {boundsOf(at.get(), before.get(), letter.get()), {}, {}};
}

RemoteText::CaretPlace RemoteText::placeBehind(const TextRange& range) {
  const std::int64_t end = range.location + range.length;
  const std::int64_t start = startOfClusters(end, range.length);
  const auto [at, before, letters, role] =
      askAll(extentsRequest(end), extentsRequest(end - 1), textRequest(start, end), roleRequest());
  const auto fetched = textIn(letters.get(), end - start);
  return {boundsOf(at.get(), before.get(), letters.get()),
          fetched ? lastClusters(*fetched, start, range.length) : std::nullopt,
          MessageReader(role.get()).uint32()};
}

std::optional<Rect> RemoteText::boundsOf(DBusMessage* at, DBusMessage* before, DBusMessage* letters) {
  const auto bounds = rectOf(at);
  return bounds ? bounds : behind(rectOf(before), MessageReader(letters).string());
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
  if (text && text->ends_with('\n')) {
    const auto whole = extents(toolkit_.isWindowRelative);
    if (!whole) return std::nullopt;
    return Rect{whole->x, letter->y + letter->height, 0, letter->height};
  }
  letter->x += letter->width;
  return letter;
}

AccessibilityStatus RemoteText::replace(const Stretch& old, const std::string& text) {
  if (toolkit_.keepsCaret || !canBeSent(text)) return AccessibilityStatus::failure;
  if (old.text.empty()) return insert(old.start, text);
  if (toolkit_.changesAtOneGo && !text.empty()) return eraseAndInsert(old, text);
  const AccessibilityStatus erased = erase(old);
  if (erased != AccessibilityStatus::success) return erased;
  const AccessibilityStatus inserted = insert(old.start, text);
  return inserted == AccessibilityStatus::failure ? AccessibilityStatus::erasedOnly : inserted;
}

AccessibilityStatus RemoteText::erase(const Stretch& old) {
  const Answer erased = std::move(carryOut(all(erasure(old))).front());
  if (saysYes(erased)) return AccessibilityStatus::success;
  if (erased.kind == Answer::Kind::notSent) return AccessibilityStatus::failure;
  // Not answered: it stands in the application's queue and will be carried out when the application wakes, so
  // it must not be erased a second time. Refused: believed only when the text is still there.
  if (erased.kind == Answer::Kind::unanswered || !stillHolds(old)) return AccessibilityStatus::erasedOnly;
  return AccessibilityStatus::failure;
}

AccessibilityStatus RemoteText::insert(std::int64_t position, const std::string& text) {
  if (text.empty()) return AccessibilityStatus::success;
  const Stretch fresh = stretchOf(position, text);
  std::vector<MessagePtr> changes;
  appendInsertion(changes, fresh);
  const auto answers = carryOut(std::move(changes));
  // In the application's queue it is as good as done; another way of inserting would bring the text twice.
  if (answers.back().kind == Answer::Kind::unanswered) return AccessibilityStatus::success;
  if (isInserted(answers.front(), fresh)) return placeCaretBehind(fresh, answers.back());
  returnCaret(position);
  return AccessibilityStatus::failure;
}

// An application that begins to draw what it has erased lets the insertion wait for a whole frame.
AccessibilityStatus RemoteText::eraseAndInsert(const Stretch& old, const std::string& text) {
  const Stretch fresh = stretchOf(old.start, text);
  std::vector<MessagePtr> changes = all(erasure(old));
  appendInsertion(changes, fresh);
  const auto answers = carryOut(std::move(changes));
  const Answer& erased = answers.front();
  if (erased.kind == Answer::Kind::notSent) return AccessibilityStatus::failure;
  if (answers.back().kind == Answer::Kind::unanswered) return AccessibilityStatus::success;
  if (!isInserted(answers[1], fresh)) {
    const bool isErased = saysYes(erased) || !stillHolds(old);
    returnCaret(isErased ? old.start : old.end);
    return isErased ? AccessibilityStatus::erasedOnly : AccessibilityStatus::failure;
  }
  if (!saysYes(erased) && takesBack(old, fresh)) return AccessibilityStatus::failure;
  return placeCaretBehind(fresh, answers.back());
}

// Asked in the same go, so that looking at the caret costs no time of its own.
void RemoteText::appendInsertion(std::vector<MessagePtr>& changes, const Stretch& fresh) const {
  changes.push_back(insertion(fresh));
  if (toolkit_.leavesCaret) changes.push_back(caretChange(fresh.end));
  changes.push_back(propertyRead(object_, textInterface, "CaretOffset"));
}

// Its answer may have come too late while the one about the caret was waited for.
bool RemoteText::isInserted(const Answer& answer, const Stretch& fresh) {
  if (answer.kind != Answer::Kind::unanswered) return saysYes(answer);
  const auto now = text(fresh.start, fresh.end);
  return !now || now == fresh.text;
}

// Where the new text was written before the old one, which the application would not erase.
bool RemoteText::takesBack(const Stretch& old, const Stretch& fresh) {
  if (text(fresh.start, fresh.end + old.end - old.start) != fresh.text + old.text) return false;
  if (!saysYes(carryOut(all(erasure(fresh))).front())) return false;
  returnCaret(old.end);
  return true;
}

void RemoteText::returnCaret(std::int64_t position) {
  if (toolkit_.leavesCaret) ask(caretChange(position));
}

// A widget that keeps its caret where the text was put in would have what is typed next before it. What else
// an application does with its caret, in correcting the text for example, is its own matter.
AccessibilityStatus RemoteText::placeCaretBehind(const Stretch& fresh, const Answer& answer) {
  const auto caret = caretIn(answer.reply.get());
  const bool isLeft = caret == fresh.start;
  if (!caret || *caret == fresh.end || (toolkit_.movesCaret && !isLeft)) return AccessibilityStatus::success;
  if (isCaretPutBehind(fresh) || !isLeft) {
    toolkit_.leavesCaret |= isLeft;
    return AccessibilityStatus::success;
  }
  toolkit_.keepsCaret = true;
  log("Accessibility", "An application keeps its caret before what is inserted: its texts are pasted");
  const bool isTakenBack = stillHolds(fresh) && saysYes(carryOut(all(erasure(fresh))).front());
  return isTakenBack ? AccessibilityStatus::erasedOnly : AccessibilityStatus::success;
}

// The text tells whether the application counts as its toolkit does. What is not answered yet is carried out
// in its turn, before the keys that come next.
bool RemoteText::isCaretPutBehind(const Stretch& fresh) {
  if (channel_.budget().allowance(caretTime) < caretTime) channel_.budget().open(caretTime);
  const auto answers =
      channel_.callAll(all(caretChange(fresh.end), propertyRead(object_, textInterface, "CaretOffset"),
                           textRequest(fresh.start, fresh.end)));
  const auto caret = caretIn(answers[1].reply.get());
  const auto text = MessageReader(answers[2].reply.get()).string();
  return (!caret || *caret == fresh.end) && (!text || text == fresh.text);
}

bool RemoteText::stillHolds(const Stretch& stretch) {
  return text(stretch.start, stretch.end) == stretch.text;
}

RemoteText::Stretch RemoteText::stretchOf(std::int64_t position, const std::string& text) const {
  return {position, position + countUnits(text, toolkit_.offset), text};
}

MessagePtr RemoteText::erasure(const Stretch& stretch) const {
  MessagePtr change = request(editableText, "DeleteText");
  append(change.get(), stretch.start);
  append(change.get(), stretch.end);
  return change;
}

MessagePtr RemoteText::insertion(const Stretch& fresh) const {
  MessagePtr change = request(editableText, "InsertText");
  append(change.get(), fresh.start);
  append(change.get(), fresh.text);
  append(change.get(), countUnits(fresh.text, toolkit_.insertedLength));
  return change;
}

MessagePtr RemoteText::caretChange(std::int64_t position) const {
  MessagePtr change = request(textInterface, "SetCaretOffset");
  append(change.get(), position);
  return change;
}

std::vector<Answer> RemoteText::carryOut(std::vector<MessagePtr> changes) {
  std::vector<Answer> answers = channel_.callAll(std::move(changes));
  if (answers.back().kind == Answer::Kind::unanswered) answers.back() = channel_.awaitOwed(object_.bus);
  return answers;
}

}  // namespace tessarin::atspi
