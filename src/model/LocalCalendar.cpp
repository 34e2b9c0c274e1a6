#include "model/LocalCalendar.h"

#include <unicode/gregocal.h>

#include <array>
#include <cstdio>

#include "model/IcuTimeZone.h"

namespace tessarin {
namespace {

icu::GregorianCalendar makeCalendar(const std::string& timeZone, LocalCalendar::TimePoint time,
                                    UErrorCode& error) {
  icu::GregorianCalendar calendar(makeIcuTimeZone(timeZone).release(), icu::Locale::getRoot(), error);
  calendar.setSkippedWallTimeOption(UCAL_WALLTIME_NEXT_VALID);
  calendar.setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
  calendar.setTime(toIcuDate(time), error);
  return calendar;
}

void setHour(icu::Calendar& calendar, int hour) {
  calendar.set(UCAL_HOUR_OF_DAY, hour);
  calendar.set(UCAL_MINUTE, 0);
  calendar.set(UCAL_SECOND, 0);
  calendar.set(UCAL_MILLISECOND, 0);
}

}  // namespace

std::vector<std::optional<LocalCalendar::TimePoint>> LocalCalendar::startsOfDays(TimePoint time, int first,
                                                                                 int last) const {
  UErrorCode error = U_ZERO_ERROR;
  icu::GregorianCalendar calendar = makeCalendar(timeZone_, time, error);
  std::vector<std::optional<TimePoint>> starts;
  for (int days = first; days <= last; ++days) {
    UErrorCode dayError = error;
    calendar.setTime(toIcuDate(time), dayError);
    setHour(calendar, 12);  // noon exists every day, so the step lands in the right one
    calendar.add(UCAL_DATE, days, dayError);
    setHour(calendar, 0);
    const UDate start = calendar.getTime(dayError);
    starts.push_back(U_SUCCESS(dayError) ? std::optional(fromIcuDate(start)) : std::nullopt);
  }
  return starts;
}

std::string LocalCalendar::fileNameStamp(TimePoint time) const {
  UErrorCode error = U_ZERO_ERROR;
  const icu::GregorianCalendar calendar = makeCalendar(timeZone_, time, error);
  const auto field = [&](UCalendarDateFields which) { return static_cast<int>(calendar.get(which, error)); };
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d-%02d-%02d", field(UCAL_YEAR),
                field(UCAL_MONTH) + 1, field(UCAL_DATE), field(UCAL_HOUR_OF_DAY), field(UCAL_MINUTE),
                field(UCAL_SECOND));
  return text.data();
}

}  // namespace tessarin
