#pragma once

#include <jansson.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace tessarin::freedesktop {

struct JsonRelease {
  void operator()(json_t* value) const { json_decref(value); }
};
using JsonOwner = std::unique_ptr<json_t, JsonRelease>;

/// Reads UTF-8 JSON whose top level is an array or an object. Throws DataError with line and column.
JsonOwner parseJson(std::string_view text);

/// A new string value. Throws DataError for bytes that are not UTF-8.
JsonOwner makeJsonString(std::string_view text);

/// The text of an array or object; `flags` are those of jansson's encoder.
std::string dumpJson(const json_t& value, std::size_t flags);

}  // namespace tessarin::freedesktop
