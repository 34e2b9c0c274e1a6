#include "model/SnippetStore.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <unordered_set>
#include <utility>

#include "base/Files.h"
#include "base/Log.h"
#include "base/Translate.h"
#include "base/Uuid.h"
#include "model/LocalEmoji.h"
#include "model/SnippetCoding.h"
#include "model/SnippetFile.h"

namespace tessarin {
namespace {

constexpr const char* storeComponent = "SnippetStore";

std::vector<Snippet> toSnippets(const std::vector<EmojiData>& records, const std::string& idPrefix) {
  std::vector<Snippet> snippets;
  snippets.reserve(records.size());
  for (const EmojiData& record : records) snippets.push_back(record.toSnippet(idPrefix));
  return snippets;
}

void logLoaded(std::size_t count, const std::string& what) {
  log(storeComponent, "Loaded " + std::to_string(count) + " " + what);
}

}  // namespace

SnippetStore::SnippetStore(Folders folders, const WallClock& clock, LocalCalendar calendar)
    : folders_(std::move(folders)),
      usageTracker_(folders_.storage, clock, calendar),
      userFile_(
          {storeComponent, "user snippets", folders_.storage / "user-snippets.json", Durability::powerCut},
          clock, std::move(calendar)) {
  loadBuiltInEmojis();
  loadBuiltInKaomoji();
  loadUserSnippets();
  for (const auto& [trigger, count] : usageTracker_.usageCounts()) index_.setUsageCount(trigger, count);
  index_.prepare();
  usageSubscription_ = usageTracker_.onRecorded([this](const std::string& trigger) {
    indexUsage(trigger);
    saveSnippetsIfMissing();
  });
}

bool SnippetStore::loadBuiltIns(const char* source, std::vector<Snippet>& loaded) const {
  const std::string name = std::string(source) + "-data.json";
  try {
    const auto content = readFileIfPresent(folders_.resources / name);
    if (!content) {
      log(storeComponent, name + " not found in bundle");
      return false;
    }
    loaded = toSnippets(decodeEmojiData(*content), std::string(source) + "_");
    return true;
  } catch (const std::exception& error) {
    log(storeComponent, "Failed to load " + std::string(source) + " data: " + error.what());
    return false;
  }
}

void SnippetStore::loadBuiltInEmojis() {
  std::vector<Snippet> emoji;
  if (!loadBuiltIns("emoji", emoji)) return;
  for (const Snippet& snippet : emoji) index_.append(snippet);
  change([&] { builtInSnippets_ = std::move(emoji); });
  emojiCount_ = builtInSnippets_.size();
  logLoaded(emojiCount_, "built-in emojis");
}

void SnippetStore::loadBuiltInKaomoji() {
  std::vector<Snippet> kaomoji;
  if (!loadBuiltIns("kaomoji", kaomoji)) return;
  for (const Snippet& snippet : kaomoji) index_.append(snippet);
  const std::size_t count = kaomoji.size();
  change([&] { std::move(kaomoji.begin(), kaomoji.end(), std::back_inserter(builtInSnippets_)); });
  logLoaded(count, "built-in kaomoji");
}

void SnippetStore::loadUserSnippets() {
  std::vector<Snippet> snippets;
  if (!userFile_.load([&](std::string_view json) { snippets = decodeSnippets(json); })) return;
  for (const Snippet& snippet : snippets) index_.append(snippet);
  change([&] { userSnippets_ = std::move(snippets); });
  logLoaded(userSnippets_.size(), "user snippets");
}

void SnippetStore::learnLanguages(const std::vector<std::string>& languages) {
  const LocalEmoji local(folders_.resources / "emoji-words", languages, emojiCount_);
  if (local.isEmpty()) return;
  change([&] {
    for (std::size_t i = 0; i < emojiCount_; ++i) learn(i, local.nameOf(i), local.wordsOf(i));
  });
  index_.prepare();
}

// The words are kept in the index alone, which needs a tenth of the memory for them.
void SnippetStore::learn(std::size_t emoji, std::string name, std::vector<std::string> words) {
  Snippet searched = builtInSnippets_[emoji];
  std::ranges::move(words, std::back_inserter(searched.keywords));
  index_.replace(emoji, searched);
  if (!name.empty()) builtInSnippets_[emoji].name = std::move(name);
}

void SnippetStore::indexUsage(const std::string& trigger) {
  index_.setUsageCount(trigger, usageTracker_.usageCounts().at(trigger));
  index_.prepare();
}

std::vector<Snippet> SnippetStore::allSnippets() const {
  std::vector<Snippet> all;
  all.reserve(builtInSnippets_.size() + userSnippets_.size());
  all.insert(all.end(), builtInSnippets_.begin(), builtInSnippets_.end());
  all.insert(all.end(), userSnippets_.begin(), userSnippets_.end());
  return all;
}

const Snippet& SnippetStore::at(std::size_t position) const {
  return position < builtInSnippets_.size() ? builtInSnippets_[position]
                                            : userSnippets_[position - builtInSnippets_.size()];
}

std::vector<Snippet> SnippetStore::search(std::string_view query, std::size_t limit) const {
  std::vector<Snippet> found;
  for (const std::size_t position : index_.search(query, limit)) found.push_back(at(position));
  return found;
}

void SnippetStore::saveUserSnippets() {
  userFile_.save([this] { return encodeSnippets(userSnippets_, JsonStyle::compact); });
}

void SnippetStore::saveWhatIsMissing() {
  saveSnippetsIfMissing();
  usageTracker_.saveWhatIsMissing();
}

void SnippetStore::saveSnippetsIfMissing() {
  if (!userFile_.isMissing()) return;
  saveUserSnippets();
  if (!saveFailure()) log(storeComponent, "Saved the user snippets again, which were missing from the disk");
}

void SnippetStore::change(const std::function<void()>& apply) {
  willChange_.emit();
  apply();
  changed_.emit();
}

void SnippetStore::append(Snippet snippet) {
  change([&] {
    index_.append(snippet);
    userSnippets_.push_back(std::move(snippet));
  });
}

// A key should not have to wait for the layout.
void SnippetStore::finishChange() {
  index_.prepare();
  saveUserSnippets();
}

void SnippetStore::addSnippet(const Snippet& snippet) {
  append(snippet);
  finishChange();
}

void SnippetStore::updateSnippet(const Snippet& snippet) {
  const auto found = std::find_if(userSnippets_.begin(), userSnippets_.end(),
                                  [&](const Snippet& s) { return s.id == snippet.id; });
  if (found == userSnippets_.end()) return;
  const std::size_t index = static_cast<std::size_t>(found - userSnippets_.begin());
  change([&] {
    index_.replace(builtInSnippets_.size() + index, snippet);
    userSnippets_[index] = snippet;
  });
  finishChange();
}

void SnippetStore::deleteSnippet(const std::string& id) {
  // The id may belong to the very snippet that goes away.
  removeThose([removed = id](const Snippet& snippet) { return snippet.id == removed; });
  finishChange();
}

std::size_t SnippetStore::deleteTrigger(const std::string& trigger) {
  const std::size_t count =
      removeThose([removed = trigger](const Snippet& snippet) { return snippet.trigger == removed; });
  if (count > 0) finishChange();
  return count;
}

std::size_t SnippetStore::removeThose(const std::function<bool(const Snippet&)>& goes) {
  const std::size_t before = userSnippets_.size();
  change([&] {
    for (std::size_t i = userSnippets_.size(); i-- > 0;) {
      if (!goes(userSnippets_[i])) continue;
      index_.remove(builtInSnippets_.size() + i);
      userSnippets_.erase(userSnippets_.begin() + static_cast<std::ptrdiff_t>(i));
    }
  });
  return before - userSnippets_.size();
}

bool SnippetStore::hasTrigger(const std::string& trigger) const {
  const auto has = [&](const Snippet& snippet) { return snippet.trigger == trigger; };
  return std::ranges::any_of(builtInSnippets_, has) || std::ranges::any_of(userSnippets_, has);
}

std::size_t SnippetStore::addImported(std::vector<Snippet> imported) {
  std::unordered_set<std::string> taken;
  for (const auto* list : {&builtInSnippets_, &userSnippets_}) {
    for (const Snippet& snippet : *list) taken.insert(snippet.trigger);
  }
  std::size_t added = 0;
  for (Snippet& snippet : imported) {
    if (taken.contains(snippet.trigger)) continue;
    snippet.id = makeUuid();
    snippet.isBuiltIn = false;
    append(std::move(snippet));
    ++added;
  }
  // Those that could not be saved the last time are in memory already, and still to be saved.
  if (added > 0 || saveFailure()) finishChange();
  return added;
}

void SnippetStore::exportSnippets(const std::filesystem::path& file) const {
  if (const auto problem = exportProblem()) throw std::runtime_error(*problem);
  writeSnippetFile(file, userSnippets_);
}

std::optional<std::string> SnippetStore::exportProblem() const {
  if (!userFile_.loadFailure()) return std::nullopt;
  return filledIn(translate("SnippetStore", "your snippets could not be read when Tessarin started: %1"),
                  {*userFile_.loadFailure()});
}

Subscription SnippetStore::onWillChange(std::function<void()> callback) {
  return willChange_.subscribe(std::move(callback));
}

Subscription SnippetStore::onChange(std::function<void()> callback) {
  return changed_.subscribe(std::move(callback));
}

}  // namespace tessarin
