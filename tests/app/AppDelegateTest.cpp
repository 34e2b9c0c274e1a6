#include <chrono>

#include "Matchers.h"
#include "app/AppDelegate.h"
#include "app/TestApp.h"
#include "input/Preferences.h"
#include "platform/KeyCodes.h"

namespace tessarin::testing {
namespace {

using Strings = std::vector<std::string>;

class AppDelegateTest : public ::testing::Test {
 protected:
  void SetUp() override { app.launch(); }
  /// What every way of abandoning leaves.
  void expectAbandoned() {
    EXPECT_EQ(app.query(), std::nullopt);
    EXPECT_FALSE(app.popup.visible);
    EXPECT_THAT(app.model().results(), IsEmpty());
    EXPECT_EQ(app.model().query(), "");
    EXPECT_FALSE(app.monitor().isIntercepting);
    EXPECT_FALSE(app.monitor().shouldConsumeArrows);
    EXPECT_EQ(app.tap.attention(), KeyAttention::triggerOnly);
  }
  TestApp app;
};

TEST_F(AppDelegateTest, ShowsEightAtMostOfWhatEachQueryFinds) {
  app.type(":");
  EXPECT_EQ(app.shownTriggers(), std::nullopt);
  EXPECT_EQ(app.popup.anticipations, 1);
  app.type("sm");
  EXPECT_EQ(app.popup.anticipations, 1) << "once a shortcode";
  EXPECT_EQ(app.shownTriggers(), (Strings{"smile", "smirk", "small"}));
  app.type("ir");
  EXPECT_EQ(app.shownTriggers(), Strings{"smirk"});
  app.type("q");
  EXPECT_EQ(app.shownTriggers(), std::nullopt);
  EXPECT_FALSE(app.monitor().isIntercepting);
  app.type("⌫");
  EXPECT_EQ(app.shownTriggers(), Strings{"smirk"}) << "the query was kept";
  for (int i = 0; i < 12; ++i) {
    app.app->snippetStore().addSnippet({"id", "n", "many" + std::to_string(i), "m", {}, "Custom", false});
  }
  app.type("⎋:many");
  EXPECT_EQ(app.shownTriggers()->size(), 8u);
}

TEST_F(AppDelegateTest, AChangedTriggerHoldsAtOnce) {
  app.tap.isQuietWhileIdle = true;
  app.type(":s");
  app.defaults.set(preferences::key::triggerCharacter, "/");
  EXPECT_EQ(app.popup.presented.back().triggerCharacter, "/");
  app.type("⎋");
  app.defaults.set(preferences::key::triggerCharacter, ";");
  EXPECT_FALSE(app.popup.visible);
  app.type(";smile;");
  EXPECT_EQ(app.document.text, ":s😄");
}

TEST_F(AppDelegateTest, EndsInManyWays) {
  struct Way {
    const char* name;
    std::function<void(TestApp&)> end;
  };
  const Way ways[] = {
      {"Escape", [](TestApp& a) { a.type("⎋"); }},
      {"chord", [](TestApp& a) { a.tap.press(letter("c", keyflag::control)); }},
      {"another application", [](TestApp& a) { a.workspace.activate("org.example.Other"); }},
      {"the tray menu opens", [](TestApp& a) { a.statusBar.openMenu(); }},
      {"pointer press", [](TestApp& a) { a.workspace.changeContext(); }},
      {"focus moved", [](TestApp& a) { a.accessibility.focus(std::make_shared<FakeElement>()); }},
      {"focus in another window", [](TestApp& a) { a.tap.report(KeyEventKind::focusMoved); }},
      {"tap timed out", [](TestApp& a) { a.tap.disable(KeyEventKind::disabledByTimeout); }},
  };
  for (const Way& way : ways) {
    SCOPED_TRACE(way.name);
    app.type(":wave→");
    ASSERT_TRUE(app.popup.visible);
    way.end(app);
    expectAbandoned();
    EXPECT_EQ(app.tap.press(key(keycode::returnKey, "\r")), KeyVerdict::pass);
    EXPECT_THAT(app.insertion.replacements, IsEmpty());
  }
}

TEST_F(AppDelegateTest, BlockedApplicationsAndPasswordFieldsAreLeftAlone) {
  auto field = std::make_shared<FakeElement>();
  field->attributes[std::string(attribute::role)] = std::string(role::secureTextField);
  app.accessibility.focus(field);
  const auto asks = [this](const char* keys) {
    const int before = app.accessibility.calls;
    app.type(keys);
    return app.accessibility.calls > before;
  };
  EXPECT_TRUE(asks(":"));
  EXPECT_FALSE(asks("smile⏎")) << "only where something may begin";
  EXPECT_EQ(app.document.text, ":smile\r");
  app.app->menuBarManager().toggleEnabled();
  EXPECT_FALSE(asks(":")) << "switched off";
  app.app->menuBarManager().toggleEnabled();
  app.workspace.activate("com.apple.MobileSMS");
  EXPECT_FALSE(asks(":")) << "blocked";
  app.accessibility.focus(std::make_shared<FakeElement>());
  for (const char* blocked : {"com.tinyspeck.slackmacgap", "com.apple.MobileSMS", "org.example.Chat"}) {
    app.defaults.set(preferences::key::blacklistedApps, Strings{"org.example.Chat"});
    app.workspace.activate(blocked);
    app.type(":smile⏎");
    EXPECT_EQ(app.query(), std::nullopt);
  }
  EXPECT_THAT(app.popup.presented, IsEmpty());
  app.workspace.activate("");
  app.defaults.set(preferences::key::blacklistedApps, Strings{""});
  app.type(":s");
  EXPECT_TRUE(app.popup.visible) << "an application without identifier is not blocked";
}

TEST_F(AppDelegateTest, SwitchedOffItLeavesEverythingAsItIs) {
  app.type(":wave→");
  app.app->menuBarManager().toggleEnabled();
  app.tap.press(key(keycode::down));
  app.tap.press(key(keycode::returnKey, "\r"));
  EXPECT_EQ(app.query(), "wave");
  EXPECT_TRUE(app.popup.visible);
  EXPECT_TRUE(app.model().skinToneMode());
  app.app->menuBarManager().toggleEnabled();
  app.type("⏎");
  EXPECT_EQ(app.document.text, "👋");
}

TEST_F(AppDelegateTest, SwitchedFromOutsideItLetsGoOfTheKeysFirst) {
  for (const bool isOn : {false, true}) {
    app.type(":wave");
    EXPECT_EQ(app.app->toggleEnabled(), isOn);
    EXPECT_EQ(app.app->menuBarManager().isEnabled(), isOn);
    expectAbandoned();
  }
}

TEST_F(AppDelegateTest, AnInsertionIsNotDisturbedFromOutside) {
  app.insertion.finishesAtOnce = false;
  app.type(":smile⏎");
  app.accessibility.focus(std::make_shared<FakeElement>());
  app.tap.disable(KeyEventKind::disabledByTimeout);
  app.defaults.set(preferences::key::triggerCharacter, ";");
  EXPECT_EQ(app.tap.attention(), KeyAttention::holdBack);
  app.insertion.finish();
  EXPECT_EQ(app.tap.attention(), KeyAttention::triggerOnly);
  EXPECT_EQ(app.document.text, "😄");
}

TEST_F(AppDelegateTest, NothingThatItHandedOutOutlivesIt) {
  app.insertion.finishesAtOnce = false;
  app.type(":smile⏎");
  app.app.reset();
  app.insertion.finish();
  app.popup.clickRow(0);
  app.popup.clickVariant(0);
  app.workspace.changeContext();
  app.statusBar.openMenu();
  app.statusBar.choose("Disable Tessarin");
  app.accessibility.focus(std::make_shared<FakeElement>());
  app.defaults.set(preferences::key::triggerCharacter, ";");
  app.queue.advance(std::chrono::seconds(10));
  EXPECT_FALSE(app.tap.exists);
}

}  // namespace
}  // namespace tessarin::testing
