#include "Matchers.h"
#include "base/DataError.h"
#include "model/JsonReader.h"

namespace tessarin::testing {
namespace {

std::string errorOf(const std::string& text) {
  try {
    JsonReader reader(text);
    reader.skip();
    reader.end();
  } catch (const DataError& error) {
    return error.what();
  }
  return "no error";
}

TEST(JsonReader, NamesWhatIsWrongWithoutQuotingTheText) {
  const struct {
    std::string text;
    const char* error;
  } cases[] = {
      {"", "ends too early (line 1, column 1)"},
      {"[1, 2", "ends too early"},
      {"[]\n[\"secret\"]", "goes on after its end (line 2, column 1)"},
      {"[\"secret\xFF\"]", "not valid UTF-8"},
      {R"(["secret\u0000"])", "zero character"},
      {std::string("[\"secret\0\"]", 11), "not valid JSON"},
      {R"(["secret\uD800\u0041"])", "surrogate"},
      {std::string(100'000, '['), "nested too deeply"},
      {"[secret]", "not valid JSON (line 1, column 2)"},
  };
  for (const auto& [text, error] : cases) {
    EXPECT_THAT(errorOf(text), AllOf(HasSubstr(error), Not(HasSubstr("secret")))) << text.substr(0, 30);
  }
}

TEST(JsonReader, NumbersOfTheWrongKindAreErrorsOnlyWhereTheyAreWanted) {
  const std::string text = R"({"note": 1e999, "more": -1e-999})";
  EXPECT_EQ(errorOf(text), "no error");
  JsonReader reader(text);
  EXPECT_THROW(reader.members([&](const std::string&) { reader.number(); }), DataError);
  for (const char* real : {"1.0", "1e2", "1E2", "9223372036854775808", "-9223372036854775809"}) {
    EXPECT_THROW(JsonReader(real).integer(), DataError) << real;
  }
  EXPECT_EQ(JsonReader("-9223372036854775808").integer(), INT64_MIN);
}

TEST(JsonReader, ReadsEveryKindOfValue) {
  JsonReader reader(
      "\xEF\xBB\xBF [ \"a\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00e9\\u20AC\\uD83D\\ude00é😀\" ,true,false, -0, "
      "12.5e-1, "
      "9223372036854775807 ] ");
  std::vector<double> numbers;
  std::vector<bool> booleans;
  std::string text;
  reader.elements([&] {
    if (reader.kind() == JsonReader::Kind::string) return text = reader.string(), void();
    if (reader.kind() == JsonReader::Kind::boolean) return booleans.push_back(reader.boolean());
    if (numbers.size() < 2) return numbers.push_back(reader.number());
    EXPECT_EQ(reader.integer(), INT64_MAX);
  });
  reader.end();
  EXPECT_EQ(text, "a\"\\/\b\f\n\r\té€😀é😀");
  EXPECT_EQ(booleans, (std::vector<bool>{true, false}));
  EXPECT_EQ(numbers, (std::vector<double>{0, 1.25}));
}

}  // namespace
}  // namespace tessarin::testing
