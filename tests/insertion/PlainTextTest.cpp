#include <gtest/gtest.h>

#include "insertion/PlainText.h"

namespace tessarin::testing {
namespace {

TEST(PlainText, IsFoundAmongTheItems) {
  const struct {
    std::vector<PasteboardItem> items;
    std::optional<std::string> text;
  } cases[] = {
      {{{"image/png", "x"}}, std::nullopt},
      {{{"STRING", "caf\xE9"}, {"UTF8_STRING", "café"}}, "café"},
      {{{"STRING", "caf\xE9"}}, "café"},
      {{{"UTF8_STRING", "\xFF"}, {"text/plain", "plain"}}, "plain"},
      {{{"UTF8_STRING", "\xFF"}}, std::nullopt},
  };
  for (const auto& c : cases) EXPECT_EQ(plainText(c.items), c.text) << &c - cases;
}

}  // namespace
}  // namespace tessarin::testing
