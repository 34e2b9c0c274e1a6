#include <algorithm>

#include "ImportCheck.h"
#include "importers/AutoKeyPhrases.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarin;
  static const ImportTerms terms = fuzz::importTerms();
  const std::string_view text = fuzz::asText(data, size);
  // The description, and behind a zero character the text.
  const std::size_t end = std::min(text.find('\0'), size);
  const auto imported = fuzz::unlessRefused([&] {
    return readAutoKeyPhrase("phrase", text.substr(0, end), text.substr(std::min(end + 1, size)), terms);
  });
  if (imported) fuzz::checkImport(*imported);
  return 0;
}
