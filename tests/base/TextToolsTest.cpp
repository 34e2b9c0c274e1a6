#include <gtest/gtest.h>

#include "base/Translate.h"

namespace tessarin {
namespace {

TEST(FilledIn, TakesPartsForTheirPlacesOnce) {
  EXPECT_EQ(filledIn("%2 of %1", {"a", "b"}), "b of a");
  EXPECT_EQ(filledIn("%1: %1", {"%1"}), "%1: %1");
  EXPECT_EQ(filledIn("%2 100% %n %", {"a"}), "%2 100% %n %");
}

}  // namespace
}  // namespace tessarin
