#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarin::x11 {

/// Atoms with which a reader asks for plain text.
bool isTextTarget(std::string_view name);

/// What plain text is read from, the best first.
const std::vector<std::string>& textTargets();

/// Whether a snapshot takes in the target: not those that make the owner do something, those that speak of
/// the other targets, and those that name resources which live no longer than the owner's copy.
bool isContentTarget(std::string_view name);

/// What is asked for when the owner does not say in time what it offers.
const std::vector<std::string>& commonTargets();

/// The mark by which clipboard managers know that contents are not to be remembered, and its value.
inline constexpr std::string_view secretMark = "x-kde-passwordManagerHint";
inline constexpr std::string_view secretValue = "secret";

}  // namespace tessarin::x11
