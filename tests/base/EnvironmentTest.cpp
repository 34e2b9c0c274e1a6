#include <gtest/gtest.h>

#include <map>

#include "base/SessionKind.h"
#include "base/UserLanguages.h"
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

TEST(UserLanguages, AreThoseOfTheMessages) {
  const std::pair<Variables, std::vector<std::string>> cases[] = {
      {{}, {}},
      {{{"LANG", "C.UTF-8"}, {"LANGUAGE", "de"}}, {}},
      {{{"LANG", "de_DE.UTF-8"}, {"LC_ALL", "POSIX"}}, {}},
      {{{"LANG", "de_DE.UTF-8@euro"}, {"LANGUAGE", ""}}, {"de-DE", "de"}},
      {{{"LANG", "de_DE"}, {"LC_MESSAGES", "fr_CA"}}, {"fr-CA", "fr"}},
      {{{"LC_ALL", "ru_RU"}, {"LANG", "C"}, {"LANGUAGE", "pt_BR:pt:C:en"}}, {"pt-BR", "pt", "en"}},
      {{{"LANG", "zh_HK"}, {"LANGUAGE", "zh_TW:zh_CN"}}, {"zh-Hant-TW", "zh-Hant", "zh-CN", "zh"}},
      {{{"LANG", "sr_RS.UTF-8@latin"}}, {"sr-Latn-RS", "sr-Latn"}},
      {{{"LANG", "es_MX"}, {"LANGUAGE", "es_MX:nb_NO"}}, {"es-MX", "es-419", "es", "no-NO", "no"}},
  };
  for (const auto& [variables, languages] : cases) {
    EXPECT_EQ(userLanguages(environmentOf(variables)), languages) << ::testing::PrintToString(variables);
  }
}

}  // namespace
}  // namespace tessarin
