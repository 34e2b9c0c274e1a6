#include <gmock/gmock.h>

#include <regex>
#include <set>

#include "base/Translate.h"
#include "base/Uuid.h"

namespace tessarin {
namespace {

TEST(Translate, PutsTheCountInWhateverTheTranslatorDoes) {
  EXPECT_EQ(translate("Any", "%n of them", nullptr, 3), "3 of them");
  setTranslator([](const char*, const char*, int) { return "alle %n"; });
  const std::string translated = translate("Any", "%n of them", nullptr, 3);
  setTranslator(nullptr);
  EXPECT_EQ(translated, "alle 3");
}

TEST(FilledIn, TakesPartsForTheirPlacesOnce) {
  EXPECT_EQ(filledIn("%2 of %1", {"a", "b"}), "b of a");
  EXPECT_EQ(filledIn("%1: %1", {"%1"}), "%1: %1");
  EXPECT_EQ(filledIn("%2 100% %n %", {"a"}), "%2 100% %n %");
}

TEST(Uuid, IsRandomOfVersionFourInUpperCase) {
  const std::regex form("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}");
  std::set<std::string> seen;
  for (int i = 0; i < 200; ++i) {
    const std::string uuid = makeUuid();
    EXPECT_TRUE(std::regex_match(uuid, form)) << uuid;
    seen.insert(uuid);
  }
  EXPECT_EQ(seen.size(), 200U);
}

}  // namespace
}  // namespace tessarin
