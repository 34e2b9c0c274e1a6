#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessarin {

/// One representation of the pasteboard's contents: its type (a selection target or MIME type) and its bytes.
struct PasteboardItem {
  std::string type;
  std::string data;
  bool operator==(const PasteboardItem&) const = default;
};

/// Everything that was on the pasteboard, in the order in which its owner listed it. Goes on filling until
/// `isComplete` (one second at most); what did not come by then counts as unreadable.
struct PasteboardSnapshot {
  std::vector<PasteboardItem> items;
  bool isComplete = false;
};

/// How an application goes about reading what it pastes.
enum class ReadManner {
  plain,
  ahead,     ///< only to see whether there is text: it reads again when it pastes, however late that is
  likely,    ///< it has most likely pasted; only whether it reads again, as after `ahead`, can tell
  checking,  ///< it pastes if it then sees a few times over that the contents have not changed
  checked    ///< it has seen that as often as it is known to look
};

/// A place that holds copied contents. There are two: the general one, and the one that terminals paste from.
/// Main thread.
class Pasteboard {
 public:
  using SnapshotReady = std::function<void(std::shared_ptr<const PasteboardSnapshot>)>;

  virtual ~Pasteboard() = default;

  /// The plain text, if there is any. Waits for another program for 150 ms at most.
  virtual std::optional<std::string> string() = 0;
  /// Reads all types. `ready` runs later, once, as soon as the pasteboard may be written without losing what
  /// is still on its way: when everything has come, or after 200 ms.
  virtual void snapshot(SnapshotReady ready) = 0;
  /// Clears and writes text that is meant for one paste only; clipboard managers are asked to leave it out.
  virtual void writeText(const std::string& text) = 0;
  /// Clears and writes all items; an empty list leaves the pasteboard empty.
  virtual void write(const std::vector<PasteboardItem>& items) = 0;
  /// Whether what was written last is there. False for a moment where something holds up the whole server:
  /// the write is on its way then.
  virtual bool isWriteDone() const { return true; }
  /// Grows whenever anybody, we included, changes the contents.
  virtual std::int64_t changeCount() const = 0;
  /// Whether the application that had the focus when the paste chord was sent has read, to its end, what
  /// `writeText` wrote.
  virtual bool hasBeenRead() const = 0;
  /// How that application has read last what `writeText` wrote.
  virtual ReadManner readManner() const { return ReadManner::plain; }
  /// How often anybody has asked for what was written last, in any form, or for the list of its forms.
  virtual std::int64_t requestCount() const { return 0; }
  /// How often anybody, clipboard managers included, has asked for its text.
  virtual std::int64_t textRequestCount() const { return 0; }
  /// Runs each time that application has read it. One callback at a time; an empty one forgets it.
  virtual void onRead(std::function<void()> callback) = 0;
};

}  // namespace tessarin
