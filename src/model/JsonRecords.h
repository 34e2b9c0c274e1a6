#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/DataError.h"
#include "model/JsonReader.h"

namespace tessarin {

/// A required member of a JSON object, and where its value goes.
template <class Record>
struct JsonField {
  std::string_view key;
  std::variant<std::string Record::*, std::vector<std::string> Record::*, bool Record::*, double Record::*>
      target;
};

namespace json {

/// Where a value stands, for the errors.
struct Place {
  std::size_t entry;  ///< counted from 1
  std::string_view key;
};

[[noreturn]] void failAt(const Place& place, const char* problem);
void readValue(JsonReader& reader, std::string& target, const Place& place);
void readValue(JsonReader& reader, std::vector<std::string>& target, const Place& place);
void readValue(JsonReader& reader, bool& target, const Place& place);
void readValue(JsonReader& reader, double& target, const Place& place);
/// Throws unless the next value is an object.
void requireObject(JsonReader& reader, std::size_t entry);

template <class Record, std::size_t count>
Record readRecord(JsonReader& reader, const std::array<JsonField<Record>, count>& fields, std::size_t entry) {
  requireObject(reader, entry);
  Record record;
  std::array<bool, count> seen{};
  reader.members([&](const std::string& key) {
    const auto field =
        std::find_if(fields.begin(), fields.end(), [&](const auto& f) { return f.key == key; });
    if (field == fields.end()) return reader.skip();
    seen[static_cast<std::size_t>(field - fields.begin())] = true;
    std::visit([&](auto target) { readValue(reader, record.*target, {entry, field->key}); }, field->target);
  });
  for (std::size_t i = 0; i < count; ++i) {
    if (!seen[i]) failAt({entry, fields[i].key}, "lacks");
  }
  return record;
}

}  // namespace json

/// The records of a text that must be an array of objects with all of the fields; other members are dropped.
/// Throws DataError naming the first bad entry (counted from 1) and key.
template <class Record, std::size_t count>
std::vector<Record> decodeJsonRecords(std::string_view text,
                                      const std::array<JsonField<Record>, count>& fields) {
  JsonReader reader(text);
  if (reader.kind() != JsonReader::Kind::array) throw DataError("the top level is not an array");
  std::vector<Record> records;
  reader.elements([&] { records.push_back(json::readRecord(reader, fields, records.size() + 1)); });
  reader.end();
  return records;
}

}  // namespace tessarin
