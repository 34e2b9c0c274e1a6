#pragma once

#include <string_view>

#include "importers/ForeignSnippets.h"

namespace tessarin {

/// The snippets of a table in text form: trigger, text, and where there are more columns name and keywords,
/// these between commas. A first line that names its columns may order them otherwise. Between the columns
/// stands ",", ";" or a tab, whichever gives most rows a trigger that can be typed. A field in quotes may
/// hold all of these, line breaks, and quotes twice. Throws DataError where the text is not UTF-8 or its
/// quotes do not end, and nothing can be told apart.
ForeignSnippets readCsvSnippets(std::string_view csv, const ImportTerms& terms);

}  // namespace tessarin
