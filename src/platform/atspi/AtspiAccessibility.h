#pragma once

#include <unistd.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "base/Signal.h"
#include "platform/Accessibility.h"
#include "platform/CoordinateSpace.h"
#include "platform/MainQueue.h"
#include "platform/atspi/AtspiElement.h"
#include "platform/atspi/CallChannel.h"
#include "platform/atspi/FocusWatcher.h"
#include "platform/atspi/RemoteText.h"
#include "platform/atspi/TextUnit.h"

namespace tessarin::atspi {

/// Accessibility over the AT-SPI bus, spoken directly: its client library keeps a copy of every tree that it
/// touches and follows all of its changes, which costs memory and wake-ups with a browser open, and its calls
/// cannot be bounded one by one.
class AtspiAccessibility final : public Accessibility {
 public:
  struct Options {
    std::function<bool()> isTrusted;
    std::function<void(PromptManner)> prompt;
    /// Asked at every rectangle, for its scale.
    std::function<CoordinateSpace()> coordinateSpace;
    /// The active window's visible frame on the screen, in pixels. Its size tells the scale that an
    /// application counts with. Some (GTK 4) know rectangles relative to their window only; without this they
    /// have none.
    std::function<std::optional<Rect>()> activeWindowFrame;
    /// Process that the active window belongs to, none when that is not known. An application that let the
    /// focus go without another taking it still has it while it is this one.
    std::function<std::optional<std::uint32_t>()> activeProcess;
    /// Whether a process has windows and the active one is another's: an application that hangs does not say
    /// that it has lost the focus, and then wakes with it. Processes without windows (of a web page, in a
    /// sandbox) show in others'.
    std::function<bool(std::uint32_t process)> isInBackground;
    /// Empty for the environment's.
    std::string sessionBusAddress;
    /// Many times what an application that is awake needs, and still no delay that a user feels.
    std::chrono::milliseconds longestCall{50};
    /// Whose windows are nobody's: a call into our own process would wait for itself.
    std::uint32_t ownProcess = static_cast<std::uint32_t>(getpid());
  };

  /// `queue` outlives this object.
  AtspiAccessibility(MainQueue& queue, Options options);
  ~AtspiAccessibility() override;

  bool isTrusted() override;
  void prompt(PromptManner manner) override;
  ElementRef systemWide() override;
  std::optional<AttributeValue> attribute(const ElementRef& element, std::string_view name) override;
  std::optional<AttributeValue> parameterizedAttribute(const ElementRef& element, std::string_view name,
                                                       const AttributeValue& parameter) override;
  AccessibilityStatus setAttribute(const ElementRef& element, std::string_view name,
                                   const AttributeValue& value) override;
  Subscription onFocusMoved(std::function<void()> callback) override;
  void beginBudget(std::chrono::milliseconds budget) override;
  bool isBusy(const ElementRef& element) override;
  bool pause(std::chrono::milliseconds duration) override;

 private:
  using Value = std::optional<AttributeValue>;

  void prepare();
  FocusModel::Focus focus();
  bool isFrontmost(const std::string& bus);
  bool isInBackground(const std::string& bus);
  std::optional<std::uint32_t> processOf(const std::string& bus);
  Value focusedApplication();
  Value ofApplication(const AtspiElement& application, std::string_view name);
  Value ofObject(const ObjectReference& object, std::string_view name);
  /// Role or parent; of what the focused element lies in they are asked once, until the focus moves.
  Value kinship(const ObjectReference& object, std::string_view name);
  Value role(const ObjectReference& object);
  Value selectedRange(const ObjectReference& object);
  Value valueOf(const ObjectReference& object);
  std::optional<ObjectReference> windowOf(ObjectReference object);
  /// None without the origin that window-relative rectangles need.
  std::optional<Rect> toPoints(const Rect& units, const ObjectReference& object, bool isWindowRelative);
  /// None when the application is too busy to say.
  std::optional<double> scaleOf(const ObjectReference& object, const Rect& frame, bool isWindowRelative);
  std::optional<Rect> extents(const ObjectReference& object);
  std::optional<Toolkit> toolkit(const std::string& bus);
  std::optional<RemoteText> textOf(const ObjectReference& object);
  Value boundsFor(const ObjectReference& object, const TextRange& range);
  Value stringFor(const ObjectReference& object, const TextRange& range);
  AccessibilityStatus replace(const ObjectReference& object, const TextRange& range, const std::string& text);

  const Options options_;
  CallChannel channel_;
  std::map<std::string, Toolkit> toolkits_;
  std::map<std::string, std::uint32_t> processes_;
  std::map<std::string, bool> inBackground_;  ///< since the budget began
  struct Kin {
    std::optional<ObjectReference> of;  ///< the focused element
    std::map<std::pair<ObjectReference, std::string>, AttributeValue> known;
    std::optional<double> scale;  ///< pixels a unit of its window
  };
  /// As remembered of what has the focus now.
  Kin& kin();
  Kin kin_;
  /// What has been read for the key in hand, as long as nobody waits or writes.
  struct Reading {
    ObjectReference of;
    RemoteText::Glance glance;
    std::optional<TextRange> range;  ///< of the stretch
    RemoteText::Stretch stretch;
  };
  const Reading* reading(const ObjectReference& object);
  std::optional<RemoteText::Stretch> stretchFor(RemoteText& text, const ObjectReference& object,
                                                const TextRange& range);
  std::optional<Reading> reading_;
  /// Where a caret was seen last: there it mostly still is when the text before it is wanted.
  std::optional<std::pair<ObjectReference, std::int64_t>> lastCaret_;
  /// The text that the user may write into, and nobody over the bus.
  std::optional<ObjectReference> readOnly_;
  /// What was read along with the bounds asked for last, for the same key.
  struct CaretReading {
    ObjectReference of;
    TextRange range;
    RemoteText::CaretPlace place;
  };
  const RemoteText::CaretPlace* knownPlace(const ObjectReference& object, const TextRange& range) const;
  const RemoteText::CaretPlace* caretPlace(const ObjectReference& object, const TextRange& range);
  void forgetReadings();
  std::optional<CaretReading> caretReading_;
  struct Selection {
    ObjectReference object;
    TextRange range;
  };
  std::optional<Selection> selection_;
  std::shared_ptr<Signal<>> focusMoved_ = std::make_shared<Signal<>>();
  FocusWatcher watcher_;
};

}  // namespace tessarin::atspi
