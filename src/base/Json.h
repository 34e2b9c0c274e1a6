#pragma once

#include <jansson.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

struct JsonRelease {
  void operator()(json_t* value) const { json_decref(value); }
};
using JsonOwner = std::unique_ptr<json_t, JsonRelease>;

/// Reads UTF-8 JSON whose top level is an array or an object. Throws DataError with line and column.
JsonOwner parseJson(std::string_view text);

/// A new string value. Throws DataError for bytes that are not UTF-8 and for a zero byte, which no reader
/// would take back.
JsonOwner makeJsonString(std::string_view text);

/// The text of an array or object; `flags` are those of jansson's encoder.
std::string dumpJson(const json_t& value, std::size_t flags);

/// One object of a top-level array, whose members are all required and of one type each. Every reader throws
/// DataError naming the entry (counted from 1) and the key.
class JsonRecord {
 public:
  JsonRecord(const json_t* value, std::size_t index);

  std::string string(const char* key) const;
  std::vector<std::string> strings(const char* key) const;
  bool boolean(const char* key) const;
  double number(const char* key) const;

 private:
  const json_t& member(const char* key) const;
  [[noreturn]] void fail(const std::string& problem) const;

  const json_t* object_;
  std::size_t number_;
};

/// The entries of a top-level array, each turned into a record by `read`.
template <class Record, class Read>
std::vector<Record> readJsonArray(const json_t& array, Read read) {
  std::vector<Record> records;
  records.reserve(json_array_size(&array));
  for (std::size_t i = 0; i < json_array_size(&array); ++i) {
    records.push_back(read(JsonRecord(json_array_get(&array, i), i)));
  }
  return records;
}

/// Parses a text whose top level must be an array. Throws DataError.
JsonOwner parseJsonArray(std::string_view text);

}  // namespace tessarin
