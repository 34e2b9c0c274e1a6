#include "Matchers.h"
#include "input/Preferences.h"
#include "menu/MenuBarManager.h"
#include "support/FakeAccessibility.h"
#include "support/FakeDesktop.h"
#include "support/FakeUserDefaults.h"
#include "support/ManualMainQueue.h"

namespace tessarin::testing {
namespace {

class MenuBarManagerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    manager = std::make_unique<MenuBarManager>(
        statusBar, defaults, queue, Permissions(accessibility, monitoring, workspace),
        MenuBarManager::Hooks{.openSettings = [this](SnippetStore*) { calls.push_back("settings"); },
                              .checkForUpdates = [this] { calls.push_back("updates"); },
                              .quit = [this] { calls.push_back("quit"); }});
  }

  FakeStatusBar statusBar;
  FakeUserDefaults defaults;
  ManualMainQueue queue;
  FakeAccessibility accessibility;
  FakeInputMonitoring monitoring;
  FakeWorkspace workspace;
  std::vector<std::string> calls;
  std::unique_ptr<MenuBarManager> manager;
};

TEST_F(MenuBarManagerTest, ShowsTheWholeMenuAtLaunch) {
  manager->setupStatusItem();
  ASSERT_EQ(statusBar.menus.size(), 1u);
  std::vector<std::string> titles;
  for (const MenuItem& item : statusBar.menus.back()) titles.push_back(item.title);
  EXPECT_THAT(titles,
              ElementsAre("Disable Tessarin", "", "Check for Updates...", "Settings...", "", "Permissions",
                          "  Input Monitoring: ✓", "  Accessibility: ✓", "", "Quit Tessarin"));
}

TEST_F(MenuBarManagerTest, TogglesExpansion) {
  manager->setupStatusItem();
  statusBar.choose("Disable Tessarin");
  EXPECT_FALSE(manager->isEnabled());
  EXPECT_EQ(defaults.boolean(preferences::key::tessarinEnabled), false);
  statusBar.choose("Enable Tessarin");
  EXPECT_TRUE(manager->isEnabled());
  EXPECT_EQ(defaults.boolean(preferences::key::tessarinEnabled), true);
  EXPECT_THAT(statusBar.dimmed, ElementsAre(true, false));
  defaults.set(preferences::key::tessarinEnabled, false);
  SetUp();
  EXPECT_TRUE(manager->isEnabled()) << "it starts switched on whatever is stored";
}

TEST_F(MenuBarManagerTest, RequestsWhatIsMissingAndShowsTheAnswer) {
  accessibility.trusted = false;
  monitoring.granted = false;
  manager->setupStatusItem();
  statusBar.choose("  Input Monitoring: ✗");
  EXPECT_EQ(monitoring.requests, 1);
  monitoring.granted = true;
  statusBar.choose("  Accessibility: ✗ (optional)");
  EXPECT_EQ(accessibility.prompts, 1);
  EXPECT_EQ(accessibility.lastPrompt, PromptManner::inFront);
  EXPECT_TRUE(statusBar.item("  Input Monitoring: ✓")) << "the state of the moment";
  accessibility.trusted = true;
  EXPECT_TRUE(statusBar.item("  Accessibility: ✗ (optional)"));
  manager->rebuildMenu();
  EXPECT_TRUE(statusBar.item("  Accessibility: ✓"));
}

TEST_F(MenuBarManagerTest, LeadsToSettingsUpdatesAndQuit) {
  manager->setupStatusItem();
  statusBar.choose("Settings...");
  statusBar.choose("Check for Updates...");
  EXPECT_THAT(calls, ElementsAre("settings")) << "the check begins after the menu has closed";
  queue.runReady();
  statusBar.choose("Quit Tessarin");
  EXPECT_THAT(calls, ElementsAre("settings", "updates", "quit"));
}

}  // namespace
}  // namespace tessarin::testing
