#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "base/DataError.h"

namespace tessarin::fuzz {

/// The bytes where they lie: a copy in a string would hide a look behind their end.
inline std::string_view asText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// A promise that is broken ends the process, which is what a fuzzer calls a finding.
inline void check(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}

/// What `read` returns, or none when it refuses its bytes in the way that readers do: by a DataError, whose
/// text is one short line.
template <class Read>
auto unlessRefused(Read read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const DataError& error) {
    const std::string_view text = error.what();
    check(!text.empty() && text.size() < 200 && text.find('\n') == std::string_view::npos,
          "a refusal is told in one line");
    return std::nullopt;
  }
}

}  // namespace tessarin::fuzz
