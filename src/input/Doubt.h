#pragma once

#include <string_view>

#include "input/Preceding.h"

namespace tessarin {

/// A shortcode that is being collected, as far as it tells whether it is meant as one.
struct CollectedShortcode {
  std::string_view query;
  bool isTrigger = false;  ///< the query is the whole trigger of a snippet
  bool isKeyword = false;  ///< the query is a whole keyword of a snippet
  Preceding preceding = Preceding::unknown;
  bool isInTerminal = false;
};

/// Whether it is more likely ordinary text ("12:30", "scp host:file", vim's ":w"), so that Return and Tab had
/// better be left alone: one letter; behind a word; at the start of a line of a terminal; and in a terminal
/// that does not tell its text, unless it is a whole trigger of three letters or more.
bool isDoubtful(const CollectedShortcode& shortcode);

}  // namespace tessarin
