#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "main/Request.h"

namespace tessarin {

class SnippetStore;

/// Import and export as the command line asks for them; the answers say what the settings say. What
/// was imported but could not be saved is a failure here: who runs a command wants it on the disk.
Answer importSnippets(SnippetStore& store, const std::filesystem::path& file);
Answer exportSnippets(const SnippetStore& store, const std::filesystem::path& file);

struct SearchOptions {
  std::size_t limit = 0;
  bool json = false;
};

/// What the popup would offer for the query, best first: a line each with trigger, replacement and name
/// between tabs (tabs, line feeds and "\" of their own written as \t, \n and \\), or a JSON array in the form
/// of an export. Throws DataError for what cannot be written as JSON.
std::string searchResults(const SnippetStore& store, const std::string& query, const SearchOptions& options);

}  // namespace tessarin
