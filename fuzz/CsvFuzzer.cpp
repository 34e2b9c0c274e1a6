#include "ImportCheck.h"
#include "importers/CsvSnippets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarin;
  static const ImportTerms terms = fuzz::importTerms();
  const std::string_view text = fuzz::asText(data, size);
  const auto imported = fuzz::unlessRefused([&] { return readCsvSnippets(text, terms); });
  if (imported) fuzz::checkImport(*imported);
  return 0;
}
