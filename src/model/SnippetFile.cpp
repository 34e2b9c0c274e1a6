#include "model/SnippetFile.h"

#include <system_error>

#include "base/DataError.h"
#include "base/Files.h"
#include "model/SnippetCoding.h"

namespace tessarin {

std::vector<Snippet> readSnippetFile(const std::filesystem::path& file) {
  // What has no size cannot be read either, and reading says why.
  std::error_code noSize;
  const std::uintmax_t size = std::filesystem::file_size(file, noSize);
  if (!noSize && size > largestSnippetFile) throw DataError("the file is larger than 64 MB");
  return decodeSnippets(readFile(file));
}

}  // namespace tessarin
