#pragma once

#include <compare>
#include <string>

namespace tessarin::atspi {

inline constexpr const char* applicationPath = "/org/a11y/atspi/accessible/root";
inline constexpr const char* nullPath = "/org/a11y/atspi/null";

/// Where an accessible object is: the bus name of its application and its path in there.
struct ObjectReference {
  std::string bus;
  std::string path;
  auto operator<=>(const ObjectReference&) const = default;
};

}  // namespace tessarin::atspi
