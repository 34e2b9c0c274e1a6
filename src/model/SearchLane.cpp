#include "model/SearchLane.h"

#include <algorithm>

#include "model/ByteSearch.h"
#include "model/FoldedEntry.h"

namespace tessarin {

void SearchLane::add(std::uint32_t id, int length, std::string_view text) {
  added_.push_back({id, length, text});
}

void SearchLane::build() {
  std::stable_sort(added_.begin(), added_.end(),
                   [](const Item& a, const Item& b) { return a.length < b.length; });
  std::size_t bytes = 1;
  for (const Item& item : added_) bytes += item.text.size() + 1;
  pool_.reserve(bytes);
  ids_.reserve(added_.size());
  starts_.reserve(added_.size() + 1);
  pool_.push_back(textEnd);
  for (const Item& item : added_) {
    if (runs_.empty() || runs_.back().length != item.length) {
      runs_.push_back({item.length, ids_.size(), ids_.size()});
    }
    ++runs_.back().end;
    ids_.push_back(item.id);
    starts_.push_back(static_cast<std::uint32_t>(pool_.size()));
    pool_.append(item.text).push_back(textEnd);
  }
  starts_.push_back(static_cast<std::uint32_t>(pool_.size()));
  added_ = {};
}

SearchLane::Hits SearchLane::wanted(const FoldedQuery& query, int bonus, const TopHits& top, const Run& run,
                                    std::size_t item) const {
  const auto wants = [&](int score) { return score >= 1 && top.wants(score + bonus, ids_[item]); };
  if (wants(tiers_.inside - run.length)) return Hits::anywhere;
  if (tiers_.segment != 0 && wants(tiers_.segment - run.length)) return Hits::atSegment;
  const bool isWhole = run.length == query.characters;
  return wants(isWhole ? tiers_.whole : tiers_.prefix - run.length) ? Hits::atStart : Hits::none;
}

void SearchLane::scanRun(const FoldedQuery& query, int bonus, const TopHits& top, const Run& run,
                         const std::function<void(std::uint32_t id)>& visit) const {
  std::size_t item = run.begin;
  while (item < run.end) {
    const Hits hits = wanted(query, bonus, top, run, item);
    if (hits == Hits::none) return;
    const Before before = hits == Hits::anywhere ? Before::anything : Before::eitherOf;
    const char other = hits == Hits::atSegment ? '_' : textEnd;
    const std::size_t at =
        findBytes(pool_, starts_[item], starts_[run.end], query.text, before, textEnd, other);
    if (at == std::string::npos) return;
    const auto after =
        std::upper_bound(starts_.begin() + static_cast<std::ptrdiff_t>(item), starts_.end(), at);
    item = static_cast<std::size_t>(after - starts_.begin());
    visit(ids_[item - 1]);
  }
}

void SearchLane::scan(const FoldedQuery& query, int bonus, const TopHits& top,
                      const std::function<void(std::uint32_t id)>& visit) const {
  for (const Run& run : runs_) {
    if (run.length >= query.characters) scanRun(query, bonus, top, run, visit);
  }
}

}  // namespace tessarin
