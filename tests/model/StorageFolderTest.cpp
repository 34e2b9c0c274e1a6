#include <gmock/gmock.h>
#include <pwd.h>
#include <unistd.h>

#include <map>

#include "model/StorageFolder.h"

namespace tessarin {
namespace {

std::filesystem::path folderWith(const std::map<std::string, std::string>& variables) {
  return applicationSupportFolder([&](const std::string& name) -> std::optional<std::string> {
    const auto found = variables.find(name);
    if (found == variables.end()) return std::nullopt;
    return found->second;
  });
}

TEST(StorageFolder, FollowsTheEnvironment) {
  const struct {
    std::map<std::string, std::string> variables;
    const char* folder;
  } cases[] = {
      {{{"XDG_DATA_HOME", "/data"}}, "/data/Tessarin"},
      {{{"XDG_DATA_HOME", ""}, {"HOME", "/home/u"}}, "/home/u/.local/share/Tessarin"},
      {{{"XDG_DATA_HOME", "data"}, {"HOME", "/home/u"}}, "/home/u/.local/share/Tessarin"},
  };
  for (const auto& [variables, folder] : cases) EXPECT_EQ(folderWith(variables), folder);
}

TEST(StorageFolder, FallsBackToTheUserDatabase) {
  const passwd* user = ::getpwuid(::getuid());
  if (!user) GTEST_SKIP() << "this user is in no database";
  const auto expected = std::filesystem::path(user->pw_dir) / ".local/share/Tessarin";
  EXPECT_EQ(folderWith({}), expected);
  EXPECT_EQ(folderWith({{"HOME", "here"}}), expected);
}

}  // namespace
}  // namespace tessarin
