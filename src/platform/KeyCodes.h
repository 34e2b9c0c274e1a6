#pragma once

#include <cstdint>

namespace tessarin {

/// The virtual key codes that mean something to the program. Backends translate their own key numbers to
/// these; a key that is none of them gets `other` plus a number of the backend's own.
namespace keycode {
inline constexpr std::int64_t v = 9;
inline constexpr std::int64_t r = 15;
inline constexpr std::int64_t o = 31;
inline constexpr std::int64_t returnKey = 36;
inline constexpr std::int64_t tab = 48;
inline constexpr std::int64_t space = 49;
inline constexpr std::int64_t deleteBackward = 51;
inline constexpr std::int64_t escape = 53;
inline constexpr std::int64_t insert = 114;
inline constexpr std::int64_t forwardDelete = 117;
inline constexpr std::int64_t left = 123;
inline constexpr std::int64_t right = 124;
inline constexpr std::int64_t down = 125;
inline constexpr std::int64_t up = 126;
inline constexpr std::int64_t other = 0x10000;
}  // namespace keycode

/// Modifier bits of a key event and of a synthetic press.
namespace keyflag {
inline constexpr std::uint64_t capsLock = 0x10000;
inline constexpr std::uint64_t shift = 0x20000;
inline constexpr std::uint64_t control = 0x40000;
inline constexpr std::uint64_t option = 0x80000;    ///< Alt
inline constexpr std::uint64_t command = 0x100000;  ///< Super
inline constexpr std::uint64_t chord = control | option | command;
}  // namespace keyflag

}  // namespace tessarin
