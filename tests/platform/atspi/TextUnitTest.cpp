#include "platform/atspi/TextUnit.h"

namespace tessarin::atspi {
namespace {

TEST(TextUnitTest, countsAsToolkitsDo) {
  struct Case {
    const char* toolkit;
    const char* version;
    std::int64_t offset;
    std::int64_t insertedLength;
  };
  const Case cases[] = {
      {"gtk", "3.24.38", 4, 11}, {"GTK", "4.8.3", 4, 11}, {"Qt", "5.15.8", 6, 6},
      {"Qt", "6.4.2", 6, 6},     {"Gecko", "115", 6, 11}, {"", "", 4, 11},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.toolkit);
    const Toolkit toolkit = Toolkit::named(expected.toolkit, expected.version);
    EXPECT_EQ(countUnits("aé😀𝄞", toolkit.offset), expected.offset);
    EXPECT_EQ(countUnits("aé😀𝄞", toolkit.insertedLength), expected.insertedLength);
  }
}

TEST(TextUnitTest, takesPaddingFromBehindPairsOnly) {
  EXPECT_EQ(withoutPadding("a😄\uFEFFb👋\uFEFF\U0001F3FC\uFEFF"), "a😄b👋\U0001F3FC");
  EXPECT_EQ(withoutPadding("\uFEFFé\uFEFF😄\uFEFF\uFEFF"), "\uFEFFé\uFEFF😄\uFEFF");
  EXPECT_EQ(withoutPadding("😄"), "😄");
}

}  // namespace
}  // namespace tessarin::atspi
