#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/Snippet.h"

namespace tessarin {

/// Answers a query with exactly the list that scoring every snippet one by one and sorting would give,
/// faster. A position counts through all snippets: the built-in ones in file order, then the user's in stored
/// order.
class SearchIndex {
 public:
  SearchIndex();
  ~SearchIndex();
  SearchIndex(const SearchIndex&) = delete;
  SearchIndex& operator=(const SearchIndex&) = delete;

  /// Appends at the end.
  void append(const Snippet& snippet);
  /// Takes another snippet at a position.
  void replace(std::size_t position, const Snippet& snippet);
  /// Removes one position; those behind it move up.
  void remove(std::size_t position);
  /// Takes out every snippet; the usage counts stay.
  void clear();
  std::size_t size() const;

  /// How often the trigger (exact text) was used, whether or not a snippet has it now. Counts below 1 are
  /// none.
  void setUsageCount(const std::string& trigger, std::int64_t count);

  /// Does now what the next search would have to do first when much has changed since the last: laying out
  /// all texts anew. Worth calling after every change.
  void prepare();

  /// Positions of the best `limit` snippets, best first.
  std::vector<std::size_t> search(std::string_view query, std::size_t limit) const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace tessarin
