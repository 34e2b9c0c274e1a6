#include <gmock/gmock.h>

#include <regex>
#include <set>

#include "base/Uuid.h"

namespace tessarin::testing {
namespace {

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
}  // namespace tessarin::testing
