#pragma once

#include <string>
#include <vector>

#include "base/Environment.h"

namespace tessarin {

/// The languages of the user as gettext takes them from the environment, the most wanted first: LANGUAGE,
/// else the first set of LC_ALL, LC_MESSAGES and LANG; none where that is C or POSIX. Each by the names of
/// CLDR under which data for it may be found, the most special first: fr_CA gives "fr-CA" and "fr", zh_HK
/// "zh-Hant-HK" and "zh-Hant", sr@latin "sr-Latn". No name comes twice.
std::vector<std::string> userLanguages(const Environment& environment = processEnvironment);

}  // namespace tessarin
