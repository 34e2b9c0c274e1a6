#include "model/UsageTracker.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tessarin {
namespace {

// Both are rewritten at every expansion: waiting for the disk each time would be felt at the keyboard.
constexpr Durability usageDurability = Durability::processEnd;

/// The sum, or the bound of the type that it would pass.
std::int64_t saturatingSum(std::int64_t a, std::int64_t b) {
  std::int64_t sum = 0;
  if (!__builtin_add_overflow(a, b, &sum)) return sum;
  return b > 0 ? std::numeric_limits<std::int64_t>::max() : std::numeric_limits<std::int64_t>::min();
}

}  // namespace

UsageTracker::UsageTracker(const std::filesystem::path& storageFolder, const WallClock& clock,
                           LocalCalendar calendar)
    : clock_(clock),
      calendar_(std::move(calendar)),
      countsFile_({"UsageTracker", "usage counts", storageFolder / "usage-counts.json", usageDurability},
                  clock, calendar_),
      eventsFile_({"UsageTracker", "usage events", storageFolder / "usage-stats.json", usageDurability},
                  clock, calendar_) {
  loadUsageCounts();
  loadUsageEvents();
}

void UsageTracker::loadUsageCounts() {
  countsFile_.load([this](std::string_view json) { usageCounts_ = decodeUsageCounts(json); });
}

void UsageTracker::loadUsageEvents() {
  eventsFile_.load([this](std::string_view json) { usageEvents_ = decodeUsageEvents(json); });
  for (const UsageEvent& event : usageEvents_) eventsText_.append(event);
}

void UsageTracker::saveUsageCounts() {
  countsFile_.save([this] { return encodeUsageCounts(usageCounts_); });
}

void UsageTracker::saveUsageEvents() {
  eventsFile_.save([this] { return eventsText_.json(); });
}

void UsageTracker::saveWhatIsMissing() {
  if (countsFile_.isMissing()) saveUsageCounts();
  if (eventsFile_.isMissing()) saveUsageEvents();
}

void UsageTracker::recordUsage(const std::string& trigger) {
  count(trigger);
  saveUsageCounts();
  append({trigger, secondsSinceReferenceDate(clock_.now())});
  dropOldest();
  saveUsageEvents();
  recorded_.emit(trigger);
}

void UsageTracker::count(const std::string& trigger) {
  willChange_.emit();
  std::int64_t& count = usageCounts_[trigger];
  count = saturatingSum(count, 1);
}

void UsageTracker::append(UsageEvent event) {
  willChange_.emit();
  eventsText_.append(event);
  usageEvents_.push_back(std::move(event));
}

void UsageTracker::dropOldest() {
  if (usageEvents_.size() <= maxEvents) return;
  willChange_.emit();
  const auto firstKept = usageEvents_.end() - maxEvents;
  std::for_each(usageEvents_.begin(), firstKept,
                [this](const UsageEvent& event) { eventsText_.dropFirst(event); });
  usageEvents_.erase(usageEvents_.begin(), firstKept);
}

std::int64_t UsageTracker::totalExpansions() const {
  std::int64_t total = 0;
  for (const auto& [trigger, count] : usageCounts_) total = saturatingSum(total, count);
  return total;
}

std::int64_t UsageTracker::eventsBetween(double start, double end) const {
  return std::count_if(usageEvents_.begin(), usageEvents_.end(), [=](const UsageEvent& event) {
    return event.timestamp >= start && event.timestamp < end;
  });
}

std::int64_t UsageTracker::todayCount() const {
  const auto now = clock_.now();
  const double start = secondsSinceReferenceDate(calendar_.startOfDay(now).value_or(now));
  return eventsBetween(start, std::numeric_limits<double>::infinity());
}

std::vector<UsageTracker::TriggerCount> UsageTracker::topUsed(std::size_t n) const {
  std::vector<TriggerCount> top;
  top.reserve(usageCounts_.size());
  for (const auto& [trigger, count] : usageCounts_) top.push_back({trigger, count});
  std::stable_sort(top.begin(), top.end(),
                   [](const TriggerCount& a, const TriggerCount& b) { return a.count > b.count; });
  if (top.size() > n) top.resize(n);
  return top;
}

std::vector<UsageTracker::DayCount> UsageTracker::dailyCounts() const {
  constexpr int daysBefore = 6;
  const auto now = clock_.now();
  const auto starts = calendar_.startsOfDays(now, -daysBefore, 1);
  const auto today = starts[daysBefore].value_or(now);
  std::vector<DayCount> counts;
  for (std::size_t i = 0; i <= daysBefore; ++i) {
    const auto& day = starts[i];
    const auto& next = starts[i + 1];
    if (day && next) {
      counts.push_back(
          {*day, eventsBetween(secondsSinceReferenceDate(*day), secondsSinceReferenceDate(*next))});
    } else {
      counts.push_back({today, 0});
    }
  }
  return counts;
}

Subscription UsageTracker::onWillChange(std::function<void()> callback) {
  return willChange_.subscribe(std::move(callback));
}

Subscription UsageTracker::onRecorded(std::function<void(const std::string&)> callback) {
  return recorded_.subscribe(std::move(callback));
}

}  // namespace tessarin
