#pragma once

#include <gtest/gtest.h>

#include "platform/StatusBar.h"

namespace tessarin::testing {

/// How a StatusBar behaves, whoever implements it. `World` offers:
///   StatusBar& statusBar();                 of a desktop that has a tray
///   bool isShown();                         whether the item stands in it, now that everything has settled
///   std::vector<std::string> openMenu();    what the user sees then: titles, "-" for a separator, in
///   brackets
///                                           what cannot be chosen
///   void choose(const std::string& title);  from the open menu, which closes
template <class World>
class StatusBarSuite : public ::testing::Test {
 protected:
  StatusBar& statusBar() { return world.statusBar(); }
  World world;
};

TYPED_TEST_SUITE_P(StatusBarSuite);

TYPED_TEST_P(StatusBarSuite, ItsItemIsThereUnlessItShallNotBe) {
  this->statusBar().setVisible(false);
  this->statusBar().createItem("Tessarin");
  this->statusBar().setMenu({{.title = "Quit", .keyEquivalent = "q", .action = [] {}}});
  EXPECT_FALSE(this->world.isShown());
  for (const bool isVisible : {true, false, true}) {
    this->statusBar().setVisible(isVisible);
    this->statusBar().setDimmed(isVisible);
    EXPECT_EQ(this->world.isShown(), isVisible);
  }
}

TYPED_TEST_P(StatusBarSuite, TheMenuSetLastIsSeenAndChosenFrom) {
  std::vector<std::string> events;
  this->statusBar().onMenuOpening([&] { events.emplace_back("opening"); });
  this->statusBar().createItem("Tessarin");
  EXPECT_TRUE(this->world.isShown());
  this->statusBar().setMenu({{.title = "Old", .keyEquivalent = "", .action = [] {}}});
  this->statusBar().setMenu(
      {{.title = "Heading", .keyEquivalent = "", .action = nullptr},
       {},
       {.title = "Settings...", .keyEquivalent = ",", .action = [&] { events.emplace_back("settings"); }}});
  for (int times = 0; times < 2; ++times) {
    EXPECT_EQ(this->world.openMenu(), (std::vector<std::string>{"(Heading)", "-", "Settings..."}));
    this->world.choose("Settings...");
  }
  EXPECT_EQ(events, (std::vector<std::string>{"opening", "settings", "opening", "settings"}));
}

REGISTER_TYPED_TEST_SUITE_P(StatusBarSuite, ItsItemIsThereUnlessItShallNotBe,
                            TheMenuSetLastIsSeenAndChosenFrom);

}  // namespace tessarin::testing
