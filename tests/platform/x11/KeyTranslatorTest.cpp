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
    display_.setLayout(arguments);
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
  EXPECT_EQ(text(XKB_KEY_Shift_L), u"(none)") << "a modifier comes between";
  EXPECT_EQ(text(XKB_KEY_E), u"É");
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

TEST_F(KeyTranslatorTest, GivesPlainTextAndTheFlagForAChord) {
  use({"us"});
  const auto event = translate(XKB_KEY_c, x11::ModifierBits::control);
  ASSERT_TRUE(event);
  EXPECT_EQ(event->text, u"c");
  EXPECT_EQ(event->flags, keyflag::control);
  EXPECT_EQ(translate(XKB_KEY_c, layout->bits().alt)->flags, keyflag::option);
  EXPECT_EQ(translate(XKB_KEY_c, layout->bits().super)->flags, keyflag::command);
  EXPECT_EQ(text(XKB_KEY_c, x11::ModifierBits::capsLock), u"C");
}

}  // namespace
}  // namespace tessarin::testing
