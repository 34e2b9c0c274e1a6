#include <gtest/gtest.h>

#include "insertion/PlainText.h"

namespace tessarin {
namespace {

struct Contents {
  const char* name;
  std::vector<PasteboardItem> items;
  std::optional<std::string> text;
};

class PlainText : public ::testing::TestWithParam<Contents> {};

TEST_P(PlainText, isFoundAmongTheItems) {
  EXPECT_EQ(plainText(GetParam().items), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Items, PlainText,
    ::testing::Values(Contents{"nothing", {}, std::nullopt},
                      Contents{"imageOnly", {{"image/png", "x"}}, std::nullopt},
                      Contents{"utf8First", {{"STRING", "caf\xE9"}, {"UTF8_STRING", "café"}}, "café"},
                      Contents{"mimeType", {{"text/html", "<i>"}, {"text/plain;charset=utf-8", "é"}}, "é"},
                      Contents{"mimeTypeInCapitals", {{"text/plain;charset=UTF-8", "é"}}, "é"},
                      Contents{"latin1", {{"STRING", "caf\xE9"}}, "café"},
                      Contents{"malformed", {{"UTF8_STRING", "\xFF"}, {"text/plain", "plain"}}, "plain"},
                      Contents{"onlyMalformed", {{"UTF8_STRING", "\xFF"}}, std::nullopt},
                      Contents{"emptyText", {{"UTF8_STRING", ""}}, ""}),
    [](const auto& contents) { return contents.param.name; });

}  // namespace
}  // namespace tessarin
