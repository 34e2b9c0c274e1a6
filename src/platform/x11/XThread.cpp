#include "platform/x11/XThread.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <future>
#include <utility>

namespace tessarin::x11 {

std::unique_ptr<XThread> XThread::connect(const std::string& display) {
  int screenNumber = 0;
  Connection connection(xcb_connect(display.empty() ? nullptr : display.c_str(), &screenNumber));
  if (xcb_connection_has_error(connection.get()) != 0) return nullptr;
  return std::unique_ptr<XThread>(new XThread(std::move(connection), screenNumber));
}

XThread::XThread(Connection connection, int screenNumber)
    : connection_(std::move(connection)), wakeUp_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
  for (; screenNumber > 0 && screens.rem > 1; --screenNumber) xcb_screen_next(&screens);
  screen_ = screens.data;
}

XThread::~XThread() {
  stop();
  close(wakeUp_);
}

void XThread::start(EventHandler handler) {
  handler_ = std::move(handler);
  thread_ = std::thread([this] { run(); });
}

void XThread::stop() {
  stopping_ = true;
  eventfd_write(wakeUp_, 1);
  if (thread_.joinable()) thread_.join();
}

void XThread::post(Work work) {
  {
    const std::lock_guard lock(mutex_);
    posted_.push_back(std::move(work));
  }
  eventfd_write(wakeUp_, 1);
}

bool XThread::call(Work work, std::chrono::milliseconds timeout) {
  const auto done = std::make_shared<std::promise<void>>();
  auto ran = done->get_future();
  post([work = std::move(work), done] {
    work();
    done->set_value();
  });
  return ran.wait_for(timeout) == std::future_status::ready;
}

void XThread::after(std::chrono::milliseconds delay, Work work) {
  timers_.emplace(Clock::now() + delay, std::move(work));
}

xcb_timestamp_t XThread::serverTime(xcb_window_t window) {
  const auto clockProperty = XCB_ATOM_WM_ICON_NAME;  // never shown: the window is not mapped
  xcb_change_property(connection(), XCB_PROP_MODE_APPEND, window, clockProperty, XCB_ATOM_STRING, 8, 0,
                      nullptr);
  const Owned<xcb_get_input_focus_reply_t> roundTrip(
      xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr));
  xcb_timestamp_t time = XCB_CURRENT_TIME;
  while (Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection())}) {
    if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY) {
      const auto& notify = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
      if (notify.window == window && notify.atom == clockProperty) time = notify.time;
    }
    backlog_.push_back(std::move(event));
  }
  return time;
}

void XThread::run() {
  while (!stopping_) {
    runPosted();
    runTimers();
    handleEvents();
    xcb_flush(connection());
    // A flush that had to wait may have read events, which poll would not tell of.
    if (auto event = Owned<xcb_generic_event_t>(xcb_poll_for_queued_event(connection()))) {
      backlog_.push_back(std::move(event));
    } else {
      sleep();
    }
  }
}

void XThread::runPosted() {
  std::vector<Work> posted;
  {
    const std::lock_guard lock(mutex_);
    posted.swap(posted_);
  }
  for (const Work& work : posted) work();
}

void XThread::runTimers() {
  while (!timers_.empty() && timers_.begin()->first <= Clock::now()) {
    const Work work = std::move(timers_.begin()->second);
    timers_.erase(timers_.begin());
    work();
  }
}

void XThread::handleEvents() {
  while (const auto event = nextEvent()) {
    if (event->response_type != 0) handler_(*event);
  }
  lost_ = xcb_connection_has_error(connection()) != 0;
}

Owned<xcb_generic_event_t> XThread::nextEvent() {
  if (backlog_.empty()) return Owned<xcb_generic_event_t>(xcb_poll_for_event(connection()));
  auto event = std::move(backlog_.front());
  backlog_.pop_front();
  return event;
}

void XThread::sleep() {
  pollfd files[] = {{wakeUp_, POLLIN, 0}, {xcb_get_file_descriptor(connection()), POLLIN, 0}};
  poll(files, lost_ ? 1 : 2, timeout());
  eventfd_t count = 0;
  eventfd_read(wakeUp_, &count);
}

int XThread::timeout() const {
  if (timers_.empty()) return -1;
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(timers_.begin()->first - Clock::now()).count();
  return static_cast<int>(std::clamp<decltype(left)>(left, 0, 60'000));
}

}  // namespace tessarin::x11
