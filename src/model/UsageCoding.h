#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "model/UsageEvent.h"

/// The JSON form of the usage files. Reading is all or nothing and throws DataError. What of a trigger is not
/// UTF-8, and so would be refused, is written as U+FFFD, so that no trigger can make a file unreadable.
namespace tessarin {

/// By trigger, exact text.
using UsageCounts = std::map<std::string, std::int64_t>;

/// An object whose values must all be integers.
UsageCounts decodeUsageCounts(std::string_view json);
std::string encodeUsageCounts(const UsageCounts& counts);

std::vector<UsageEvent> decodeUsageEvents(std::string_view json);
std::string encodeUsageEvent(const UsageEvent& event);

/// The event file's text, kept up to date event by event: encoding all of 10,000 events anew would cost more
/// than recording one may take.
class UsageEventsText {
 public:
  void append(const UsageEvent& event);
  /// Drops the oldest event, which the caller names again.
  void dropFirst(const UsageEvent& event);
  const std::string& json() const { return text_; }

 private:
  std::string text_ = "[]";
};

}  // namespace tessarin
