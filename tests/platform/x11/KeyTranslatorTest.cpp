#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "platform/KeyCodes.h"
#include "platform/x11/Handles.h"
#include "platform/x11/KeyTranslator.h"
#include "platform/x11/KeyboardLayout.h"
#include "support/desktop/PrivateDisplay.h"

namespace tessarin::testing {
namespace {

using x11::TypedKey;

class KeyTranslatorTest : public ::testing::Test {
 protected:
  void use(const std::vector<std::string>& arguments) {
    std::vector<std::string> command{"setxkbmap"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    ASSERT_EQ(display_.run(command), 0);
    const x11::Connection connection(xcb_connect(display_.name().c_str(), nullptr));
    layout = x11::KeyboardLayout::read(connection.get());
    ASSERT_TRUE(layout);
  }
  std::optional<KeyEvent> translate(xkb_keysym_t symbol, std::uint8_t extra = 0) {
    for (unsigned modifiers = 0; modifiers < 256; ++modifiers) {
      if ((modifiers & layout->bits().chord()) != 0) continue;
      for (unsigned code = 8; code < 256; ++code) {
        const TypedKey key{static_cast<std::uint8_t>(code), static_cast<std::uint8_t>(modifiers), 0};
        if (layout->symbol(key) != symbol) continue;
        return translator.translate(*layout, {key.code, static_cast<std::uint8_t>(modifiers | extra), 0});
      }
    }
    ADD_FAILURE() << "no key for symbol " << symbol;
    return std::nullopt;
  }
  std::u16string text(xkb_keysym_t symbol, std::uint8_t extra = 0) {
    const auto event = translate(symbol, extra);
    return event ? event->text : u"(none)";
  }

  std::unique_ptr<x11::KeyboardLayout> layout;
  x11::KeyTranslator translator{"en_US.UTF-8"};

 private:
  PrivateDisplay display_;
};

TEST_F(KeyTranslatorTest, FollowsDeadKeysAndCompose) {
  use({"de", "-option", "compose:menu"});
  EXPECT_EQ(text(XKB_KEY_dead_acute), u"(none)");
  EXPECT_EQ(text(XKB_KEY_e), u"é");
  EXPECT_EQ(text(XKB_KEY_e), u"e");
  EXPECT_EQ(text(XKB_KEY_Multi_key), u"(none)");
  EXPECT_EQ(text(XKB_KEY_o), u"(none)");
  EXPECT_EQ(text(XKB_KEY_c), u"©");
  EXPECT_EQ(text(XKB_KEY_dead_acute), u"(none)");
  EXPECT_EQ(text(XKB_KEY_x), u"") << "a sequence that breaks off";
  EXPECT_EQ(text(XKB_KEY_x), u"x");
  EXPECT_EQ(text(XKB_KEY_dead_circumflex), u"(none)");
  translator.reset();
  EXPECT_EQ(text(XKB_KEY_e), u"e");
}

TEST_F(KeyTranslatorTest, LeavesASequenceAloneWhenAModifierComesBetween) {
  use({"de"});
  EXPECT_EQ(text(XKB_KEY_dead_acute), u"(none)");
  EXPECT_EQ(text(XKB_KEY_Shift_L), u"(none)");
  EXPECT_EQ(text(XKB_KEY_E), u"É");
}

TEST_F(KeyTranslatorTest, GivesPlainTextAndTheFlagForAChord) {
  use({"us"});
  const auto event = translate(XKB_KEY_c, x11::ModifierBits::control);
  ASSERT_TRUE(event);
  EXPECT_EQ(event->text, u"c");
  EXPECT_EQ(event->flags, keyflag::control);
  EXPECT_EQ(translate(XKB_KEY_c, layout->bits().alt)->flags, keyflag::option);
  EXPECT_EQ(translate(XKB_KEY_c, layout->bits().super)->flags, keyflag::command);
}

TEST_F(KeyTranslatorTest, AppliesCapsLock) {
  use({"us"});
  const auto event = translate(XKB_KEY_c, x11::ModifierBits::capsLock);
  EXPECT_EQ(event->flags, keyflag::capsLock);
  EXPECT_EQ(event->text, u"C");
}

TEST_F(KeyTranslatorTest, FindsEveryWayToTypeTheTrigger) {
  use({"us,ru"});
  bool latin = false;
  bool cyrillic = false;
  for (const x11::KeyCombination& found : layout->combinations(":")) {
    EXPECT_EQ(found.modifiers & layout->bits().chord(), 0);
    const TypedKey key{found.code, found.modifiers, 0};
    const TypedKey second{found.code, found.modifiers, 1};
    latin |= layout->symbol(key) == XKB_KEY_colon;
    cyrillic |= layout->symbol(second) == XKB_KEY_colon;
    EXPECT_TRUE(layout->symbol(key) == XKB_KEY_colon || layout->symbol(second) == XKB_KEY_colon);
  }
  EXPECT_TRUE(latin);
  EXPECT_TRUE(cyrillic);
  EXPECT_TRUE(layout->combinations("😀").empty());
}

}  // namespace
}  // namespace tessarin::testing
