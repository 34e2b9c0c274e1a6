#include "platform/x11/KeptSelectionCoding.h"

#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

namespace tessarin::x11 {
namespace {

void append(std::string& bytes, std::uint64_t number) {
  bytes.append(reinterpret_cast<const char*>(&number), sizeof(number));
}

class Input {
 public:
  explicit Input(std::string_view bytes) : rest_(bytes) {}

  std::uint64_t number() {
    std::uint64_t result = 0;
    const auto bytes = take(sizeof(result));
    if (!isShort_) std::memcpy(&result, bytes.data(), sizeof(result));
    return result;
  }
  std::string_view take(std::uint64_t size) {
    if (size > rest_.size()) isShort_ = true;
    if (isShort_) return {};
    const auto result = rest_.substr(0, size);
    rest_.remove_prefix(size);
    return result;
  }
  bool isShort() const { return isShort_; }

 private:
  std::string_view rest_;
  bool isShort_ = false;
};

Representation representation(Input& input) {
  Representation result;
  result.target = static_cast<xcb_atom_t>(input.number());
  result.type = static_cast<xcb_atom_t>(input.number());
  result.format = static_cast<std::uint8_t>(input.number());
  result.data = std::make_shared<const std::string>(input.take(input.number()));
  return result;
}

}  // namespace

std::string encodeSelections(const std::vector<KeptSelection>& selections) {
  std::string bytes;
  append(bytes, selections.size());
  for (const auto& [selection, contents] : selections) {
    append(bytes, selection);
    append(bytes, contents.size());
    for (const auto& [target, type, format, data] : contents) {
      for (const std::uint64_t number : {std::uint64_t{target}, std::uint64_t{type}, std::uint64_t{format}})
        append(bytes, number);
      append(bytes, data->size());
      bytes += *data;
    }
  }
  return bytes;
}

std::optional<std::vector<KeptSelection>> decodeSelections(const std::string& bytes) {
  Input input(bytes);
  std::vector<KeptSelection> selections;
  for (auto left = input.number(); left > 0 && !input.isShort(); --left) {
    KeptSelection kept{static_cast<xcb_atom_t>(input.number()), {}};
    for (auto more = input.number(); more > 0 && !input.isShort(); --more) {
      kept.contents.push_back(representation(input));
    }
    selections.push_back(std::move(kept));
  }
  if (input.isShort()) return std::nullopt;
  return selections;
}

}  // namespace tessarin::x11
