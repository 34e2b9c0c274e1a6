#include "platform/freedesktop/BaseFolders.h"
#include "platform/freedesktop/DesktopEntry.h"

namespace tessarin::testing {
namespace {

using freedesktop::localeCandidates;
using freedesktop::parseDesktopEntry;

constexpr const char* editor = R"(# comment
[Desktop Entry]
Type=Application
Name=Text Editor
Name[de]=Texteditor
Name[de_AT]=Schreiberl
 Icon = org.example.Editor
StartupWMClass=Org.example
Exec="/opt/my editor/bin/edit" --new %U
Categories=Utility;TerminalEmulator;

[Desktop Action new]
Name=New window
Exec=other
)";

TEST(DesktopEntry, IsReadFromItsMainGroup) {
  const auto entry = parseDesktopEntry(editor, {});
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->name, "Text Editor");
  EXPECT_EQ(entry->icon, "org.example.Editor");
  EXPECT_EQ(entry->startupWmClass, "Org.example");
  EXPECT_EQ(entry->program, "edit");
  EXPECT_TRUE(entry->isTerminalEmulator);
  EXPECT_FALSE(entry->isHidden);
}

TEST(DesktopEntry, HasTheNameOfTheLocale) {
  const std::pair<const char*, const char*> cases[] = {{"de_AT.UTF-8", "Schreiberl"},
                                                       {"de_DE.UTF-8@euro", "Texteditor"},
                                                       {"fr_FR", "Text Editor"},
                                                       {"", "Text Editor"}};
  for (const auto& [locale, name] : cases)
    EXPECT_EQ(parseDesktopEntry(editor, localeCandidates(locale))->name, name) << locale;
}

TEST(DesktopEntry, IsNotReadFromAnythingElse) {
  for (const char* content :
       {"", "\n\n", "Type=Application\nName=No group\n", "[Desktop Entry]\nType=Link\nName=Link\n",
        "[Desktop Entry]\nType=Application\n", "[Desktop Entry\nType=Application\nName=Broken\n",
        "[Other]\nType=Application\nName=Other\n", "[Desktop Entry]\n=\n["})
    EXPECT_FALSE(parseDesktopEntry(content, {})) << content;
}

TEST(DesktopEntry, EscapesAreUndone) {
  const auto entry = parseDesktopEntry("[Desktop Entry]\r\nType=Application\r\nName=a\\sb\\\\c\\\r\n", {});
  EXPECT_EQ(entry->name, "a b\\c\\");
}

Environment environment(const std::map<std::string, std::string>& variables) {
  return [variables](const std::string& name) {
    return variables.contains(name) ? std::optional(variables.at(name)) : std::nullopt;
  };
}

TEST(BaseFolders, FollowTheEnvironment) {
  EXPECT_EQ(freedesktop::configFolder(environment({{"HOME", "/h"}})), "/h/.config/tessarin");
  EXPECT_EQ(freedesktop::configFolder(environment({{"HOME", "/h"}, {"XDG_CONFIG_HOME", "/c"}})),
            "/c/tessarin");
  EXPECT_EQ(freedesktop::configFolder(environment({{"HOME", "/h"}, {"XDG_CONFIG_HOME", "c"}})),
            "/h/.config/tessarin");
}

}  // namespace
}  // namespace tessarin::testing
