#include "base/UserLanguages.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tessarin {
namespace {

/// The parts of a locale's name, as in sr_RS.UTF-8@latin.
struct LocaleParts {
  std::string language;
  std::string script;
  std::string region;
};

using NamePair = std::pair<std::string_view, std::string_view>;

/// Older names, and the names of what CLDR keeps under another.
constexpr std::array<NamePair, 5> otherNames = {
    {{"nb", "no"}, {"iw", "he"}, {"in", "id"}, {"tl", "fil"}, {"sh", "sr"}}};

constexpr std::string_view traditionalChinese = "TW HK MO";
constexpr std::string_view spanishAmerica =
    "AR BO BR BZ CL CO CR CU DO EC GT HN MX NI PA PE PR PY SV US UY VE";

std::string valueOf(const Environment& environment, const char* name) {
  return environment(name).value_or("");
}

std::string localeOf(const Environment& environment) {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    if (std::string value = valueOf(environment, name); !value.empty()) return value;
  }
  return {};
}

bool isUntranslated(std::string_view locale) {
  const std::string_view name = locale.substr(0, locale.find('.'));
  return name.empty() || name == "C" || name == "POSIX";
}

std::vector<std::string> split(std::string_view text, std::string_view separators) {
  std::vector<std::string> parts;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of(separators);
    parts.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return parts;
}

bool isAmong(std::string_view region, std::string_view list) {
  return !region.empty() && list.find(region) != std::string_view::npos;
}

LocaleParts partsOf(std::string_view locale) {
  LocaleParts parts;
  const std::string_view name = locale.substr(0, locale.find_first_of(".@"));
  for (const std::string& part : split(name, "_-")) {
    if (parts.language.empty()) {
      parts.language = part;
    } else if (part.size() == 4) {
      parts.script = part;
    } else if (parts.region.empty()) {
      parts.region = part;
    }
  }
  if (locale.ends_with("@latin") || parts.language == "sh") parts.script = "Latn";
  for (const auto& [other, ours] : otherNames) {
    if (parts.language == other) parts.language = ours;
  }
  const bool isTraditional = parts.language == "zh" && isAmong(parts.region, traditionalChinese);
  if (isTraditional && parts.script.empty()) parts.script = "Hant";
  if (parts.script == "Hans") parts.script.clear();  // what is meant by the language alone
  return parts;
}

std::vector<std::string> namesOf(const LocaleParts& parts) {
  const std::string general = parts.script.empty() ? parts.language : parts.language + "-" + parts.script;
  std::vector<std::string> names;
  if (!parts.region.empty()) names.push_back(general + "-" + parts.region);
  if (general == "es" && isAmong(parts.region, spanishAmerica)) names.emplace_back("es-419");
  names.push_back(general);
  return names;
}

}  // namespace

std::vector<std::string> userLanguages(const Environment& environment) {
  const std::string locale = localeOf(environment);
  if (isUntranslated(locale)) return {};
  const std::string listed = valueOf(environment, "LANGUAGE");
  std::vector<std::string> languages;
  for (const std::string& wanted : split(listed.empty() ? locale : listed, ":")) {
    if (isUntranslated(wanted)) continue;
    for (std::string& name : namesOf(partsOf(wanted))) {
      if (std::ranges::find(languages, name) == languages.end()) languages.push_back(std::move(name));
    }
  }
  return languages;
}

}  // namespace tessarin
