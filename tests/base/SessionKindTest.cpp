#include <gtest/gtest.h>

#include <map>

#include "base/SessionKind.h"

namespace tessarin::testing {
namespace {

TEST(SessionKindTest, isJudgedByTheSession) {
  struct Case {
    std::map<std::string, std::string> variables;
    bool isWayland;
  };
  const Case cases[] = {
      {{}, false},
      {{{"XDG_SESSION_TYPE", "x11"}, {"DISPLAY", ":0"}}, false},
      {{{"XDG_SESSION_TYPE", "wayland"}, {"DISPLAY", ":0"}}, true},
      {{{"WAYLAND_DISPLAY", "wayland-0"}, {"DISPLAY", ":0"}}, true},
      {{{"XDG_SESSION_TYPE", "x11"}, {"WAYLAND_DISPLAY", "wayland-0"}, {"DISPLAY", ":0"}}, false},
      {{{"XDG_SESSION_TYPE", "tty"}, {"WAYLAND_DISPLAY", "wayland-0"}}, true},
      {{{"WAYLAND_DISPLAY", ""}, {"DISPLAY", ":0"}}, false},
  };
  for (const Case& expected : cases) {
    const Environment environment = [&](const std::string& name) -> std::optional<std::string> {
      const auto found = expected.variables.find(name);
      return found != expected.variables.end() ? std::optional(found->second) : std::nullopt;
    };
    EXPECT_EQ(isWaylandSession(environment), expected.isWayland)
        << ::testing::PrintToString(expected.variables);
  }
}

}  // namespace
}  // namespace tessarin::testing
