#pragma once

#include <cstddef>
#include <string_view>

#include "update/AppcastItem.h"

namespace tessarin {

/// The largest feed that is read, in bytes: a hundred times what a feed with full notes takes.
inline constexpr std::size_t maximumAppcastSize = 1 << 20;

/// Reads an RSS 2.0 feed of releases. Elements beyond RSS (version, channel …) are known by their local name
/// and may be in any namespace. Whatever the bytes are, the answer comes in time proportional to their
/// number. Throws DataError when they are no such feed, are not UTF-8, declare a document type or entities,
/// or are larger or more deeply nested than any feed is.
Appcast parseAppcast(std::string_view bytes);

}  // namespace tessarin
