#pragma once

#include <string>
#include <string_view>

#include "importers/ForeignSnippets.h"

namespace tessarin {

/// One phrase of AutoKey: its text and the description in JSON that lies hidden beside it. Each of its
/// abbreviations becomes a snippet. Phrases that press keys or run something have no equal, and neither has a
/// description of something else than a phrase: it is left out.
/// Throws DataError where one of the two is not what it should be.
ForeignSnippets readAutoKeyPhrase(const std::string& where, std::string_view json, std::string_view text,
                                  const ImportTerms& terms);

}  // namespace tessarin
