#include <gmock/gmock.h>

#include "base/DataError.h"
#include "base/Json.h"

namespace tessarin {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

std::string errorOf(const std::string& text) {
  try {
    parseJsonArray(text);
  } catch (const DataError& error) {
    return error.what();
  }
  return "no error";
}

TEST(Json, NamesWhatIsWrongWithoutQuotingTheText) {
  const struct {
    std::string text;
    const char* error;
  } cases[] = {
      {"", "ends too early"},
      {"[1, 2", "not valid JSON"},
      {R"([{"secret")", "not valid JSON"},
      {R"(["secret)", "ends too early"},
      {"[]\n[\"secret\"]", "goes on after its end (line 2"},
      {"[\"secret\xFF\"]", "not valid UTF-8"},
      {R"(["secret\u0000"])", "zero character"},
      {std::string("[\"secret\0\"]", 11), "zero character"},
      {R"(["secret\uD800"])", "not valid"},
      {std::string(100'000, '['), "nested too deeply"},
      {"[123456789012345678901234567890]", "a number is too large"},
      {"[secret]", "not valid JSON (line 1"},
      {"42", "not valid JSON"},
      {"{}", "the top level is not an array"},
  };
  for (const auto& [text, error] : cases) {
    EXPECT_THAT(errorOf(text), HasSubstr(error)) << text.substr(0, 30);
    EXPECT_THAT(errorOf(text), Not(HasSubstr("secret")));
  }
}

TEST(Json, ReadsPastAByteOrderMark) {
  EXPECT_EQ(errorOf("\xEF\xBB\xBF []"), "no error");
}

}  // namespace
}  // namespace tessarin
