#include "model/UsageCoding.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/DataError.h"
#include "model/JsonRecords.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

void appendEscaped(std::string& json, char c) {
  constexpr char digits[] = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(c);
  if (c == '"' || c == '\\' || c == '/') {
    json += '\\';
    json += c;
  } else if (code < 0x20) {
    json += "\\u00";
    json += digits[code >> 4];
    json += digits[code & 0x0F];
  } else {
    json += c;
  }
}

void appendString(std::string& json, const std::string& text) {
  json += '"';
  const bool valid = text::isValidUtf8(text);
  for (const char c : valid ? text : text::fromUtf16(text::toUtf16(text))) appendEscaped(json, c);
  json += '"';
}

template <class Number>
void appendNumber(std::string& json, Number number) {
  std::array<char, 32> digits{};  // the longest double in its shortest exact form has 24
  json.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

}  // namespace

UsageCounts decodeUsageCounts(std::string_view json) {
  JsonReader reader(json);
  if (reader.kind() != JsonReader::Kind::object) throw DataError("the top level is not an object");
  UsageCounts counts;
  std::size_t entry = 0;
  reader.members([&](const std::string& trigger) {
    ++entry;
    if (reader.kind() != JsonReader::Kind::number || !reader.isInteger()) {
      throw DataError("the count of entry " + std::to_string(entry) + " is not an integer");
    }
    counts[trigger] = reader.integer();
  });
  reader.end();
  return counts;
}

std::string encodeUsageCounts(const UsageCounts& counts) {
  std::string json = "{";
  for (const auto& [trigger, count] : counts) {
    if (json.size() > 1) json += ',';
    appendString(json, trigger);
    json += ':';
    appendNumber(json, count);
  }
  return json + '}';
}

std::vector<UsageEvent> decodeUsageEvents(std::string_view json) {
  constexpr std::array<JsonField<UsageEvent>, 2> fields = {
      {{"trigger", &UsageEvent::trigger}, {"timestamp", &UsageEvent::timestamp}}};
  return decodeJsonRecords(json, fields);
}

std::string encodeUsageEvent(const UsageEvent& event) {
  std::string json = R"({"trigger":)";
  appendString(json, event.trigger);
  json += R"(,"timestamp":)";
  appendNumber(json, event.timestamp);
  return json + '}';
}

void UsageEventsText::append(const UsageEvent& event) {
  text_.back() = ',';
  if (text_.size() == 2) text_.pop_back();
  text_ += encodeUsageEvent(event);
  text_ += ']';
}

void UsageEventsText::dropFirst(const UsageEvent& event) {
  const std::size_t length = encodeUsageEvent(event).size();
  const bool isLast = text_.size() == length + 2;
  text_.erase(1, isLast ? length : length + 1);
}

}  // namespace tessarin
