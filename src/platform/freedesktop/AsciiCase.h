#pragma once

#include <string>
#include <string_view>

namespace tessarin::freedesktop {

/// The text with its ASCII letters made small, whatever the locale.
inline std::string lowerCase(std::string_view text) {
  std::string result(text);
  for (char& c : result) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return result;
}

}  // namespace tessarin::freedesktop
