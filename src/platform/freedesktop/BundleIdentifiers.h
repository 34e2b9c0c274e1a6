#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Workspace.h"

namespace tessarin::freedesktop {

/// The identifier under which the built-in application lists know a product that goes by this desktop-entry
/// id or window class here, whatever its case. None for a product that is on no list.
std::optional<std::string> listedIdentifier(std::string_view name);

/// The desktop-entry ids under which a product with a listed identifier is installed, the most usual first.
std::vector<std::string> namesOfListed(std::string_view identifier);

/// Whether windows of this class are known to be a terminal emulator's: the desktop entry of many does not
/// say so, or there is none.
bool isTerminalClass(std::string_view windowClass);
/// What pastes in windows of this class. None where nothing else than usual is known.
std::optional<PasteChord> chordOfClass(std::string_view windowClass);

}  // namespace tessarin::freedesktop
