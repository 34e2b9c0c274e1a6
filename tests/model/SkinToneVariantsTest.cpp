#include "Matchers.h"
#include "model/SkinToneVariants.h"

namespace tessarin::testing {
namespace {

TEST(SkinToneVariants, StandForOneCharacter) {
  EXPECT_THAT(makeSkinToneVariants("👋"),
              ElementsAre("👋", "👋\U0001F3FB", "👋\U0001F3FC", "👋\U0001F3FD", "👋\U0001F3FE", "👋\U0001F3FF"));
  for (const char* text : {"😀", "👩‍🚀", "🇩🇪", "e\u0301"}) EXPECT_TRUE(supportsSkinTones(text)) << text;
  for (const char* text : {"", "ab", "👋👋", "\r\n", "🇩🇪🇫🇷"}) {
    EXPECT_FALSE(supportsSkinTones(text)) << text;
    EXPECT_THAT(makeSkinToneVariants(text), ElementsAre(text));
  }
}

}  // namespace
}  // namespace tessarin::testing
