#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/FoldedQuery.h"
#include "model/TopHits.h"

namespace tessarin {

/// Triggers, or keywords, laid end to end with the short ones first, and those of equal length in the order
/// of their snippets. Since a shorter text scores higher in each tier, the first hits of a tier are its best:
/// a scan drops a tier when nothing further on can get among the best, and is over when all are dropped.
class SearchLane {
 public:
  /// The most that a text can score, tier by tier, before its length is taken off; `whole` as it stands. A
  /// tier that does not exist is 0.
  struct Tiers {
    int whole;
    int prefix;
    int segment;
    int inside;
  };

  explicit SearchLane(const Tiers& tiers) : tiers_(tiers) {}

  /// `text` must live until `build`. Snippets come in ascending order. `covered` is empty, or says for each
  /// byte of the text up to what length a query found there is none of this text's business (see
  /// `EarlierTexts`).
  void add(std::uint32_t id, int length, std::string_view text, std::string_view covered = {});
  void build();

  /// Calls `visit` with each snippet that could, by this lane, enter `top` with `bonus` on its score. `visit`
  /// is to offer the snippet at what it truly scores.
  void scan(const FoldedQuery& query, int bonus, const TopHits& top,
            const std::function<void(std::uint32_t id)>& visit) const;

 private:
  struct Item {
    std::uint32_t id;
    int length;
    std::string_view text;
    std::size_t covered;  ///< where its lengths begin in `addedCovered_`
  };
  struct Run {
    int length;  ///< in characters
    std::size_t begin;
    std::size_t end;
  };
  enum class Hits { none, atStart, atSegment, anywhere };

  void layOutCovered();
  Hits wanted(const FoldedQuery& query, int bonus, const TopHits& top, const Run& run,
              std::size_t item) const;
  std::size_t find(const FoldedQuery& query, Hits hits, std::size_t from, std::size_t end) const;
  std::size_t itemAt(std::size_t place, std::size_t from) const;
  void scanRun(const FoldedQuery& query, int bonus, const TopHits& top, const Run& run,
               const std::function<void(std::uint32_t id)>& visit) const;

  Tiers tiers_;
  std::vector<Item> added_;
  std::string addedCovered_;
  std::string pool_;                   ///< each text between two `textEnd`
  std::string covered_;                ///< for each byte of the pool; empty when nothing is covered
  std::vector<std::uint32_t> ids_;     ///< snippet of each text
  std::vector<std::uint32_t> starts_;  ///< where each text begins, and the end of the pool
  std::vector<Run> runs_;
};

}  // namespace tessarin
