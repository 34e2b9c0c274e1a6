#pragma once

#include <cstddef>
#include <string_view>

namespace tessarin {

/// What stands before the place looked for.
enum class Before { anything, eitherOf };

/// The first place in [from, end) of `pool` where the whole of `needle` (not empty) stands, or npos. With
/// `eitherOf`, only where the byte before is `a` or `b`; `from` is then at least 1. Looks at 16 bytes at a
/// time.
std::size_t findBytes(std::string_view pool, std::size_t from, std::size_t end, std::string_view needle,
                      Before before, char a = 0, char b = 0);

}  // namespace tessarin
