#include "model/SnippetFile.h"

#include <system_error>

#include "base/AtomicFile.h"
#include "base/DataError.h"
#include "base/Files.h"
#include "model/SnippetCoding.h"

namespace tessarin {
namespace {

void requireBearable(std::uintmax_t size) {
  if (size > largestSnippetFile) throw DataError("the file is larger than 512 MB");
}

}  // namespace

std::vector<Snippet> readSnippetFile(const std::filesystem::path& file) {
  // What has no size cannot be read either, and reading says why.
  std::error_code noSize;
  const std::uintmax_t size = std::filesystem::file_size(file, noSize);
  if (!noSize) requireBearable(size);
  return decodeSnippets(readFile(file));
}

void writeSnippetFile(const std::filesystem::path& file, const std::vector<Snippet>& snippets) {
  const std::string json = encodeSnippets(snippets, JsonStyle::pretty);
  requireBearable(json.size());
  replaceFile(file, json, Durability::powerCut);
}

}  // namespace tessarin
