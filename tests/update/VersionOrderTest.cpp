#include <gtest/gtest.h>

#include <string>

#include "update/VersionOrder.h"

namespace tessarin {
namespace {

const std::string huge(5000, '9');

/// Each line's versions are equal to one another and older than all of the lines below it.
const std::vector<std::vector<std::string>> ladder = {
    {"", "0", "0.0", "...", "v0"},
    {"0.0.1"},
    {"0.9"},
    {"1.0a", "1a", "1.0-A"},
    {"1.0b2"},
    {"1.0b10"},
    {"1-rc", "1.0.0rc", "1.0 (RC)"},
    {"1", "1.0", "01.000", "v1.0", "1.0+build7"},
    {"1.0.0.1"},
    {"1.2b3", "1.2.b.3", "1.2-b3", "1.2.0b3"},
    {"1.2", "1.02"},
    {"1.2.1-alpha"},
    {"1.2.1"},
    {"1.9"},
    {"1.10", "1.0010"},
    {"4294967297"},
    {"18446744073709551616"},
    {huge, "000" + huge},
    {huge + "0"},
};

TEST(VersionOrder, IsTheSameWhicheverWayItIsAsked) {
  for (std::size_t low = 0; low < ladder.size(); ++low) {
    for (std::size_t high = low; high < ladder.size(); ++high) {
      for (const std::string& a : ladder[low]) {
        for (const std::string& b : ladder[high]) {
          EXPECT_EQ(compareVersions(a, b), low <=> high) << a << " and " << b;
          EXPECT_EQ(compareVersions(b, a), high <=> low) << b << " and " << a;
        }
      }
    }
  }
}

}  // namespace
}  // namespace tessarin
