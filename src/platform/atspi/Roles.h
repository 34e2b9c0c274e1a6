#pragma once

#include <cstdint>
#include <string_view>

/// The numbers that the accessibility bus gives roles and states, as far as they matter here, and what they
/// are in our vocabulary.
namespace tessarin::atspi {

namespace busRole {
inline constexpr std::uint32_t dialog = 16, frame = 23, menuBar = 34, passwordText = 40, terminal = 60,
                               text = 61, window = 69, paragraph = 73, entry = 79, documentText = 94,
                               documentWeb = 95;
}  // namespace busRole

/// One bit each of the 64 that an object's state set is made of.
namespace busState {
constexpr std::uint64_t bit(int number) {
  return std::uint64_t{1} << number;
}
inline constexpr std::uint64_t active = bit(1), editable = bit(7), focused = bit(12), multiLine = bit(17),
                               showing = bit(25), visible = bit(30), managesDescendants = bit(31);
}  // namespace busState

/// Whether an object with this role may be a single-line or a multi-line text, so that its states must tell.
bool isPlainText(std::uint32_t role);
bool isWindow(std::uint32_t role);

/// Our name of the role. `htmlTag` is the tag of the HTML element behind the object, empty when there is
/// none.
std::string_view roleName(std::uint32_t role, std::uint64_t states, std::string_view htmlTag);

}  // namespace tessarin::atspi
