#include "platform/x11/X11Pasteboard.h"

#include <future>
#include <utility>

#include "base/Log.h"
#include "platform/MainQueue.h"
#include "platform/x11/SelectionChannel.h"
#include "platform/x11/XThread.h"

namespace tessarin::x11 {
namespace {

constexpr std::chrono::milliseconds textPatience{150};
/// Taking a selection needs three round trips; only a program that has grabbed the whole server takes longer.
constexpr std::chrono::milliseconds writePatience{200};

/// The main thread's side of a snapshot under way.
struct SnapshotDelivery {
  Pasteboard::SnapshotReady ready;
  std::shared_ptr<PasteboardSnapshot> snapshot = std::make_shared<PasteboardSnapshot>();
};

void complete(PasteboardSnapshot& snapshot, std::size_t missing) {
  snapshot.isComplete = true;
  if (missing == 0) return;
  log("Pasteboard", std::to_string(missing) + " types were not delivered in time");
}

SelectionChannel::SnapshotSinks sinksOnMain(MainQueue& queue,
                                            const std::shared_ptr<SnapshotDelivery>& delivery,
                                            const std::weak_ptr<void>& owner) {
  const auto later = [&queue, delivery, owner](std::function<void(SnapshotDelivery&)> work) {
    queue.async([delivery, owner, work = std::move(work)] {
      if (!owner.expired()) work(*delivery);
    });
  };
  SelectionChannel::SnapshotSinks sinks;
  sinks.ready = [later](std::vector<PasteboardItem> items, bool isComplete) {
    later([items = std::move(items), isComplete](SnapshotDelivery& d) mutable {
      d.snapshot->items = std::move(items);
      d.snapshot->isComplete = isComplete;
      d.ready(d.snapshot);
    });
  };
  sinks.late = [later](std::size_t position, PasteboardItem item) {
    later([position, item = std::move(item)](SnapshotDelivery& d) mutable {
      d.snapshot->items.insert(d.snapshot->items.begin() + static_cast<std::ptrdiff_t>(position),
                               std::move(item));
    });
  };
  sinks.complete = [later](std::size_t missing) {
    later([missing](SnapshotDelivery& d) { complete(*d.snapshot, missing); });
  };
  return sinks;
}

}  // namespace

struct X11Pasteboard::ReadState {
  std::uint64_t generation = 0;  // of the last write
  bool hasBeenRead = false;
  std::function<void()> callback;
};

X11Pasteboard::X11Pasteboard(MainQueue& queue, XThread& thread, std::shared_ptr<SelectionChannel> channel)
    : queue_(queue), thread_(thread), channel_(std::move(channel)), read_(std::make_shared<ReadState>()) {}

X11Pasteboard::~X11Pasteboard() = default;

std::optional<std::string> X11Pasteboard::string() {
  const auto answer = std::make_shared<std::promise<std::optional<std::string>>>();
  auto text = answer->get_future();
  thread_.post([channel = channel_, answer] {
    channel->readText(textPatience,
                      [answer](std::optional<std::string> found) { answer->set_value(std::move(found)); });
  });
  if (text.wait_for(textPatience) != std::future_status::ready) return std::nullopt;
  return text.get();
}

void X11Pasteboard::snapshot(SnapshotReady ready) {
  const auto delivery = std::make_shared<SnapshotDelivery>();
  delivery->ready = std::move(ready);
  thread_.post(
      [channel = channel_, sinks = sinksOnMain(queue_, delivery, read_)] { channel->readAll(sinks); });
}

void X11Pasteboard::writeText(const std::string& text) {
  auto observer = readObserver();
  runWrite([text, observer = std::move(observer)](SelectionChannel& channel) {
    channel.writeText(text, observer);
  });
}

void X11Pasteboard::write(const std::vector<PasteboardItem>& items) {
  readObserver();
  runWrite([items](SelectionChannel& channel) { channel.write(items); });
}

void X11Pasteboard::runWrite(std::function<void(SelectionChannel&)> work) {
  ++*writesUnderWay_;
  const bool done = thread_.call(
      [&thread = thread_, channel = channel_, work = std::move(work), underWay = writesUnderWay_] {
        work(*channel);
        thread.handleEvents();  // what others did before is counted by now
        --*underWay;
      },
      writePatience);
  if (!done) log("Pasteboard", "the X server did not answer in time");
}

/// Begins a new generation and gives what tells the main thread that it was read.
std::function<void()> X11Pasteboard::readObserver() {
  read_->hasBeenRead = false;
  const auto generation = ++read_->generation;
  return [&queue = queue_, weak = std::weak_ptr(read_), generation] {
    queue.async([weak, generation] {
      const auto state = weak.lock();
      if (!state || state->generation != generation) return;
      state->hasBeenRead = true;
      if (const auto callback = state->callback) callback();
    });
  };
}

std::int64_t X11Pasteboard::changeCount() const {
  return channel_->changeCount();
}

bool X11Pasteboard::hasBeenRead() const {
  return read_->hasBeenRead;
}

ReadManner X11Pasteboard::readManner() const {
  return channel_->owner().readManner();
}

std::int64_t X11Pasteboard::requestCount() const {
  return channel_->owner().requestCount();
}

std::int64_t X11Pasteboard::textRequestCount() const {
  return channel_->owner().textRequestCount();
}

void X11Pasteboard::onRead(std::function<void()> callback) {
  read_->callback = std::move(callback);
}

}  // namespace tessarin::x11
