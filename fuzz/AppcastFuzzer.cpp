#include <algorithm>
#include <compare>
#include <string>
#include <vector>

#include "Check.h"
#include "text/Graphemes.h"
#include "update/AppcastParser.h"
#include "update/UpdateJudge.h"
#include "update/VersionOrder.h"

namespace tessarin::fuzz {
namespace {

void checkTexts(const AppcastItem& item) {
  for (const std::string* text : {&item.title, &item.version, &item.shortVersion, &item.minimumSystemVersion,
                                  &item.channel, &item.operatingSystem, &item.notes, &item.link,
                                  &item.publicationDate, &item.downloadUrl, &item.downloadType}) {
    check(text::isValidUtf8(*text), "every text is UTF-8");
  }
  check(item.downloadLength >= 0, "no download has a negative length");
}

void checkFeed(std::string_view text) {
  const auto appcast = unlessRefused([&] { return parseAppcast(text); });
  if (!appcast) return;
  for (const AppcastItem& item : appcast->items) checkTexts(item);
  const auto best = bestUpdate(*appcast, {"1.0", "100", "6.1.0"});
  if (!best) return;
  check(downloadAddress(*best).value_or("").starts_with("https://"), "an update comes by HTTPS");
  const std::string build = best->shortVersion.empty() ? "" : best->version;
  check(!bestUpdate(*appcast, {best->displayVersion(), build, "6.1.0"}), "after the update there is none");
}

/// Every line is a version.
void checkVersions(std::string_view text) {
  std::vector<std::string> versions(1);
  for (const char c : text) {
    if (c == '\n') {
      versions.emplace_back();
    } else {
      versions.back() += c;
    }
  }
  versions.resize(std::min<std::size_t>(versions.size(), 3));
  for (const std::string& a : versions) {
    check(std::is_eq(compareVersions(a, a + "+7")), "what follows a plus says nothing");
    for (const std::string& b : versions) {
      const auto order = compareVersions(a, b);
      check(order == 0 ? compareVersions(b, a) == 0 : (order < 0) == (compareVersions(b, a) > 0),
            "the order is the same from both sides");
      for (const std::string& c : versions) {
        if (order <= 0 && compareVersions(b, c) <= 0) {
          const auto across = compareVersions(a, c);
          check(across < 0 || (across == 0 && order == 0 && compareVersions(b, c) == 0),
                "the order goes through");
        }
      }
    }
  }
}

}  // namespace
}  // namespace tessarin::fuzz

/// What begins with "<" is a feed, else a list of versions.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarin;
  const std::string_view text = fuzz::asText(data, size);
  if (text.starts_with('<') || text.starts_with('\xEF')) {  // or the byte order mark
    fuzz::checkFeed(text);
  } else {
    fuzz::checkVersions(text);
  }
  return 0;
}
