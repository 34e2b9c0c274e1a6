#include <gmock/gmock.h>

#include <cstdlib>
#include <map>
#include <optional>
#include <string_view>

#include "model/TemplateVariables.h"
#include "support/ManualWallClock.h"

namespace tessarin {
namespace {

using testing::ManualWallClock;

class TemplateVariablesTest : public ::testing::Test {
 protected:
  std::string expand(const std::string& text, const std::string& pasteboard = "clip",
                     const std::string& locale = "de_DE", const std::string& timeZone = "Europe/Berlin") {
    const auto read = [&] {
      ++pasteboardReads_;
      return pasteboard;
    };
    return expandTemplateVariables(text, {clock_, read, locale, timeZone});
  }

  ManualWallClock clock_{ManualWallClock::utc(2026, 3, 14, 23, 5)};
  int pasteboardReads_ = 0;
};

TEST_F(TemplateVariablesTest, ReplacesThemInTheirFixedOrder) {
  const struct {
    const char* text;
    const char* pasteboard;
    const char* expected;
    int pasteboardReads;
    int clockReads;
  } cases[] = {
      {"<{{clipboard}}|{{clipboard}}>", "clip", "<clip|clip>", 1, 0},
      {"{{clipboard}}", "{{clipboard}}", "{{clipboard}}", 1, 0},
      {"{{clipboard}}", "on {{date}}", "on 15.03.26", 1, 1},
      {"{{time}}{{date}}", "", "00:0515.03.26", 0, 2},
      {"{{datetime}}", "", "15.03.26, 00:05", 0, 1},
      {"{{Date}} {{ date }} {{TIME}} {{dates}} {date} }}", "",
       "{{Date}} {{ date }} {{TIME}} {{dates}} {date} }}", 0, 0},
      {"{{{{date}}{{date", "", "{{15.03.26{{date", 0, 1},
      {"{{clip{{clipboard}}board}}", "", "{{clipboard}}", 1, 0},
  };
  for (const auto& c : cases) {
    clock_.reads = pasteboardReads_ = 0;
    EXPECT_EQ(expand(c.text, c.pasteboard), c.expected) << c.text;
    EXPECT_EQ(pasteboardReads_, c.pasteboardReads) << c.text;
    EXPECT_EQ(clock_.reads, c.clockReads) << c.text;
  }
}

TEST_F(TemplateVariablesTest, DatesFollowLocaleAndZone) {
  const struct {
    const char* locale;
    const char* timeZone;
    const char* date;
  } cases[] = {{"en_US", "America/New_York", "3/14/26"},
               {"en_GB.UTF-8", "Europe/London", "14/03/2026"},
               {"de_AT@euro", "Europe/Vienna", "15.03.26"},
               {"POSIX", "UTC", "3/14/26"}};
  for (const auto& [locale, timeZone, date] : cases) {
    EXPECT_EQ(expand("{{date}}", "", locale, timeZone), date) << locale;
  }
}

/// Sets environment variables; they are as before when it goes.
class Environment {
 public:
  ~Environment() {
    for (const auto& [name, value] : previous_) value ? ::setenv(name, value->c_str(), 1) : ::unsetenv(name);
  }
  void set(const char* name, const char* value) {
    const char* previous = std::getenv(name);
    previous_.emplace(name, previous ? std::optional<std::string>(previous) : std::nullopt);
    ::setenv(name, value, 1);
  }

 private:
  std::map<const char*, std::optional<std::string>, std::less<std::string_view>> previous_;
};

TEST_F(TemplateVariablesTest, TheEnvironmentDecidesWithoutARestart) {
  Environment environment;
  environment.set("LC_ALL", "");
  environment.set("LANG", "en_US.UTF-8");
  environment.set("TZ", "UTC");
  EXPECT_EQ(expand("{{date}}", "", "", ""), "3/14/26");
  environment.set("LC_TIME", "de_DE.UTF-8");
  EXPECT_EQ(expand("{{datetime}}", "", "", ""), "14.03.26, 23:05");
  environment.set("TZ", "Asia/Tokyo");
  EXPECT_EQ(expand("{{datetime}}", "", "", ""), "15.03.26, 08:05");
}

}  // namespace
}  // namespace tessarin
