#include <filesystem>

#include "platform/freedesktop/ApplicationMatcher.h"
#include "platform/freedesktop/BaseFolders.h"
#include "platform/freedesktop/DesktopEntry.h"
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

TEST_F(ApplicationMatcherTest, FindsTheApplicationOfAWindow) {
  install("org.example.Editor", entry("Editor"));
  install("writer", entry("Writer", "StartupWMClass=office-writer\n"));
  install("debian-xterm", entry("XTerm", "StartupWMClass=XTerm\nCategories=System;TerminalEmulator;\n"));
  install("some-terminal", entry("Some", "Categories=GTK;TerminalEmulator\n"));
  install("google-chrome", entry("Chrome", "StartupWMClass=Google-chrome\n"));
  install("chrome-notes-Default", entry("Notes", "StartupWMClass=crx_notes\n"));
  install("firefox-esr", entry("Firefox", "StartupWMClass=firefox-esr\n"));
  install("painter", entry("Painter", "Exec=/opt/painter/bin/paint %U\n"));
  const struct {
    const char* name;
    WindowIdentity window;
    const char* identifier;
    PasteChord chord = PasteChord::controlV;
  } cases[] = {
      {"application id", {"org.example.Editor", "Other", "other", ""}, "org.example.Editor"},
      {"startup class", {"", "Office-Writer", "soffice", ""}, "writer"},
      {"class is id", {"", "Writer", "w", ""}, "writer"},
      {"last part of id", {"", "editor", "editor", ""}, "org.example.Editor"},
      {"not installed", {"", "Plain-Program", "plain", ""}, "Plain-Program"},
      {"only a program", {"", "", "", "paint"}, "painter"},
      {"listed by id", {"", "firefox-esr", "Navigator", ""}, "org.mozilla.firefox"},
      {"browser", {"", "Google-chrome", "google-chrome", ""}, "com.google.Chrome"},
      {"web application", {"", "Google-chrome", "crx_notes", ""}, "chrome-notes-Default"},
      {"terminal", {"", "XTerm", "xterm", ""}, "debian-xterm", PasteChord::shiftInsert},
      {"unknown terminal", {"", "UXTerm", "uxterm", ""}, "UXTerm", PasteChord::shiftInsert},
      {"terminal by category", {"", "some-terminal", "x", ""}, "some-terminal", PasteChord::shiftInsert},
      {"listed terminal", {"", "kitty", "kitty", ""}, "net.kovidgoyal.kitty", PasteChord::shiftInsert},
      {"Emacs", {"", "Emacs", "emacs", ""}, "Emacs", PasteChord::shiftInsert},
      {"Falkon", {"", "Falkon", "falkon", ""}, "Falkon", PasteChord::controlShiftV},
      {"Vim", {"", "Gvim", "gvim", ""}, "Gvim", PasteChord::registerPlus},
  };
  for (const auto& [name, window, identifier, chord] : cases) {
    SCOPED_TRACE(name);
    EXPECT_EQ(identifierOf(window), identifier);
    const Application found = matcher.applicationOf(window).value_or(Application{});
    EXPECT_EQ(found.pasteChord, chord);
    EXPECT_EQ(found.isTerminal, std::string_view(name).find("terminal") != std::string_view::npos);
  }
  EXPECT_TRUE(matcher.applicationOf({"", "Notepad.exe", "notepad.exe", ""})->isReadForByAnother);
}

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

}  // namespace
}  // namespace tessarin::testing
