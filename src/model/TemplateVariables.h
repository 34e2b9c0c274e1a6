#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "platform/WallClock.h"

namespace tessarin {

/// All that there are, as a text has them.
inline constexpr std::array<std::string_view, 4> templateVariables = {"{{clipboard}}", "{{datetime}}",
                                                                      "{{date}}", "{{time}}"};

/// Where the values of template variables come from.
struct TemplateContext {
  const WallClock& clock;
  /// The text on the pasteboard, "" when there is none; asked only when it is needed. May be absent.
  std::function<std::string()> pasteboardText;
  /// A locale such as "de_DE"; empty is the one that the user's environment names for dates.
  std::string locale = {};
  /// A zone such as "Europe/Berlin"; empty is the machine's.
  std::string timeZone = {};
};

/// The text with "{{clipboard}}", then "{{datetime}}", "{{date}}" and "{{time}}" replaced, dates and times in
/// the locale's short form. Each step works on the result of the one before and asks for its value once, or
/// not at all when its placeholder is absent. Other braces stay.
std::string expandTemplateVariables(const std::string& text, const TemplateContext& context);

/// The patterns, in Unicode's notation, in which the locale (as in TemplateContext) writes the variables;
/// empty where it does so by another calendar or with other digits than the usual ones.
struct ShortPatterns {
  std::string date;
  std::string time;
  std::string dateTime;
};
ShortPatterns shortPatterns(const std::string& locale);

}  // namespace tessarin
