#include <gmock/gmock.h>

#include "model/SkinToneVariants.h"

namespace tessarin {
namespace {

using ::testing::ElementsAre;

TEST(SkinToneVariants, OneCharacterHasFiveMore) {
  EXPECT_THAT(makeSkinToneVariants("👋"),
              ElementsAre("👋", "👋\U0001F3FB", "👋\U0001F3FC", "👋\U0001F3FD", "👋\U0001F3FE", "👋\U0001F3FF"));
  for (const char* text : {"😀", "a", "👩‍🚀", "🇩🇪", "👋\U0001F3FD", "❤️", "e\u0301"}) {
    const auto variants = makeSkinToneVariants(text);
    ASSERT_EQ(variants.size(), 6U) << text;
    EXPECT_EQ(variants[5], std::string(text) + "\U0001F3FF");
    EXPECT_TRUE(supportsSkinTones(text)) << text;
  }
}

TEST(SkinToneVariants, OtherTextsStandAlone) {
  for (const char* text : {"", "ab", "👋👋", "¯\\_(ツ)_/¯", "\n", "\r\n", "\t", "🇩🇪🇫🇷"}) {
    EXPECT_THAT(makeSkinToneVariants(text), ElementsAre(text));
    EXPECT_FALSE(supportsSkinTones(text)) << text;
  }
}

}  // namespace
}  // namespace tessarin
