#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tessarin {
class Pasteboard;
}

namespace tessarin::ui {

/// The pasteboard's text for a preview that is made anew at every key: read once a change, since a program
/// that does not answer costs a wait each time, and cut to more than a preview shows.
class PreviewClipboard {
 public:
  /// The pasteboard must outlive this.
  explicit PreviewClipboard(Pasteboard& pasteboard) : pasteboard_(pasteboard) {}

  std::string text();

 private:
  Pasteboard& pasteboard_;
  std::optional<std::int64_t> readAt_;
  std::string text_;
};

}  // namespace tessarin::ui
