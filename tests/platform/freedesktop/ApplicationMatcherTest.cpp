#include <filesystem>

#include "platform/freedesktop/ApplicationMatcher.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

namespace fs = std::filesystem;
using freedesktop::ApplicationMatcher;
using freedesktop::DesktopEntries;
using freedesktop::WindowIdentity;

std::string entry(const std::string& name, const std::string& more = {}) {
  return "[Desktop Entry]\nType=Application\nName=" + name + "\n" + more;
}

class ApplicationMatcherTest : public ::testing::Test {
 protected:
  void install(const std::string& id, const std::string& content) {
    folder.write(id + ".desktop", content);
    // Two files within one tick of the file system's clock look like one change.
    fs::last_write_time(folder.path(), fs::file_time_type::clock::now() + std::chrono::hours(++changes));
  }
  std::string identifierOf(const WindowIdentity& window) {
    const auto application = matcher.applicationOf(window);
    return application ? application->bundleIdentifier : "none";
  }

  int changes = 0;
  TemporaryFolder folder;
  ApplicationMatcher matcher{
      std::make_shared<DesktopEntries>(std::vector<fs::path>{folder.path()}, std::vector<std::string>{})};
};

struct Match {
  const char* name;
  WindowIdentity window;
  const char* identifier;
  bool isTerminal = false;
};

class Matching : public ApplicationMatcherTest, public ::testing::WithParamInterface<Match> {
 protected:
  Matching() {
    install("org.example.Editor", entry("Editor"));
    install("writer", entry("Writer", "StartupWMClass=office-writer\n"));
    install("debian-xterm", entry("XTerm", "StartupWMClass=XTerm\nCategories=System;TerminalEmulator;\n"));
    install("some-terminal", entry("Some", "Categories=GTK;TerminalEmulator\n"));
    install("google-chrome", entry("Chrome", "StartupWMClass=Google-chrome\n"));
    install("chrome-notes-Default", entry("Notes", "StartupWMClass=crx_notes\n"));
    install("firefox-esr", entry("Firefox", "StartupWMClass=firefox-esr\n"));
    install("painter", entry("Painter", "Exec=/opt/painter/bin/paint %U\n"));
  }
};

TEST_P(Matching, FindsTheApplicationOfAWindow) {
  const auto application = matcher.applicationOf(GetParam().window);
  ASSERT_TRUE(application);
  EXPECT_EQ(application->bundleIdentifier, GetParam().identifier);
  EXPECT_EQ(application->isTerminal, GetParam().isTerminal);
}

INSTANTIATE_TEST_SUITE_P(
    Windows, Matching,
    ::testing::Values(
        Match{"ApplicationId", {"org.example.Editor", "Other", "other", ""}, "org.example.Editor"},
        Match{"StartupClass", {"", "Office-Writer", "soffice", ""}, "writer"},
        Match{"ClassIsId", {"", "Writer", "w", ""}, "writer"},
        Match{"LastPartOfId", {"", "editor", "editor", ""}, "org.example.Editor"},
        Match{"NotInstalled", {"", "Plain-Program", "plain", ""}, "Plain-Program"},
        Match{"OnlyAProgram", {"", "", "", "paint"}, "painter"},
        Match{"ListedById", {"", "firefox-esr", "Navigator", ""}, "org.mozilla.firefox"},
        Match{"Browser", {"", "Google-chrome", "google-chrome", ""}, "com.google.Chrome"},
        Match{"WebApplication", {"", "Google-chrome", "crx_notes", ""}, "chrome-notes-Default"},
        Match{"Terminal", {"", "XTerm", "xterm", ""}, "debian-xterm", true},
        Match{"UnknownTerminal", {"", "UXTerm", "uxterm", ""}, "UXTerm", true},
        Match{"TerminalByCategory", {"", "some-terminal", "x", ""}, "some-terminal", true},
        Match{"ListedTerminal", {"", "kitty", "kitty", ""}, "net.kovidgoyal.kitty", true}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(ApplicationMatcherTest, NoticesWhatIsInstalledAndRemovedLater) {
  EXPECT_EQ(identifierOf({"", "Foo", "", ""}), "Foo");
  install("foo", entry("Foo"));
  EXPECT_EQ(identifierOf({"", "Foo", "", ""}), "foo");
  fs::remove(folder / "foo.desktop");
  install("bar", entry("Bar"));
  EXPECT_EQ(identifierOf({"", "Foo", "", ""}), "Foo");
}

TEST_F(ApplicationMatcherTest, FindsWhatIsInstalledUnderAnIdentifier) {
  install("firefox-esr", entry("Firefox ESR", "Icon=firefox-icon\n"));
  const auto info = matcher.installed("org.mozilla.firefox");
  ASSERT_TRUE(info);
  EXPECT_EQ(info->name, "Firefox ESR");
  EXPECT_EQ(info->icon, "firefox-icon");
  EXPECT_FALSE(matcher.installed("com.brave.Browser"));
}

TEST(DesktopEntries, TheFirstFolderWinsAndCanRemove) {
  const TemporaryFolder folder;
  for (const char* name : {"user", "system", "system/kde"}) fs::create_directory(folder / name);
  folder.write("user/both.desktop", entry("Of the user"));
  folder.write("system/both.desktop", entry("Of the system"));
  folder.write("user/gone.desktop", "[Desktop Entry]\nHidden=true\n");
  folder.write("system/gone.desktop", entry("Gone", "StartupWMClass=gone\n"));
  folder.write("system/kde/deep.desktop", entry("Deep"));
  DesktopEntries entries({folder / "user", folder / "system", folder / "missing"}, {});
  EXPECT_EQ(entries.withId("both")->name, "Of the user");
  EXPECT_FALSE(entries.withId("gone"));
  EXPECT_FALSE(entries.withStartupWmClass("gone"));
  EXPECT_EQ(entries.withId("KDE-Deep")->id, "kde-deep");
}

}  // namespace
}  // namespace tessarin::testing
