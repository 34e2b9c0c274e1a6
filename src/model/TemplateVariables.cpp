#include "model/TemplateVariables.h"

#include <unicode/datefmt.h>
#include <unicode/numsys.h>
#include <unicode/smpdtfmt.h>

#include <array>
#include <memory>
#include <string_view>

#include "base/Environment.h"
#include "model/IcuTimeZone.h"

namespace tessarin {
namespace {

/// In the order in which POSIX lets them decide on dates.
icu::Locale userLocale() {
  for (const char* name : {"LC_ALL", "LC_TIME", "LANG"}) {
    const auto value = processEnvironment(name);
    if (value && !value->empty()) return icu::Locale::createCanonical(value->c_str());
  }
  return icu::Locale::getDefault();
}

icu::Locale localeNamed(const std::string& name) {
  return name.empty() ? userLocale() : icu::Locale::createCanonical(name.c_str());
}

std::unique_ptr<icu::DateFormat> makeFormat(const std::string& locale, icu::DateFormat::EStyle date,
                                            icu::DateFormat::EStyle time) {
  return std::unique_ptr<icu::DateFormat>(
      icu::DateFormat::createDateTimeInstance(date, time, localeNamed(locale)));
}

std::string formatNow(const TemplateContext& context, icu::DateFormat::EStyle date,
                      icu::DateFormat::EStyle time) {
  const std::unique_ptr<icu::DateFormat> format = makeFormat(context.locale, date, time);
  if (!format) return {};
  format->adoptTimeZone(makeIcuTimeZone(context.timeZone).release());
  icu::UnicodeString formatted;
  format->format(toIcuDate(context.clock.now()), formatted);
  std::string text;
  return formatted.toUTF8String(text);
}

bool hasLatinDigits(const std::string& locale) {
  UErrorCode error = U_ZERO_ERROR;
  const std::unique_ptr<icu::NumberingSystem> digits(
      icu::NumberingSystem::createInstance(localeNamed(locale), error));
  return U_SUCCESS(error) && std::string_view(digits->getName()) == "latn";
}

std::string patternOf(const std::string& locale, icu::DateFormat::EStyle date, icu::DateFormat::EStyle time) {
  const std::unique_ptr<icu::DateFormat> format = makeFormat(locale, date, time);
  const auto* simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get());
  if (simple == nullptr || !hasLatinDigits(locale)) return {};
  if (std::string_view(simple->getCalendar()->getType()) != "gregorian") return {};
  icu::UnicodeString pattern;
  std::string text;
  return simple->toPattern(pattern).toUTF8String(text);
}

template <class MakeValue>
std::string replaced(const std::string& text, std::string_view placeholder, MakeValue makeValue) {
  std::size_t found = text.find(placeholder);
  if (found == std::string::npos) return text;
  const std::string value = makeValue();
  std::string result;
  std::size_t done = 0;
  for (; found != std::string::npos; found = text.find(placeholder, done)) {
    result.append(text, done, found - done).append(value);
    done = found + placeholder.size();
  }
  return result.append(text, done);
}

}  // namespace

std::string expandTemplateVariables(const std::string& text, const TemplateContext& context) {
  using icu::DateFormat;
  struct DateVariable {
    std::string_view placeholder;
    DateFormat::EStyle date;
    DateFormat::EStyle time;
  };
  constexpr std::array<DateVariable, 3> dateVariables = {{
      {"{{datetime}}", DateFormat::kShort, DateFormat::kShort},
      {"{{date}}", DateFormat::kShort, DateFormat::kNone},
      {"{{time}}", DateFormat::kNone, DateFormat::kShort},
  }};
  std::string result = replaced(text, "{{clipboard}}", [&] {
    return context.pasteboardText ? context.pasteboardText() : std::string();
  });
  for (const auto& [placeholder, date, time] : dateVariables) {
    result = replaced(result, placeholder, [&, d = date, t = time] { return formatNow(context, d, t); });
  }
  // Documents hold none, and on the way there a text would be cut at the first.
  std::erase(result, '\0');
  return result;
}

ShortPatterns shortPatterns(const std::string& locale) {
  using icu::DateFormat;
  return {patternOf(locale, DateFormat::kShort, DateFormat::kNone),
          patternOf(locale, DateFormat::kNone, DateFormat::kShort),
          patternOf(locale, DateFormat::kShort, DateFormat::kShort)};
}

}  // namespace tessarin
