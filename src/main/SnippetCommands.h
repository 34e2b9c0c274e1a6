#pragma once

#include <string>
#include <vector>

#include "main/Request.h"
#include "model/Snippet.h"

namespace tessarin {

class SnippetStore;

/// Carries out an import, an export, an adding or a removing as the command line asks for it. What is changed
/// but could not be saved is a failure here: who runs a command wants it on the disk.
Answer carryOut(SnippetStore& store, const Request& request);

/// A line each with trigger, replacement and name between tabs (tabs, line feeds and "\" of their own written
/// as \t, \n and \\), or a JSON array in the form of an export. Throws DataError for what cannot be written
/// as JSON.
std::string listed(const std::vector<Snippet>& snippets, bool asJson);

}  // namespace tessarin
