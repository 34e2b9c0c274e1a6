#include "model/SearchLane.h"

#include <algorithm>

#include "model/ByteSearch.h"
#include "model/FoldedEntry.h"

namespace tessarin {

void SearchLane::add(std::uint32_t id, int length, std::string_view text, std::string_view covered) {
  added_.push_back({id, length, text, addedCovered_.size()});
  addedCovered_ += covered;
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
  layOutCovered();
  // Assigning nothing would keep the memory.
  std::vector<Item>().swap(added_);
  std::string().swap(addedCovered_);
}

void SearchLane::layOutCovered() {
  if (addedCovered_.empty()) return;
  covered_.assign(pool_.size(), '\0');
  for (std::size_t i = 0; i < added_.size(); ++i) {
    addedCovered_.copy(covered_.data() + starts_[i], added_[i].text.size(), added_[i].covered);
  }
}

SearchLane::Hits SearchLane::wanted(const FoldedQuery& query, int bonus, const TopHits& top, const Run& run,
                                    std::size_t item) const {
  const auto wants = [&](int score) { return score >= 1 && top.wants(score + bonus, ids_[item]); };
  if (wants(tiers_.inside - run.length)) return Hits::anywhere;
  if (tiers_.segment != 0 && wants(tiers_.segment - run.length)) return Hits::atSegment;
  const bool isWhole = run.length == query.characters;
  return wants(isWhole ? tiers_.whole : tiers_.prefix - run.length) ? Hits::atStart : Hits::none;
}

/// The next place where the query stands and is not decided by an earlier text.
std::size_t SearchLane::find(const FoldedQuery& query, Hits hits, std::size_t from, std::size_t end) const {
  const Before before = hits == Hits::anywhere ? Before::anything : Before::eitherOf;
  const char other = hits == Hits::atSegment ? '_' : textEnd;
  std::size_t at = findBytes(pool_, from, end, query.text, before, textEnd, other);
  while (at != std::string::npos && !covered_.empty() &&
         static_cast<unsigned char>(covered_[at]) >= query.text.size()) {
    at = findBytes(pool_, at + 1, end, query.text, before, textEnd, other);
  }
  return at;
}

/// The text that a place lies in, `from` or one after it: mostly one soon after.
std::size_t SearchLane::itemAt(std::size_t place, std::size_t from) const {
  std::size_t step = 1;
  while (from + step < starts_.size() && starts_[from + step] <= place) {
    from += step;
    step *= 2;
  }
  const auto begin = starts_.begin() + static_cast<std::ptrdiff_t>(from);
  const auto end = starts_.begin() + static_cast<std::ptrdiff_t>(std::min(from + step, starts_.size()));
  return static_cast<std::size_t>(std::upper_bound(begin, end, place) - starts_.begin()) - 1;
}

void SearchLane::scanRun(const FoldedQuery& query, int bonus, const TopHits& top, const Run& run,
                         const std::function<void(std::uint32_t id)>& visit) const {
  for (std::size_t item = run.begin; item < run.end; ++item) {
    const Hits hits = wanted(query, bonus, top, run, item);
    if (hits == Hits::none) return;
    const std::size_t at = find(query, hits, starts_[item], starts_[run.end]);
    if (at == std::string::npos) return;
    item = itemAt(at, item);
    visit(ids_[item]);
  }
}

void SearchLane::scan(const FoldedQuery& query, int bonus, const TopHits& top,
                      const std::function<void(std::uint32_t id)>& visit) const {
  for (const Run& run : runs_) {
    if (run.length >= query.characters) scanRun(query, bonus, top, run, visit);
  }
}

}  // namespace tessarin
