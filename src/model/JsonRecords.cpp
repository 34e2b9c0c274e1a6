#include "model/JsonRecords.h"

namespace tessarin::json {
namespace {

using Kind = JsonReader::Kind;

void require(JsonReader& reader, Kind kind, const Place& place, const char* problem) {
  if (reader.kind() != kind) failAt(place, problem);
}

}  // namespace

void failAt(const Place& place, const char* problem) {
  throw DataError("entry " + std::to_string(place.entry) + " " + problem + " \"" + std::string(place.key) +
                  "\"");
}

void requireObject(JsonReader& reader, std::size_t entry) {
  if (reader.kind() != Kind::object) throw DataError("entry " + std::to_string(entry) + " is not an object");
}

void readValue(JsonReader& reader, std::string& target, const Place& place) {
  require(reader, Kind::string, place, "has no text in");
  target = reader.string();
}

void readValue(JsonReader& reader, std::vector<std::string>& target, const Place& place) {
  require(reader, Kind::array, place, "has no list in");
  target.clear();
  reader.elements([&] {
    require(reader, Kind::string, place, "has something other than texts in");
    target.push_back(reader.string());
  });
}

void readValue(JsonReader& reader, bool& target, const Place& place) {
  require(reader, Kind::boolean, place, "has neither true nor false in");
  target = reader.boolean();
}

void readValue(JsonReader& reader, double& target, const Place& place) {
  require(reader, Kind::number, place, "has no number in");
  target = reader.number();
}

}  // namespace tessarin::json
