#pragma once

#include "support/FakeAccessibility.h"

namespace tessarin::testing {

/// A focused text field with a document behind it. Positions count characters.
class FakeTextField : public FakeElement {
 public:
  static std::shared_ptr<FakeTextField> create() {
    return std::shared_ptr<FakeTextField>(new FakeTextField());
  }

  /// Types characters at the caret.
  void type(const std::string& text);
  void setCaret(std::size_t position);
  void clear() { erase({0, static_cast<std::int64_t>(characters_.size())}); }
  std::string document() const;
  std::size_t caret() const { return caret_; }

  /// What a write of the text answers; the document changes accordingly.
  AccessibilityStatus writeResult = AccessibilityStatus::success;

 private:
  FakeTextField();

  std::optional<AttributeValue> textIn(const TextRange& range) const;
  void erase(const TextRange& range);
  AccessibilityStatus replaceSelection(const std::string& text);

  std::vector<std::string> characters_;
  std::size_t caret_ = 0;
  std::optional<TextRange> selection_;  ///< until it has been written
};

}  // namespace tessarin::testing
