#include <xkbcommon/xkbcommon-keysyms.h>

#include "TapFixture.h"
#include "platform/KeyCodes.h"

namespace tessarin::testing {
namespace {

std::string repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

class X11EventTapTest : public TapFixture {};

TEST_F(X11EventTapTest, SeesNothingButTheTriggerWhileIdle) {
  start();
  typist->type("hello; World 123\n");
  expectDocument("hello; World 123\n");
  EXPECT_TRUE(seen.empty());
  typist->type("a:");
  expectDocument("hello; World 123\na:");
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, u":");
  EXPECT_EQ(seen[0].flags, keyflag::shift);
}

TEST_F(X11EventTapTest, HoldsEveryKeyBehindTheTriggerAtAnySpeed) {
  start();
  for (int i = 0; i < 200; ++i) typist->type("a:smile\nb ");
  expectDocument(repeated("a😀b ", 200));
  EXPECT_EQ(insertions, 200);
}

TEST_F(X11EventTapTest, KeepsKeysInOrderBehindAPaste) {
  insertion = Insertion::paste;
  start();
  for (int i = 0; i < 50; ++i) typist->type("A:Smile\nb C");
  expectDocument(repeated("A😀b C", 50));
  EXPECT_EQ(insertions, 50);
}

TEST_F(X11EventTapTest, KeepsKeysOfARealKeyboardInOrderBehindAPaste) {
  insertion = Insertion::paste;
  start();
  typeAs(Typist::Keyboard::real);
  for (int i = 0; i < 50; ++i) typist->type("A:Smile\nb C");
  expectDocument(repeated("A😀b C", 50));
  EXPECT_EQ(insertions, 50);
}

}  // namespace
}  // namespace tessarin::testing
