#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "importers/ForeignSnippets.h"

namespace tessarin {

/// A text with our template variables that gives what the strftime format gives at any time: "{{date}} um
/// {{time}}" for "%d.%m.%y um %H:%M" in Germany. None where nothing of ours is the same to the letter.
std::optional<std::string> templateForDateFormat(std::string_view format, const ImportTerms& terms);

/// A text put together from what another program writes as it stands and from variables of ours. Throws
/// DataError where it grows beyond `largestImport`.
class ForeignText {
 public:
  void addLiteral(std::string_view text);
  void addVariables(std::string_view variables);

  const std::string& text() const { return text_; }
  /// Whether something that stood there as it is would be filled in here.
  bool wouldBeFilledIn() const;

 private:
  std::string text_;
  std::size_t variables_ = 0;
};

}  // namespace tessarin
