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
      {{{"text/html", "<i>"}, {"text/plain;charset=UTF-8", "é"}}, "é"},
      {{{"STRING", "caf\xE9"}}, "café"},
      {{{"UTF8_STRING", "\xFF"}, {"text/plain", "plain"}}, "plain"},
      {{{"UTF8_STRING", "\xFF"}}, std::nullopt},
      {{{"UTF8_STRING", ""}}, ""},
  };
  for (const auto& c : cases) EXPECT_EQ(plainText(c.items), c.text) << &c - cases;
}

}  // namespace
}  // namespace tessarin::testing
