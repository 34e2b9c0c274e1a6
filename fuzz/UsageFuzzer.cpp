#include <algorithm>

#include "Check.h"
#include "base/Log.h"
#include "model/UsageCoding.h"
#include "model/UsageTracker.h"
#include "support/ManualWallClock.h"
#include "support/TemporaryFolder.h"
#include "text/Graphemes.h"

namespace tessarin::fuzz {
namespace {

/// Whether it was taken.
bool checkCounts(std::string_view text) {
  const auto counts = unlessRefused([&] { return decodeUsageCounts(text); });
  if (!counts) return false;
  check(decodeUsageCounts(encodeUsageCounts(*counts)) == *counts, "counts survive writing and reading");
  return true;
}

bool checkEvents(std::string_view text) {
  auto events = unlessRefused([&] { return decodeUsageEvents(text); });
  if (!events) return false;
  UsageEventsText written;
  for (const UsageEvent& event : *events) written.append(event);
  check(decodeUsageEvents(written.json()) == *events, "events survive writing and reading");
  const auto firstKept = events->begin() + static_cast<std::ptrdiff_t>((events->size() + 1) / 2);
  std::for_each(events->begin(), firstKept, [&](const UsageEvent& event) { written.dropFirst(event); });
  events->erase(events->begin(), firstKept);
  check(decodeUsageEvents(written.json()) == *events, "dropped events leave the others");
  return true;
}

/// Whatever a trigger is, it leaves the files readable.
void checkTrigger(std::string_view text) {
  const std::string trigger(text);
  const auto events = decodeUsageEvents("[" + encodeUsageEvent({trigger, 1.5}) + "]");
  check((events.at(0).trigger == trigger) == text::isValidUtf8(text),
        "a trigger is written as it is if it can be");
  check(decodeUsageCounts(encodeUsageCounts({{trigger, 2}})) == UsageCounts{{events[0].trigger, 2}},
        "both files write triggers in the same way");
}

/// Starting with such files and using the program leaves files that the next start reads.
void checkTracker(std::string_view text) {
  static const testing::TemporaryFolder folder;
  const std::string content(text);
  for (const char* name : {"usage-counts.json", "usage-stats.json"}) folder.write(name, content);
  const testing::ManualWallClock clock;
  UsageTracker tracker(folder.path(), clock);
  tracker.recordUsage("smile");
  check(tracker.topUsed(3).size() <= 3 && tracker.dailyCounts().size() == 7, "statistics have their size");
  check(tracker.todayCount() >= 1, "a use counts today");
  tracker.totalExpansions();
  const UsageTracker next(folder.path(), clock);
  check(next.usageCounts() == tracker.usageCounts() && next.usageEvents() == tracker.usageEvents(),
        "the next start knows what this one knew");
  for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
    std::filesystem::remove(entry.path());
  }
}

}  // namespace
}  // namespace tessarin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarin;
  static const LogCapture silence([](const std::string&) {});
  const std::string_view text = fuzz::asText(data, size);
  const bool hasCounts = fuzz::checkCounts(text);
  const bool hasEvents = fuzz::checkEvents(text);
  fuzz::checkTrigger(text);
  if (hasCounts || hasEvents) fuzz::checkTracker(text);
  return 0;
}
