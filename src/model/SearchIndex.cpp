#include "model/SearchIndex.h"

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <utility>

#include "model/EarlierTexts.h"
#include "model/MatchScore.h"
#include "model/SearchLane.h"
#include "model/SnippetTexts.h"
#include "model/TopHits.h"

namespace tessarin {
namespace {

using Id = std::uint32_t;

constexpr std::int64_t mostBonusSteps = 10;
constexpr int bonusStep = 50;

/// Longer lists than any popup shows are answered by scoring everything.
constexpr std::size_t longestShortList = 64;

enum class State : std::uint8_t {
  waiting,  ///< changed since the shelves were laid out: scored one by one
  shelved,
  removed,
};

struct Record {
  SnippetTexts::Place place;
  std::uint8_t bonusSteps = 0;
  State state = State::waiting;
};

/// The texts of all snippets that get the same bonus.
struct Shelf {
  SearchLane triggers{{exactTriggerScore, triggerPrefixScore, segmentPrefixScore, insideTriggerScore}};
  SearchLane keywords{{exactKeywordScore, keywordPrefixScore, 0, insideKeywordScore}};
};

void shelve(Id id, const FoldedEntry& entry, Shelf& shelf, EarlierTexts& earlier) {
  shelf.triggers.add(id, entry.triggerLength, entry.trigger);
  earlier.clear();
  earlier.add(entry.trigger, entry.triggerLength);
  std::string covered;
  entry.forEachKeyword([&](std::string_view keyword, int length) {
    covered.clear();
    earlier.appendCovered(keyword, covered);
    earlier.add(keyword, length);
    shelf.keywords.add(id, length, keyword, covered);
  });
}

}  // namespace

/// A snippet's id grows with its position; ids of removed snippets stay unused until the next layout.
struct SearchIndex::Impl {
  Id idAt(std::size_t position) const;
  std::size_t positionOf(Id id) const;
  std::uint8_t bonusStepsOf(const std::string& trigger) const;
  Record recordOf(const Snippet& snippet);
  void await(Id id);
  void applyCount(const std::string& trigger, Id id);

  bool isLayoutDue() const { return waiting.size() + removed.size() > 64 + records.size() / 32; }
  void settle() {
    if (isLayoutDue()) layOut();
  }
  void layOut();
  void compact();
  void fillShelves();

  void consider(Id id, const FoldedQuery& query, TopHits& top) const;
  std::vector<TopHits::Hit> bestHits(const FoldedQuery& query, std::size_t limit) const;
  std::vector<TopHits::Hit> allHits(const FoldedQuery& query, std::size_t limit) const;

  SnippetTexts texts;
  std::vector<Record> records;  // by id
  std::vector<Id> removed;      // ascending
  std::vector<Id> waiting;
  std::vector<Shelf> shelves;                             // by bonus steps
  std::vector<std::pair<std::size_t, Id>> byTriggerHash;  // of what is shelved
  std::unordered_map<std::string, std::int64_t> counts;
};

Id SearchIndex::Impl::idAt(std::size_t position) const {
  auto id = static_cast<Id>(position);
  for (const Id gone : removed) {
    if (gone > id) break;
    ++id;
  }
  return id;
}

std::size_t SearchIndex::Impl::positionOf(Id id) const {
  return id -
         static_cast<std::size_t>(std::lower_bound(removed.begin(), removed.end(), id) - removed.begin());
}

std::uint8_t SearchIndex::Impl::bonusStepsOf(const std::string& trigger) const {
  const auto found = counts.find(trigger);
  return found == counts.end() ? 0 : static_cast<std::uint8_t>(std::min(found->second, mostBonusSteps));
}

Record SearchIndex::Impl::recordOf(const Snippet& snippet) {
  return {texts.add(snippet), bonusStepsOf(snippet.trigger), State::waiting};
}

void SearchIndex::Impl::await(Id id) {
  if (records[id].state == State::shelved) waiting.push_back(id);
  records[id].state = State::waiting;
}

void SearchIndex::Impl::applyCount(const std::string& trigger, Id id) {
  Record& record = records[id];
  const std::uint8_t steps = bonusStepsOf(trigger);
  if (record.state == State::removed || record.bonusSteps == steps) return;
  if (texts.storedTrigger(record.place) != trigger) return;
  record.bonusSteps = steps;
  await(id);
}

void SearchIndex::Impl::layOut() {
  compact();
  fillShelves();
  std::vector<Id>().swap(waiting);
}

/// Leaves behind the texts of what was removed or replaced.
void SearchIndex::Impl::compact() {
  SnippetTexts kept;
  std::vector<Record> live;
  live.reserve(records.size());
  for (Record& record : records) {
    if (record.state == State::removed) continue;
    record.place = kept.add(texts, record.place);
    record.bonusSteps = bonusStepsOf(std::string(kept.storedTrigger(record.place)));
    record.state = State::shelved;
    live.push_back(record);
  }
  texts = std::move(kept);
  records = std::move(live);
  removed = {};
}

void SearchIndex::Impl::fillShelves() {
  shelves.clear();
  shelves.resize(mostBonusSteps + 1);
  byTriggerHash.clear();
  byTriggerHash.reserve(records.size());
  EarlierTexts earlier;
  for (Id id = 0; id < records.size(); ++id) {
    const Record& record = records[id];
    shelve(id, texts.entry(record.place), shelves[record.bonusSteps], earlier);
    byTriggerHash.emplace_back(std::hash<std::string_view>{}(texts.storedTrigger(record.place)), id);
  }
  std::sort(byTriggerHash.begin(), byTriggerHash.end());
  for (Shelf& shelf : shelves) {
    shelf.triggers.build();
    shelf.keywords.build();
  }
}

void SearchIndex::Impl::consider(Id id, const FoldedQuery& query, TopHits& top) const {
  const Record& record = records[id];
  const int base = texts.entry(record.place).score(query);
  if (base >= 1) top.offer(base + record.bonusSteps * bonusStep, id);
}

std::vector<TopHits::Hit> SearchIndex::Impl::bestHits(const FoldedQuery& query, std::size_t limit) const {
  TopHits top(limit);
  for (const Id id : waiting) {
    if (records[id].state == State::waiting) consider(id, query, top);
  }
  const auto visit = [&](Id id) {
    if (records[id].state == State::shelved) consider(id, query, top);
  };
  // The largest bonus first: the sooner the list holds high totals, the more of the rest can be passed over.
  for (std::size_t steps = shelves.size(); steps-- > 0;) {
    shelves[steps].triggers.scan(query, static_cast<int>(steps) * bonusStep, top, visit);
  }
  for (std::size_t steps = shelves.size(); steps-- > 0;) {
    shelves[steps].keywords.scan(query, static_cast<int>(steps) * bonusStep, top, visit);
  }
  return top.hits();
}

std::vector<TopHits::Hit> SearchIndex::Impl::allHits(const FoldedQuery& query, std::size_t limit) const {
  std::vector<TopHits::Hit> hits;
  for (Id id = 0; id < records.size(); ++id) {
    const Record& record = records[id];
    if (record.state == State::removed) continue;
    const int base = texts.entry(record.place).score(query);
    if (base >= 1) hits.push_back({base + record.bonusSteps * bonusStep, id});
  }
  std::stable_sort(hits.begin(), hits.end(),
                   [](const TopHits::Hit& a, const TopHits::Hit& b) { return a.total > b.total; });
  hits.resize(std::min(limit, hits.size()));
  return hits;
}

SearchIndex::SearchIndex() : impl_(std::make_unique<Impl>()) {}
SearchIndex::~SearchIndex() = default;

void SearchIndex::append(const Snippet& snippet) {
  const auto id = static_cast<Id>(impl_->records.size());
  impl_->records.push_back(impl_->recordOf(snippet));
  impl_->waiting.push_back(id);
}

void SearchIndex::replace(std::size_t position, const Snippet& snippet) {
  const Id id = impl_->idAt(position);
  impl_->await(id);
  impl_->records[id] = impl_->recordOf(snippet);
}

void SearchIndex::remove(std::size_t position) {
  const Id id = impl_->idAt(position);
  impl_->records[id].state = State::removed;
  impl_->removed.insert(std::upper_bound(impl_->removed.begin(), impl_->removed.end(), id), id);
}

void SearchIndex::clear() {
  auto counts = std::move(impl_->counts);
  impl_ = std::make_unique<Impl>();
  impl_->counts = std::move(counts);
}

std::size_t SearchIndex::size() const {
  return impl_->records.size() - impl_->removed.size();
}

void SearchIndex::setUsageCount(const std::string& trigger, std::int64_t count) {
  if (count < 1) {
    impl_->counts.erase(trigger);
  } else {
    impl_->counts[trigger] = count;
  }
  if (impl_->isLayoutDue()) return;  // which takes all counts in
  for (const Id id : impl_->waiting) impl_->applyCount(trigger, id);
  const std::pair<std::size_t, Id> first(std::hash<std::string_view>{}(trigger), 0);
  auto at = std::lower_bound(impl_->byTriggerHash.begin(), impl_->byTriggerHash.end(), first);
  for (; at != impl_->byTriggerHash.end() && at->first == first.first; ++at) {
    impl_->applyCount(trigger, at->second);
  }
}

void SearchIndex::prepare() {
  impl_->settle();
}

std::vector<std::size_t> SearchIndex::search(std::string_view query, std::size_t limit) const {
  if (query.empty() || limit == 0) return {};
  impl_->settle();
  const FoldedQuery folded(query);
  std::vector<std::size_t> positions;
  for (const TopHits::Hit& hit :
       limit > longestShortList ? impl_->allHits(folded, limit) : impl_->bestHits(folded, limit)) {
    positions.push_back(impl_->positionOf(hit.id));
  }
  return positions;
}

}  // namespace tessarin
