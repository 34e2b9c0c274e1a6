#include <map>

#include "platform/freedesktop/AutostartLoginItem.h"
#include "platform/freedesktop/DesktopEntryText.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

using freedesktop::AutostartLoginItem;
using freedesktop::DesktopEntryText;
using ::testing::HasSubstr;

/// A home folder with an autostart entry in it, and one for everybody beside it.
struct Home {
  Home() {
    for (const char* name : {"bin", "config", "system/autostart"}) {
      std::filesystem::create_directories(folder / name);
    }
    folder.write("bin/tessarin", "");
    std::filesystem::permissions(folder / "bin/tessarin", std::filesystem::perms::owner_all);
  }
  void writeOwn(const std::string& content) const {
    std::filesystem::create_directories(folder / "config/autostart");
    folder.write(own, content);
  }
  void writeForEverybody(const std::string& content) const {
    folder.write("system/autostart/tessarin.desktop", content);
  }
  std::string content() const { return folder.read(own); }
  bool hasOwn() const { return std::filesystem::exists(folder / own); }
  AutostartLoginItem makeItem() const {
    const std::map<std::string, std::string> variables = {
        {"XDG_CONFIG_HOME", folder / "config"},
        {"XDG_CONFIG_DIRS", "relative:" + (folder / "system").string()},
        {"XDG_CURRENT_DESKTOP", "ubuntu:GNOME"},
        {"PATH", folder / "bin"}};
    const auto environment = [variables](const std::string& name) {
      return variables.contains(name) ? std::optional(variables.at(name)) : std::nullopt;
    };
    return AutostartLoginItem(folder / "bin/tessarin", environment);
  }

  TemporaryFolder folder;
  const std::string own = "config/autostart/tessarin.desktop";
};

const std::string entry = "[Desktop Entry]\nType=Application\nName=Tessarin\nExec=tessarin\n";

TEST(AutostartLoginItem, AFailureSaysWhyAndChangesNothing) {
  for (const bool wasOn : {false, true}) {
    const Home home;
    if (wasOn) home.writeForEverybody(entry);
    home.folder.write("config/autostart", "");  // keeps even the administrator from writing below it
    AutostartLoginItem item = home.makeItem();
    const auto failure = wasOn ? item.unregisterItem() : item.registerItem();
    EXPECT_FALSE(failure.value_or("").empty());
    EXPECT_EQ(item.isEnabled(), wasOn);
  }
}

TEST(AutostartLoginItem, JudgesAnEntryAsTheDesktopDoes) {
  struct Case {
    std::string keys;
    bool isEnabled;
  };
  const Case cases[] = {
      {"", true},
      {"Hidden=true\n", false},
      {"X-GNOME-Autostart-enabled=false\n", false},
      {"OnlyShowIn=KDE;GNOME;\n", true},
      {"OnlyShowIn=KDE;\n", false},
      {"NotShowIn=ubuntu\n", false},
      {"TryExec=tessarin\n", true},
      {"TryExec=missing\n", false},
      {"# Hidden=true\n[Desktop Action hide]\nHidden=true\n", true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.keys);
    Home own;
    own.writeOwn(entry + c.keys);
    EXPECT_EQ(own.makeItem().isEnabled(), c.isEnabled);
    Home everybodys;
    everybodys.writeForEverybody(entry + c.keys);
    EXPECT_EQ(everybodys.makeItem().isEnabled(), c.isEnabled);
    everybodys.writeOwn(entry);
    EXPECT_TRUE(everybodys.makeItem().isEnabled()) << "the user's own goes before";
  }
}

TEST(AutostartLoginItem, RegisteringMendsWhatTheUserSwitchedOff) {
  for (const char* keys : {"X-GNOME-Autostart-enabled=false\n", "OnlyShowIn=KDE;\n", "TryExec=missing\n"}) {
    SCOPED_TRACE(keys);
    Home home;
    home.writeOwn(entry + "X-Delay=5\n" + keys + "\n[Desktop Action new]\nName=New\n");
    AutostartLoginItem item = home.makeItem();
    EXPECT_EQ(item.registerItem(), std::nullopt);
    EXPECT_TRUE(item.isEnabled());
    EXPECT_THAT(home.content(), HasSubstr("X-Delay=5\n"));
    EXPECT_THAT(home.content(), ::testing::EndsWith("\n[Desktop Action new]\nName=New\n"));
  }
}

TEST(AutostartLoginItem, UnregisteringLeavesWhatIsNotOurs) {
  struct Case {
    const char* description;
    const char* own;
    const char* everybodys;
    const char* leftOwn;  // nullptr: no file
  };
  const Case cases[] = {
      {"ours alone", "[Desktop Entry]\nType=Application\nExec=x\nHidden=false\n", nullptr, nullptr},
      {"with a foreign key", "[Desktop Entry]\nExec=x\nX-Delay=5\n", nullptr,
       "[Desktop Entry]\nExec=x\nX-Delay=5\nHidden=true\n"},
      {"everybody's too", "[Desktop Entry]\nExec=x\n", "[Desktop Entry]\nExec=x\n",
       "[Desktop Entry]\nExec=x\nHidden=true\n"},
      {"everybody's alone", nullptr, "[Desktop Entry]\nExec=x\n",
       "[Desktop Entry]\nType=Application\nName=Tessarin\nHidden=true\n"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.description);
    Home home;
    if (c.own) home.writeOwn(c.own);
    if (c.everybodys) home.writeForEverybody(c.everybodys);
    AutostartLoginItem item = home.makeItem();
    EXPECT_EQ(item.unregisterItem(), std::nullopt);
    EXPECT_FALSE(item.isEnabled());
    EXPECT_EQ(home.hasOwn(), c.leftOwn != nullptr);
    EXPECT_EQ(home.content(), c.leftOwn ? c.leftOwn : "");
  }
}

TEST(DesktopEntryText, QuotesAnArgumentAndEscapesAValue) {
  const std::pair<const char*, const char*> cases[] = {
      {"/usr/bin/tessarin", "/usr/bin/tessarin"},
      {"/opt/100%/tessarin", "/opt/100%%/tessarin"},
      {"/opt/$HOME`x`\"y\"", R"("/opt/\\$HOME\\`x\\`\\"y\\"")"},
      {"/opt/a\nb\tc", R"("/opt/a\nb\tc")"},
      {"/opt/ä;(x)~", "\"/opt/ä;(x)~\""},
  };
  for (const auto& [path, exec] : cases) {
    DesktopEntryText text;
    text.set("Exec", freedesktop::quotedArgument(path));
    EXPECT_EQ(text.content(), "[Desktop Entry]\nExec=" + std::string(exec) + "\n");
    EXPECT_EQ(DesktopEntryText(text.content()).value("Exec"), freedesktop::quotedArgument(path));
  }
}

}  // namespace
}  // namespace tessarin::testing
