#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/GuardedEventTap.h"
#include "support/FakeEventTap.h"

namespace tessarin {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using enum KeyEventKind;

class GuardedEventTapTest : public ::testing::Test {
 protected:
  GuardedEventTapTest() {
    tap.create([this](const KeyEvent& event) {
      delivered.push_back(event.kind);
      return KeyVerdict::swallow;
    });
    tap.setEnabled(true);
  }
  std::optional<KeyVerdict> press(KeyAttention attention) {
    delivered.clear();
    tap.setAttention(attention, ":");
    return keyboard.press({});
  }

  KeyGuard guard = KeyGuard::open;
  testing::FakeEventTap keyboard;
  GuardedEventTap tap{keyboard, [this] { return guard; }};
  std::vector<KeyEventKind> delivered;
};

TEST_F(GuardedEventTapTest, deliversWhileOpen) {
  for (const auto attention : {KeyAttention::triggerOnly, KeyAttention::everyKey}) {
    EXPECT_EQ(press(attention), KeyVerdict::swallow);
    EXPECT_THAT(delivered, ElementsAre(keyDown));
  }
}

TEST_F(GuardedEventTapTest, deliversNothingWhileShutAndEndsWhatHasBegun) {
  guard = KeyGuard::shut;
  EXPECT_EQ(press(KeyAttention::triggerOnly), KeyVerdict::pass);
  EXPECT_THAT(delivered, IsEmpty());
  EXPECT_EQ(press(KeyAttention::everyKey), KeyVerdict::pass);
  EXPECT_THAT(delivered, ElementsAre(disabledByUserInput));
}

TEST_F(GuardedEventTapTest, anUnsureOneLetsBegin) {
  guard = KeyGuard::unsure;
  EXPECT_EQ(press(KeyAttention::triggerOnly), KeyVerdict::swallow);
  EXPECT_THAT(delivered, ElementsAre(keyDown));
  EXPECT_EQ(press(KeyAttention::everyKey), KeyVerdict::pass);
  EXPECT_THAT(delivered, ElementsAre(disabledByUserInput));
}

}  // namespace
}  // namespace tessarin
