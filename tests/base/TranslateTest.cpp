#include <gtest/gtest.h>

#include "base/Translate.h"

namespace tessarin::testing {
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

}  // namespace
}  // namespace tessarin::testing
