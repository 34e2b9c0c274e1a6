#include <jansson.h>

#include <random>

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
      "\xEF\xBB\xBF [ \"a\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00e9\\u20AC\\uD83D\\ude00é😀\\u0000.\" ,true,false, -0, "
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
  EXPECT_EQ(text, std::string("a\"\\/\b\f\n\r\té€😀é😀\0.", 26));
  EXPECT_EQ(booleans, (std::vector<bool>{true, false}));
  EXPECT_EQ(numbers, (std::vector<double>{0, 1.25}));
}

/// Another reader's opinion. It refuses numbers that are too large, also where nobody asks for them; there
/// are none in the texts.
bool isAcceptedElsewhere(const std::string& text) {
  json_t* value = json_loadb(text.data(), text.size(),
                             JSON_DECODE_ANY | JSON_DECODE_INT_AS_REAL | JSON_ALLOW_NUL, nullptr);
  json_decref(value);
  return value != nullptr;
}

TEST(JsonReader, AgreesWithAnotherReaderOnDamagedTexts) {
  const std::string whole =
      "[{\"id\":\"\\u00e9\\\"\\n\",\"n\":[20,0,-1.5e-3],\"é\":{\"t\":true,\"f\":false}},\n [ null, [] ,{}, "
      "\"\\uD83D\\uDE00\"]]";
  const std::string pieces = "[]{}\",:\\u0dD8e.-+ 1tn\n\x01\xC3\xA9";
  std::mt19937 random(20260314);
  int accepted = 0;
  for (int round = 0; round < 20'000; ++round) {
    std::string text = whole;
    for (std::size_t edits = 1 + random() % 3; edits > 0; --edits) {
      const std::size_t at = random() % text.size();
      text.replace(at, random() % 3, random() % 2, pieces[random() % pieces.size()]);
    }
    const bool isAccepted = errorOf(text) == "no error";
    accepted += isAccepted ? 1 : 0;
    ASSERT_EQ(isAccepted, isAcceptedElsewhere(text)) << text << "\n" << errorOf(text);
  }
  EXPECT_GT(accepted, 500);
}

}  // namespace
}  // namespace tessarin::testing
