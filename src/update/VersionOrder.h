#pragma once

#include <compare>
#include <string_view>

namespace tessarin {

/// Which of two versions is the newer one. Numbers count as numbers, of whatever length ("1.10" is newer than
/// "1.9"), zeros at the end say nothing ("1.2" is "1.2.0"), and what has letters comes before the release
/// that it leads to ("1.2b3" before "1.2"). Letters compare without case; a "v" in front and what follows a
/// "+" are passed over. Any bytes have a place in the order.
std::weak_ordering compareVersions(std::string_view a, std::string_view b);

}  // namespace tessarin
