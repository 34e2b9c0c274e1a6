#pragma once

#include <optional>
#include <string>
#include <utility>

#include "model/Snippet.h"

namespace tessarin::ui {

/// What the snippet editor is open for.
class SnippetSheetState {
 public:
  static SnippetSheetState forNew() { return SnippetSheetState(std::nullopt); }
  static SnippetSheetState forEditing(Snippet snippet) { return SnippetSheetState(std::move(snippet)); }

  /// The snippet that is changed; none while a new one is made.
  const std::optional<Snippet>& editingSnippet() const { return editing_; }
  /// Tells sheets apart: the snippet's id, or "new".
  std::string identity() const { return editing_ ? editing_->id : "new"; }

 private:
  explicit SnippetSheetState(std::optional<Snippet> editing) : editing_(std::move(editing)) {}

  std::optional<Snippet> editing_;
};

}  // namespace tessarin::ui
