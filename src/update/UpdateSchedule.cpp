#include "update/UpdateSchedule.h"

#include <QDateTime>
#include <algorithm>
#include <optional>
#include <utility>

#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"
#include "platform/WallClock.h"

namespace tessarin {
namespace {

constexpr const char* lastCheckKey = "lastUpdateCheck";
/// The program has started and the desktop with it before the network is asked for anything.
constexpr std::chrono::seconds startDelay{30};
/// The queue's clock stands still while the machine sleeps, and the time of day can be set: look again now
/// and then.
constexpr std::chrono::milliseconds longestWait = std::chrono::hours(1);

/// Coarser than the clock's own times, so that any date on file can be added to.
using Time = std::chrono::sys_time<std::chrono::milliseconds>;

std::optional<Time> parseTime(const std::optional<std::string>& text) {
  if (!text) return std::nullopt;
  const QDateTime time = QDateTime::fromString(QString::fromStdString(*text), Qt::ISODate);
  if (!time.isValid()) return std::nullopt;
  return Time(std::chrono::milliseconds(time.toMSecsSinceEpoch()));
}

std::string formatTime(WallClock::TimePoint time) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time.time_since_epoch()).count();
  return QDateTime::fromSecsSinceEpoch(seconds).toUTC().toString(Qt::ISODate).toStdString();
}

}  // namespace

UpdateSchedule::UpdateSchedule(UserDefaults& defaults, MainQueue& queue, const WallClock& clock,
                               std::function<void()> due)
    : defaults_(defaults), queue_(queue), clock_(clock), due_(std::move(due)) {}

void UpdateSchedule::setEnabled(bool isEnabled) {
  isEnabled_ = isEnabled;
  plan(startDelay);
}

void UpdateSchedule::setInterval(std::chrono::seconds interval) {
  interval_ = interval;
  plan(startDelay);
}

void UpdateSchedule::recordCheck() {
  defaults_.set(lastCheckKey, formatTime(clock_.now()));
  plan(startDelay);
}

void UpdateSchedule::plan(std::chrono::milliseconds soonest) {
  planned_.reset();
  if (!isEnabled_) return;
  planned_ = std::make_shared<char>();
  queue_.after(std::clamp(remaining(), soonest, longestWait), [this, plan = std::weak_ptr(planned_)] {
    if (!plan.expired()) wake();
  });
}

void UpdateSchedule::wake() {
  const bool isDue = remaining() <= std::chrono::milliseconds(0);
  plan(isDue ? longestWait : std::chrono::milliseconds(0));
  if (isDue) due_();
}

std::chrono::milliseconds UpdateSchedule::remaining() const {
  const Time now = std::chrono::floor<std::chrono::milliseconds>(clock_.now());
  const std::optional<Time> last = parseTime(defaults_.string(lastCheckKey));
  // A date that is yet to come was written by a clock that went wrong.
  if (!last || *last > now) return std::chrono::milliseconds(0);
  return *last + interval_ - now;
}

}  // namespace tessarin
