#include <gtest/gtest.h>

#include <map>

#include "base/SessionKind.h"
#include "model/StorageFolder.h"

namespace tessarin {
namespace {

using Variables = std::map<std::string, std::string>;

Environment environmentOf(const Variables& variables) {
  return [variables](const std::string& name) -> std::optional<std::string> {
    const auto found = variables.find(name);
    return found != variables.end() ? std::optional(found->second) : std::nullopt;
  };
}

TEST(SessionKindTest, isJudgedByTheSession) {
  const std::pair<Variables, bool> cases[] = {
      {{{"XDG_SESSION_TYPE", "x11"}, {"DISPLAY", ":0"}}, false},
      {{{"XDG_SESSION_TYPE", "wayland"}, {"DISPLAY", ":0"}}, true},
      {{{"WAYLAND_DISPLAY", "wayland-0"}, {"DISPLAY", ":0"}}, true},
      {{{"XDG_SESSION_TYPE", "x11"}, {"WAYLAND_DISPLAY", "wayland-0"}, {"DISPLAY", ":0"}}, false},
  };
  for (const auto& [variables, isWayland] : cases) {
    EXPECT_EQ(isWaylandSession(environmentOf(variables)), isWayland) << ::testing::PrintToString(variables);
  }
}

TEST(StorageFolder, FollowsTheEnvironment) {
  for (const auto& [dataHome, folder] : {std::pair{"/data", "/data/Tessarin"},
                                         {"", "/home/u/.local/share/Tessarin"},
                                         {"data", "/home/u/.local/share/Tessarin"}}) {
    const Variables variables{{"XDG_DATA_HOME", dataHome}, {"HOME", "/home/u"}};
    EXPECT_EQ(applicationSupportFolder(environmentOf(variables)), folder) << dataHome;
  }
}

}  // namespace
}  // namespace tessarin
