#include <gmock/gmock.h>

#include <cstdlib>
#include <optional>

#include "model/TemplateVariables.h"
#include "support/ManualWallClock.h"

namespace tessarin::testing {
namespace {

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
  } cases[] = {
      {"<{{clipboard}}|{{clipboard}}>", "clip", "<clip|clip>", 1},
      {"{{clipboard}}", "{{clipboard}}", "{{clipboard}}", 1},
      {"{{clipboard}}", "on {{date}}", "on 15.03.26", 1},
      {"{{datetime}} {{time}}", "", "15.03.26, 00:05 00:05", 0},
      {"{{Date}} {{ date }} {{TIME}} {{dates}} {date} }}", "",
       "{{Date}} {{ date }} {{TIME}} {{dates}} {date} }}", 0},
  };
  for (const auto& c : cases) {
    pasteboardReads_ = 0;
    EXPECT_EQ(expand(c.text, c.pasteboard), c.expected) << c.text;
    EXPECT_EQ(pasteboardReads_, c.pasteboardReads) << c.text;
  }
}

TEST_F(TemplateVariablesTest, WhatIsInsertedHoldsNoZeroCharacter) {
  EXPECT_EQ(expand(std::string("\0a\0{{clipboard}}", 16), std::string("b\0c", 3)), "abc");
}

TEST_F(TemplateVariablesTest, DatesFollowLocaleAndZone) {
  EXPECT_EQ(expand("{{date}}", "", "en_US", "America/New_York"), "3/14/26");
  EXPECT_EQ(expand("{{date}}", "", "en_GB.UTF-8", "Europe/London"), "14/03/2026");
  EXPECT_EQ(expand("{{date}}", "", "POSIX", "UTC"), "3/14/26");
}

}  // namespace
}  // namespace tessarin::testing
