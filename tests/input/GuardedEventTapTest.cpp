#include <gmock/gmock.h>

#include "platform/GuardedEventTap.h"
#include "support/FakeEventTap.h"

namespace tessarin::testing {
namespace {

TEST(GuardedEventTapTest, DeliversWhatTheGuardAllowsAndEndsWhatHasBegun) {
  using enum KeyEventKind;
  const std::optional<KeyEventKind> nothing;
  const struct {
    KeyGuard guard;
    KeyAttention attention;
    KeyVerdict verdict;
    std::optional<KeyEventKind> delivered;
  } cases[] = {
      {KeyGuard::open, KeyAttention::triggerOnly, KeyVerdict::swallow, keyDown},
      {KeyGuard::open, KeyAttention::everyKey, KeyVerdict::swallow, keyDown},
      {KeyGuard::shut, KeyAttention::triggerOnly, KeyVerdict::pass, nothing},
      {KeyGuard::shut, KeyAttention::everyKey, KeyVerdict::pass, disabledByUserInput},
      {KeyGuard::unsure, KeyAttention::triggerOnly, KeyVerdict::swallow, keyDown},
      {KeyGuard::unsure, KeyAttention::everyKey, KeyVerdict::pass, disabledByUserInput},
  };
  for (const auto& c : cases) {
    FakeEventTap keyboard;
    GuardedEventTap tap{keyboard, [&] { return c.guard; }};
    std::vector<KeyEventKind> delivered;
    tap.create([&](const KeyEvent& event) {
      delivered.push_back(event.kind);
      return KeyVerdict::swallow;
    });
    tap.setEnabled(true);
    tap.setAttention(c.attention, ":");
    SCOPED_TRACE(&c - cases);
    EXPECT_EQ(keyboard.press({}), c.verdict);
    EXPECT_EQ(delivered, c.delivered ? std::vector{*c.delivered} : std::vector<KeyEventKind>());
  }
}

}  // namespace
}  // namespace tessarin::testing
