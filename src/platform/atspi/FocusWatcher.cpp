#include "platform/atspi/FocusWatcher.h"

#include <poll.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Log.h"
#include "platform/atspi/AccessibilityBus.h"
#include "platform/atspi/BusCalls.h"
#include "platform/atspi/Messages.h"

namespace tessarin::atspi {
namespace {

constexpr std::chrono::seconds betweenRequests{5};
constexpr std::chrono::milliseconds betweenSearchRequests{250};
// Most applications tell the focused element right after the window. GTK 4 tells the window alone, and before
// its objects can be called: while it starts on a busy machine that takes seconds.
constexpr std::chrono::milliseconds searchDelays[] = {
    std::chrono::milliseconds(30),   std::chrono::milliseconds(150),  std::chrono::milliseconds(600),
    std::chrono::milliseconds(1500), std::chrono::milliseconds(3000), std::chrono::milliseconds(6000)};
constexpr const char* launcherMatch =
    "type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',arg0='org.a11y.Bus'";

int fdOf(DBusConnection* connection) {
  int fd = -1;
  if (connection != nullptr) dbus_connection_get_unix_fd(connection, &fd);
  return fd;
}

/// A blocking call reads what comes before its answer, and poll then knows nothing of that.
bool hasUnread(DBusConnection* connection) {
  return connection != nullptr &&
         dbus_connection_get_dispatch_status(connection) == DBUS_DISPATCH_DATA_REMAINS;
}

}  // namespace

FocusWatcher::FocusWatcher(std::string sessionAddress, std::uint32_t ownProcess,
                           std::function<void()> focusMoved)
    : sessionAddress_(std::move(sessionAddress)),
      ownProcess_(ownProcess),
      focusMoved_(std::move(focusMoved)),
      lastRequest_(Clock::now()) {
  dbus_threads_init_default();
  thread_ = std::thread([this] { run(); });
}

FocusWatcher::~FocusWatcher() {
  isStopping_ = true;
  wake_.send();
  thread_.join();
}

FocusModel::Focus FocusWatcher::focus() const {
  const std::lock_guard lock(mutex_);
  return focus_;
}

FocusModel::Focus FocusWatcher::lostFocus() const {
  const std::lock_guard lock(mutex_);
  return lost_;
}

ConnectionPtr FocusWatcher::takeCallConnection() {
  const std::lock_guard lock(mutex_);
  return std::move(callConnection_);
}

void FocusWatcher::requestConnection() {
  if (Clock::now() - lastRequest_ < betweenRequests) return;
  lastRequest_ = Clock::now();
  isConnectionWanted_ = true;
  wake_.send();
}

void FocusWatcher::requestSearch() {
  if (!isElementUnknown_ || Clock::now() - lastSearchRequest_ < betweenSearchRequests) return;
  lastSearchRequest_ = Clock::now();
  isSearchRequested_ = true;
  wake_.send();
}

void FocusWatcher::run() {
  while (!isStopping_) {
    dropWhatIsGone();
    if (isConnectionWanted_.exchange(false)) connect();
    takeIn();
    searchWhenDue();
    const bool isServed = isSearchRequested_ && serveSearchRequest();
    publish();
    if (isServed) isSearchRequested_ = false;
    sleep();
  }
  events_.reset();
  if (session_) dbus_connection_remove_filter(session_.get(), &onSessionMessage, this);
}

void FocusWatcher::dropWhatIsGone() {
  if (events_ && !events_->isConnected()) {
    log("Accessibility", "The accessibility bus has gone");
    events_.reset();
    searchAt_.reset();
  }
  if (session_ && !dbus_connection_get_is_connected(session_.get())) session_.reset();
}

bool FocusWatcher::hasSomethingGone() const {
  return (events_ && !events_->isConnected()) ||
         (session_ && !dbus_connection_get_is_connected(session_.get()));
}

void FocusWatcher::connect() {
  if (!session_) connectToSession();
  if (session_ && !events_) connectToAccessibility();
}

void FocusWatcher::connectToSession() {
  session_ = connectToSessionBus(sessionAddress_);
  if (!session_) return;
  dbus_connection_add_filter(session_.get(), &onSessionMessage, this, nullptr);
  dbus_bus_add_match(session_.get(), launcherMatch, nullptr);
  dbus_connection_flush(session_.get());
}

void FocusWatcher::connectToAccessibility() {
  const auto address = AccessibilityBus::address(session_.get());
  if (!address) return;
  ConnectionPtr forEvents = connectTo(*address);
  ConnectionPtr forCalls = connectTo(*address);
  if (!forEvents || !forCalls) return;
  events_ = std::make_unique<FocusEvents>(std::move(forEvents), ownProcess_, isStopping_);
  searches_ = 0;
  searchAt_ = Clock::now();
  const std::lock_guard lock(mutex_);
  callConnection_ = std::move(forCalls);
}

DBusHandlerResult FocusWatcher::onSessionMessage(DBusConnection*, DBusMessage* message, void* self) {
  if (dbus_message_is_signal(message, DBUS_INTERFACE_DBUS, "NameOwnerChanged")) {
    MessageReader reader(message);
    reader.string();
    reader.string();
    const auto newOwner = reader.string();
    auto* watcher = static_cast<FocusWatcher*>(self);
    if (newOwner && !newOwner->empty()) watcher->isConnectionWanted_ = true;
  }
  return DBUS_HANDLER_RESULT_NOT_YET_HANDLED;
}

void FocusWatcher::takeIn() {
  if (session_) {
    dbus_connection_read_write(session_.get(), 0);
    while (dbus_connection_dispatch(session_.get()) == DBUS_DISPATCH_DATA_REMAINS) {
    }
  }
  if (!events_) return;
  events_->takeIn();
  planSearch();
}

void FocusWatcher::planSearch() {
  const int activations = events_->model().activations();
  if (std::exchange(activations_, activations) == activations || !events_->model().windowToSearch()) return;
  searches_ = 0;
  searchAt_ = Clock::now() + searchDelays[0];
}

void FocusWatcher::searchWhenDue() {
  if (!events_ || !searchAt_ || Clock::now() < *searchAt_) return;
  searchAt_.reset();
  // Walking a tree keeps its application from its work. Who let go for a moment only will say so when it is
  // back.
  if (events_->model().focus().element || events_->model().lost().element) return;
  const bool isFinished = events_->search();
  if (isFinished) ++searches_;
  const bool goesOn = !isFinished || events_->hasToSearch();
  if (goesOn && searches_ < std::size(searchDelays)) searchAt_ = Clock::now() + searchDelays[searches_];
}

bool FocusWatcher::serveSearchRequest() {
  return !events_ || !events_->model().windowToSearch() || events_->search();
}

void FocusWatcher::publish() {
  isElementUnknown_ = events_ && events_->model().windowToSearch();
  {
    const std::lock_guard lock(mutex_);
    focus_ = events_ ? events_->model().focus() : FocusModel::Focus{};
    lost_ = events_ ? events_->model().lost() : FocusModel::Focus{};
  }
  if (events_ && events_->takeMoved()) focusMoved_();
}

void FocusWatcher::sleep() {
  if (isConnectionWanted_ || isStopping_ || hasUnread(session_.get())) return;
  if (events_ && events_->hasUnread()) return;
  // A connection found closed meanwhile has no descriptor any more that would wake us.
  if (hasSomethingGone()) return;
  pollfd waiting[] = {
      {wake_.fd(), POLLIN, 0}, {fdOf(session_.get()), POLLIN, 0}, {events_ ? events_->fd() : -1, POLLIN, 0}};
  int milliseconds = -1;
  if (searchAt_) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*searchAt_ - Clock::now());
    milliseconds = static_cast<int>(std::max<std::int64_t>(left.count(), 0));
  }
  poll(waiting, std::size(waiting), milliseconds);
  wake_.clear();
}

}  // namespace tessarin::atspi
