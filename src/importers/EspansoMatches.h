#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "importers/ForeignSnippets.h"

namespace tessarin {

/// One file of matches, as espanso has them.
struct MatchFile {
  std::string name;  ///< for the notes; may be empty where there is one file
  std::string yaml;
};

/// The largest that is read. The largest known hold a megabyte, and a tree of one takes many times its size.
inline constexpr std::size_t largestMatchFile = 8U << 20;

/// The matches of the files that insert text, a snippet for each of their triggers; global variables of one
/// file hold in all. A file may be without matches. Variables become ours where they mean the same.
/// A file that is not YAML, holds something else than matches, or unfolds to more than could be meant is left
/// out with that reason; where it is the only one, the reason is thrown as DataError.
ForeignSnippets readEspansoMatches(const std::vector<MatchFile>& files, const ImportTerms& terms);

}  // namespace tessarin
