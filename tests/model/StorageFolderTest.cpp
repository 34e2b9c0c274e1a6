#include <gtest/gtest.h>

#include <map>

#include "model/StorageFolder.h"

namespace tessarin::testing {
namespace {

TEST(StorageFolder, FollowsTheEnvironment) {
  for (const auto& [dataHome, folder] : {std::pair{"/data", "/data/Tessarin"},
                                         {"", "/home/u/.local/share/Tessarin"},
                                         {"data", "/home/u/.local/share/Tessarin"}}) {
    const std::map<std::string, std::string> variables{{"XDG_DATA_HOME", dataHome}, {"HOME", "/home/u"}};
    EXPECT_EQ(applicationSupportFolder([&](const std::string& name) { return variables.at(name); }), folder);
  }
}

}  // namespace
}  // namespace tessarin::testing
