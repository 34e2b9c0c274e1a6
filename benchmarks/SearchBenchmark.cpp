#include <benchmark/benchmark.h>
#include <jansson.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "base/Log.h"
#include "model/LocalEmoji.h"
#include "model/SearchIndex.h"
#include "model/Snippet.h"

namespace {

using tessarin::SearchIndex;
using tessarin::Snippet;
using Clock = std::chrono::steady_clock;

/// The ways in which many snippets can be named; each is hard on another part of the index.
enum Naming { numbered, words, alike };

const std::vector<std::string> vocabulary = {
    "smile",    "smiling", "face",    "heart",   "hand",    "address", "mail", "sign",
    "greeting", "regards", "meeting", "phone",   "project", "order",   "note", "date",
    "invoice",  "reply",   "thank",   "welcome", "team",    "quick"};

std::string word(std::mt19937& random) {
  return vocabulary[random() % vocabulary.size()];
}

std::string letters(std::mt19937& random, std::size_t count) {
  std::string text;
  for (; count > 0; --count) text += static_cast<char>('a' + random() % 26);
  return text;
}

Snippet snippet(std::size_t number, Naming naming, std::mt19937& random) {
  Snippet made;
  switch (naming) {
    case numbered:
      made.trigger = "snippet_" + std::to_string(number);
      made.keywords = {"keyword" + std::to_string(number * 7), word(random), letters(random, 6)};
      break;
    case words:
      made.trigger = word(random) + "_" + word(random) + std::to_string(number % 1000);
      made.keywords = {word(random), word(random) + letters(random, 3), letters(random, 8)};
      break;
    case alike:
      made.trigger = "xx" + word(random) + letters(random, 2);
      made.keywords = {word(random) + "s", "the" + word(random)};
      break;
  }
  return made;
}

struct Setting {
  std::size_t size;
  Naming naming;
  std::size_t usedEvery;  ///< every so manyth snippet was used; 0 is none
  bool operator<(const Setting& o) const {
    return std::tie(size, naming, usedEvery) < std::tie(o.size, o.naming, o.usedEvery);
  }
};

std::unique_ptr<SearchIndex> build(const Setting& setting) {
  auto index = std::make_unique<SearchIndex>();
  std::mt19937 random(1);
  for (std::size_t i = 0; i < setting.size; ++i) {
    const Snippet made = snippet(i, setting.naming, random);
    index->append(made);
    if (setting.usedEvery != 0 && i % setting.usedEvery == 0) {
      index->setUsageCount(made.trigger, static_cast<std::int64_t>(random() % 14));
    }
  }
  index->prepare();
  return index;
}

void appendShipped(const std::string& file, std::vector<Snippet>& snippets) {
  const std::string path = std::string(TESSARIN_SOURCE_DIR) + "/resources/" + file;
  json_t* root = json_load_file(path.c_str(), 0, nullptr);
  const auto text = [](json_t* value) { return std::string(json_string_value(value)); };
  for (std::size_t i = 0; i < json_array_size(root); ++i) {
    json_t* record = json_array_get(root, i);
    Snippet snippet;
    snippet.trigger = text(json_object_get(record, "trigger"));
    json_t* keywords = json_object_get(record, "keywords");
    for (std::size_t k = 0; k < json_array_size(keywords); ++k) {
      snippet.keywords.push_back(text(json_array_get(keywords, k)));
    }
    snippets.push_back(snippet);
  }
  json_decref(root);
}

const std::vector<Snippet>& shipped() {
  static const std::vector<Snippet> snippets = [] {
    std::vector<Snippet> loaded;
    appendShipped("emoji-data.json", loaded);
    appendShipped("kaomoji-data.json", loaded);
    return loaded;
  }();
  return snippets;
}

/// The same with what the emoji are searched by in a language.
std::vector<Snippet> shippedIn(const std::string& language) {
  const tessarin::LogCapture silence([](const std::string&) {});
  std::vector<Snippet> snippets;
  appendShipped("emoji-data.json", snippets);
  const std::string folder = std::string(TESSARIN_SOURCE_DIR) + "/resources/emoji-words";
  const tessarin::LocalEmoji local(folder, {language}, snippets.size());
  for (std::size_t i = 0; i < snippets.size(); ++i) {
    for (std::string& word : local.wordsOf(i)) snippets[i].keywords.push_back(std::move(word));
  }
  appendShipped("kaomoji-data.json", snippets);
  return snippets;
}

/// The text letter by letter, as it is typed.
void addTyped(const std::string& text, std::set<std::string>& typed) {
  for (std::size_t n = 1; n <= text.size(); ++n) {
    const bool isInLetter = n < text.size() && (text[n] & 0xC0) == 0x80;
    if (!isInLetter) typed.insert(text.substr(0, n));
  }
}

/// Every trigger and keyword.
std::vector<std::string> typedQueries(const std::vector<Snippet>& snippets) {
  std::set<std::string> typed;
  for (const Snippet& s : snippets) {
    addTyped(s.trigger, typed);
    for (const std::string& keyword : s.keywords) addTyped(keyword, typed);
  }
  return {typed.begin(), typed.end()};
}

const std::vector<std::string>& queries() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> made = {"_",          "-",      "+",       "\u00e9",     "__",
                                     "_1",         "t_1",    "snippet", "snippet_99", "snippet_999999",
                                     "nippe",      "ppet",   "99",      "1234",       "000",
                                     "keyw",       "eyword", "word12",  "zzzz",       "qqqq",
                                     "smil",       "smile",  "mile",    "smili",      "art",
                                     "eet",        "ing",    "s_s",     "e_h",        "face_h",
                                     "xxsmi",      "xsmile", "hesm",    "theh",       "SMILE",
                                     "\u00e9tude", "k7",     "the",     "d7",         "miling",
                                     "egard",      "nvoice", "eartz",   "hands"};
    for (char c = 'a'; c <= 'z'; ++c) made.emplace_back(1, c);
    for (char c = '0'; c <= '9'; ++c) made.emplace_back(1, c);
    std::mt19937 random(2);
    for (int i = 0; i < 60; ++i) made.push_back(letters(random, 2 + i % 3));
    for (const std::string& w : vocabulary) made.push_back(w.substr(0, 3));
    return made;
  }();
  return all;
}

double quantile(const std::vector<double>& sorted, double q) {
  return sorted[static_cast<std::size_t>(q * static_cast<double>(sorted.size() - 1))];
}

/// Times each query on its own and takes its median, so that what else the machine does counts little; then
/// reports the quantiles over all queries.
void measure(benchmark::State& state, const SearchIndex& index, const std::vector<std::string>& asked) {
  std::map<std::string, std::vector<double>> times;
  for (auto _ : state) {
    for (const std::string& query : asked) {
      const auto begin = Clock::now();
      benchmark::DoNotOptimize(index.search(query, 8));
      times[query].push_back(std::chrono::duration<double, std::micro>(Clock::now() - begin).count());
    }
  }
  std::vector<double> medians;
  std::pair<double, std::string> slowest;
  for (auto& [query, spent] : times) {
    std::sort(spent.begin(), spent.end());
    medians.push_back(quantile(spent, 0.5));
    slowest = std::max(slowest, {medians.back(), query});
  }
  std::sort(medians.begin(), medians.end());
  state.counters["p50_us"] = quantile(medians, 0.5);
  state.counters["p99_us"] = quantile(medians, 0.99);
  state.counters["worst_us"] = slowest.first;
  state.SetLabel("worst query: " + slowest.second);
}

void search(benchmark::State& state) {
  static std::map<Setting, std::unique_ptr<SearchIndex>> made;
  const Setting setting{static_cast<std::size_t>(state.range(0)), static_cast<Naming>(state.range(1)),
                        static_cast<std::size_t>(state.range(2))};
  if (!made.contains(setting)) made.clear();
  auto& index = made[setting];
  if (!index) index = build(setting);
  measure(state, *index, queries());
}
BENCHMARK(search)
    ->ArgNames({"snippets", "naming", "used_every"})
    ->ArgsProduct({{2200, 100'000, 1'000'000}, {numbered, words, alike}, {0, 2000, 3}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(7);

void searchAmong(benchmark::State& state, const std::vector<Snippet>& snippets) {
  SearchIndex index;
  for (const Snippet& s : snippets) index.append(s);
  index.prepare();
  for (std::size_t i = 0; i < static_cast<std::size_t>(state.range(0)); ++i) {
    index.setUsageCount(snippets[i * 7 % snippets.size()].trigger, static_cast<std::int64_t>(i % 14));
  }
  std::vector<std::string> asked = queries();
  const std::vector<std::string> typed = typedQueries(snippets);
  asked.insert(asked.end(), typed.begin(), typed.end());
  measure(state, index, asked);
}

void searchShipped(benchmark::State& state) {
  searchAmong(state, shipped());
}
BENCHMARK(searchShipped)
    ->ArgName("used")
    ->Arg(0)
    ->Arg(100)
    ->Arg(2000)
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

constexpr const char* languages[] = {"de", "hi", "ja", "ru", "vi"};

void searchShippedIn(benchmark::State& state) {
  searchAmong(state, shippedIn(languages[state.range(1)]));
}
BENCHMARK(searchShippedIn)
    ->ArgNames({"used", "language"})
    ->ArgsProduct({{0, 2000}, {0, 1, 2, 3, 4}})
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

void buildShipped(benchmark::State& state) {
  shipped();
  for (auto _ : state) {
    SearchIndex index;
    for (const Snippet& s : shipped()) index.append(s);
    index.prepare();
    benchmark::DoNotOptimize(index.size());
  }
}
BENCHMARK(buildShipped)->Unit(benchmark::kMillisecond);

void build(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(build({static_cast<std::size_t>(state.range(0)), words, 0}));
}
BENCHMARK(build)->ArgName("snippets")->Arg(2200)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void appendThenSearch(benchmark::State& state) {
  const auto index = build({static_cast<std::size_t>(state.range(0)), words, 0});
  std::mt19937 random(3);
  for (auto _ : state) {
    index->append(snippet(index->size(), words, random));
    benchmark::DoNotOptimize(index->search("smil", 8));
  }
}
BENCHMARK(appendThenSearch)->ArgName("snippets")->Arg(2200)->Arg(100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
