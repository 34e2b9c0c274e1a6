#include "platform/atspi/AtspiAccessibility.h"

#include <thread>
#include <utility>

#include "platform/atspi/Messages.h"
#include "platform/atspi/Roles.h"
#include "platform/atspi/WindowScale.h"

namespace tessarin::atspi {
namespace {

constexpr int farthestWindow = 32;
/// Names on a bus are never given out twice, so what is remembered of applications only piles up.
constexpr std::size_t mostApplications = 64;

const AtspiElement* known(const ElementRef& element) {
  return dynamic_cast<const AtspiElement*>(element.get());
}

std::optional<AttributeValue> element(const std::optional<ObjectReference>& object) {
  if (!object) return std::nullopt;
  return ElementRef(std::make_shared<AtspiElement>(*object));
}

}  // namespace

AtspiAccessibility::AtspiAccessibility(MainQueue& queue, Options options)
    : options_(std::move(options)),
      channel_(options_.longestCall),
      watcher_(options_.sessionBusAddress, options_.ownProcess, [&queue, weak = std::weak_ptr(focusMoved_)] {
        queue.async([weak] {
          if (const auto signal = weak.lock()) signal->emit();
        });
      }) {}

AtspiAccessibility::~AtspiAccessibility() = default;

bool AtspiAccessibility::isTrusted() {
  return options_.isTrusted && options_.isTrusted();
}

void AtspiAccessibility::prompt(PromptManner manner) {
  if (options_.prompt) options_.prompt(manner);
}

ElementRef AtspiAccessibility::systemWide() {
  return std::make_shared<AtspiElement>();
}

void AtspiAccessibility::beginBudget(std::chrono::milliseconds budget) {
  channel_.budget().open(budget);
  inBackground_.clear();
  forgetReadings();
}

void AtspiAccessibility::forgetReadings() {
  reading_.reset();
  caretReading_.reset();
}

bool AtspiAccessibility::isBusy(const ElementRef& element) {
  const AtspiElement* asked = known(element);
  if (asked == nullptr) return false;
  return asked->isSystemWide() ? watcher_.isSearching() : channel_.owesAnswer(asked->object().bus);
}

bool AtspiAccessibility::pause(std::chrono::milliseconds duration) {
  if (channel_.budget().allowance(duration) < duration) return false;
  forgetReadings();
  std::this_thread::sleep_for(duration);
  channel_.budget().charge(duration);
  return true;
}

Subscription AtspiAccessibility::onFocusMoved(std::function<void()> callback) {
  return focusMoved_->subscribe(std::move(callback));
}

void AtspiAccessibility::prepare() {
  if (ConnectionPtr connection = watcher_.takeCallConnection()) {
    toolkits_.clear();
    processes_.clear();
    kin_ = {};
    forgetReadings();
    channel_.use(std::move(connection));
  }
  if (!channel_.isConnected()) watcher_.requestConnection();
}

std::optional<AttributeValue> AtspiAccessibility::attribute(const ElementRef& element,
                                                            std::string_view name) {
  const AtspiElement* asked = known(element);
  if (asked == nullptr) return std::nullopt;
  prepare();
  if (asked->isSystemWide()) {
    return name == attribute::focusedApplication ? focusedApplication() : std::nullopt;
  }
  return asked->isApplication() ? ofApplication(*asked, name) : ofObject(asked->object(), name);
}

FocusModel::Focus AtspiAccessibility::focus() {
  FocusModel::Focus current = watcher_.focus();
  if (current.element) return isInBackground(current.element->bus) ? FocusModel::Focus{} : current;
  FocusModel::Focus lost = watcher_.lostFocus();
  return lost.element && isFrontmost(lost.element->bus) ? lost : current;
}

std::optional<std::uint32_t> AtspiAccessibility::processOf(const std::string& bus) {
  if (const auto known = processes_.find(bus); known != processes_.end()) return known->second;
  const Answer answer = channel_.call(processQuery(bus));
  const auto process = answer.reply ? MessageReader(answer.reply.get()).uint32() : std::nullopt;
  if (!process) return std::nullopt;
  if (processes_.size() >= mostApplications) processes_.clear();
  return processes_[bus] = *process;
}

bool AtspiAccessibility::isFrontmost(const std::string& bus) {
  if (!options_.activeProcess) return false;
  const auto process = processOf(bus);
  return process && options_.activeProcess() == process;
}

bool AtspiAccessibility::isInBackground(const std::string& bus) {
  if (!options_.isInBackground) return false;
  const auto [known, isNew] = inBackground_.try_emplace(bus, false);
  const auto process = isNew ? processOf(bus) : std::nullopt;
  if (process) known->second = options_.isInBackground(*process);
  return known->second;
}

AtspiAccessibility::Value AtspiAccessibility::focusedApplication() {
  const FocusModel::Focus focus = this->focus();
  if (!focus.element) watcher_.requestSearch();
  const auto& known = focus.element ? focus.element : focus.window;
  if (!known) return std::nullopt;
  return atspi::element(ObjectReference{known->bus, applicationPath});
}

AtspiAccessibility::Value AtspiAccessibility::ofApplication(const AtspiElement& application,
                                                            std::string_view name) {
  const std::string& bus = application.object().bus;
  const FocusModel::Focus focus = this->focus();
  const bool hasElement = focus.element && focus.element->bus == bus;
  if (name == attribute::focusedElement) return hasElement ? atspi::element(focus.element) : std::nullopt;
  if (name != attribute::focusedWindow) return std::nullopt;
  if (focus.window && focus.window->bus == bus) return atspi::element(focus.window);
  return hasElement ? atspi::element(windowOf(*focus.element)) : std::nullopt;
}

std::optional<ObjectReference> AtspiAccessibility::windowOf(ObjectReference object) {
  for (int step = 0; step < farthestWindow; ++step) {
    RemoteObject remote(channel_, object);
    const auto role = remote.role();
    if (!role) return std::nullopt;
    if (isWindow(*role)) return object;
    auto parent = remote.parent();
    if (!parent) return std::nullopt;
    object = *std::move(parent);
  }
  return std::nullopt;
}

AtspiAccessibility::Value AtspiAccessibility::ofObject(const ObjectReference& object, std::string_view name) {
  if (name == attribute::role || name == attribute::parent) return kinship(object, name);
  if (name == attribute::value) return valueOf(object);
  if (name == attribute::selectedTextRange) return selectedRange(object);
  if (name != attribute::position && name != attribute::size) return std::nullopt;
  const auto rect = extents(object);
  if (!rect) return std::nullopt;
  if (name == attribute::position) return Point{rect->x, rect->y};
  return Size{rect->width, rect->height};
}

AtspiAccessibility::Kin& AtspiAccessibility::kin() {
  const auto focused = focus().element;
  if (kin_.of != focused) kin_ = {focused, {}, {}};
  return kin_;
}

AtspiAccessibility::Value AtspiAccessibility::kinship(const ObjectReference& object, std::string_view name) {
  auto& [focused, known, scale] = kin();
  auto key = std::pair(object, std::string(name));
  if (const auto found = known.find(key); found != known.end()) return found->second;
  const bool isRole = name == attribute::role;
  Value value = isRole ? role(object) : atspi::element(RemoteObject(channel_, object).parent());
  // The focused element's own role changes with its states: a password may be shown and hidden.
  if (value && focused && !(isRole && object == focused)) known.emplace(std::move(key), *value);
  return value;
}

AtspiAccessibility::Value AtspiAccessibility::role(const ObjectReference& object) {
  const Reading* read = object == focus().element ? reading(object) : nullptr;
  RemoteObject remote(channel_, object);
  const auto number = read != nullptr ? read->glance.role : remote.role();
  if (!number) return std::nullopt;
  std::uint64_t states = 0;
  std::string tag;
  if (isPlainText(*number)) {
    states = (read != nullptr ? read->glance.states : remote.states()).value_or(0);
    const auto counts = toolkit(object.bus);
    if (counts && counts->showsWebPages) tag = remote.attribute("tag");
  }
  return std::string(roleName(*number, states, tag));
}

AtspiAccessibility::Value AtspiAccessibility::valueOf(const ObjectReference& object) {
  const Reading* read = reading(object);
  if (read == nullptr || read->glance.role == busRole::terminal) return std::nullopt;
  const bool isEditable = (read->glance.states.value_or(0) & busState::editable) != 0;
  if (!isEditable || !read->glance.selectedRange) return std::nullopt;
  readOnly_ = read->glance.isEditableText ? std::nullopt : std::optional(object);
  return std::string();
}

AtspiAccessibility::Value AtspiAccessibility::selectedRange(const ObjectReference& object) {
  std::optional<TextRange> range;
  if (reading_ && reading_->of == object) {
    range = reading_->glance.selectedRange;
  } else if (auto text = textOf(object)) {
    range = text->selectedRange();
  }
  if (range) lastCaret_ = {object, range->location};
  return range ? Value(*range) : std::nullopt;
}

const AtspiAccessibility::Reading* AtspiAccessibility::reading(const ObjectReference& object) {
  if (reading_ && reading_->of == object) return &*reading_;
  auto text = textOf(object);
  if (!text) return nullptr;
  const bool wasCaretSeen = lastCaret_ && lastCaret_->first == object;
  RemoteText::Glance glance = text->glance(wasCaretSeen ? std::optional(lastCaret_->second) : std::nullopt);
  if (!glance.role) return nullptr;
  reading_ = Reading{object, glance, {}, {}};
  return &*reading_;
}

std::optional<Toolkit> AtspiAccessibility::toolkit(const std::string& bus) {
  if (const auto cached = toolkits_.find(bus); cached != toolkits_.end()) return cached->second;
  constexpr const char* interface = "org.a11y.atspi.Application";
  RemoteObject application(channel_, {bus, applicationPath});
  const auto name = application.stringProperty(interface, "ToolkitName");
  const auto version = application.stringProperty(interface, "Version");
  if (!name || !version) return std::nullopt;
  if (toolkits_.size() >= mostApplications) toolkits_.clear();
  return toolkits_[bus] = Toolkit::named(*name, *version);
}

std::optional<RemoteText> AtspiAccessibility::textOf(const ObjectReference& object) {
  const auto counts = toolkit(object.bus);
  if (!counts) return std::nullopt;
  return std::optional<RemoteText>(std::in_place, channel_, object, *counts);
}

std::optional<Rect> AtspiAccessibility::toPoints(const Rect& units, const ObjectReference& object,
                                                 bool isWindowRelative) {
  std::optional<Rect> frame;
  if ((isWindowRelative || !kin().scale) && options_.activeWindowFrame) frame = options_.activeWindowFrame();
  if (isWindowRelative && !frame) return std::nullopt;
  const auto scale = frame ? scaleOf(object, *frame, isWindowRelative) : kin().scale.value_or(1);
  if (!scale) return std::nullopt;
  Rect onScreen{units.x * *scale, units.y * *scale, units.width * *scale, units.height * *scale};
  if (isWindowRelative) {
    onScreen.x += frame->x;
    onScreen.y += frame->y;
  }
  return options_.coordinateSpace ? options_.coordinateSpace().toPoints(onScreen) : onScreen;
}

std::optional<double> AtspiAccessibility::scaleOf(const ObjectReference& object, const Rect& frame,
                                                  bool isWindowRelative) {
  if (const auto known = kin().scale) return *known;
  const auto active = focus().window;
  const auto window = active && active->bus == object.bus ? active : windowOf(object);
  const auto extents = window ? RemoteObject(channel_, *window).extents(isWindowRelative) : std::nullopt;
  if (!extents) return channel_.owesAnswer(object.bus) ? std::nullopt : std::optional(1.0);
  const auto scale = pixelsPerUnit({frame.width, frame.height}, {extents->width, extents->height});
  // A window that is only coming up may not have its size yet.
  if (kin().of && scale) kin_.scale = scale;
  return scale.value_or(1);
}

std::optional<Rect> AtspiAccessibility::extents(const ObjectReference& object) {
  const auto counts = toolkit(object.bus);
  if (!counts) return std::nullopt;
  const auto units = RemoteObject(channel_, object).extents(counts->isWindowRelative);
  return units ? toPoints(*units, object, counts->isWindowRelative) : std::nullopt;
}

std::optional<AttributeValue> AtspiAccessibility::parameterizedAttribute(const ElementRef& element,
                                                                         std::string_view name,
                                                                         const AttributeValue& parameter) {
  const AtspiElement* asked = known(element);
  const auto* range = std::get_if<TextRange>(&parameter);
  if (asked == nullptr || asked->isSystemWide() || range == nullptr) return std::nullopt;
  prepare();
  if (name == attribute::stringForRange) return stringFor(asked->object(), *range);
  if (name == attribute::boundsForRange) return boundsFor(asked->object(), *range);
  const auto* place = name == attribute::isTerminal ? caretPlace(asked->object(), *range) : nullptr;
  return place && place->role ? Value(*place->role == busRole::terminal) : std::nullopt;
}

const RemoteText::CaretPlace* AtspiAccessibility::knownPlace(const ObjectReference& object,
                                                             const TextRange& range) const {
  const bool isKnown = caretReading_ && caretReading_->of == object && caretReading_->range == range;
  return isKnown ? &caretReading_->place : nullptr;
}

const RemoteText::CaretPlace* AtspiAccessibility::caretPlace(const ObjectReference& object,
                                                             const TextRange& range) {
  if (const auto* known = knownPlace(object, range)) return known;
  auto text = textOf(object);
  if (!text) return nullptr;
  caretReading_ = CaretReading{object, range, text->caretPlace(range)};
  return &caretReading_->place;
}

AtspiAccessibility::Value AtspiAccessibility::boundsFor(const ObjectReference& object,
                                                        const TextRange& range) {
  caretReading_.reset();
  const auto* place = caretPlace(object, range);
  const auto counts = toolkit(object.bus);
  if (!place || !place->bounds || !counts) return std::nullopt;
  const auto points = toPoints(*place->bounds, object, counts->isWindowRelative);
  return points ? Value(*points) : std::nullopt;
}

AtspiAccessibility::Value AtspiAccessibility::stringFor(const ObjectReference& object,
                                                        const TextRange& range) {
  if (const auto* place = range.length > 0 ? knownPlace(object, range) : nullptr) return place->before;
  auto text = textOf(object);
  auto stretch = text ? stretchFor(*text, object, range) : std::nullopt;
  if (!stretch) return std::nullopt;
  Value string = stretch->text;
  if (reading_ && reading_->of == object) {
    reading_->range = range;
    reading_->stretch = *std::move(stretch);
  }
  return string;
}

std::optional<RemoteText::Stretch> AtspiAccessibility::stretchFor(RemoteText& text,
                                                                  const ObjectReference& object,
                                                                  const TextRange& range) {
  const bool isRead = reading_ && reading_->of == object && reading_->glance.before;
  auto read = isRead ? text.stretchIn(*reading_->glance.before, range) : std::nullopt;
  return read ? read : text.stretch(range);
}

// What has just been looked at for this key is what is replaced.
AccessibilityStatus AtspiAccessibility::replace(const ObjectReference& object, const TextRange& range,
                                                const std::string& newText) {
  caretReading_.reset();
  if (object == readOnly_) return AccessibilityStatus::failure;
  const auto read = std::exchange(reading_, std::nullopt);
  auto text = textOf(object);
  if (!text) return AccessibilityStatus::failure;
  const bool isRead = read && read->of == object && read->range == range;
  const auto stretch = isRead ? std::optional(read->stretch) : text->stretch(range);
  if (!stretch) return AccessibilityStatus::failure;
  const AccessibilityStatus status = text->replace(*stretch, newText);
  toolkits_[object.bus] = text->toolkit();
  return status;
}

AccessibilityStatus AtspiAccessibility::setAttribute(const ElementRef& element, std::string_view name,
                                                     const AttributeValue& value) {
  const AtspiElement* asked = known(element);
  if (asked == nullptr || asked->isSystemWide()) return AccessibilityStatus::failure;
  if (name == attribute::selectedTextRange) {
    const auto* range = std::get_if<TextRange>(&value);
    if (range == nullptr) return AccessibilityStatus::failure;
    // Selecting for real would flicker and take the user's PRIMARY selection.
    selection_ = Selection{asked->object(), *range};
    return AccessibilityStatus::success;
  }
  const auto* string = std::get_if<std::string>(&value);
  const auto selection = std::exchange(selection_, std::nullopt);
  if (name != attribute::selectedText || string == nullptr || !selection ||
      selection->object != asked->object()) {
    return AccessibilityStatus::failure;
  }
  prepare();
  return replace(asked->object(), selection->range, *string);
}

}  // namespace tessarin::atspi
