#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

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

/// Times each query on its own, and reports the quantiles and the slowest query's median.
void measure(benchmark::State& state, const SearchIndex& index) {
  std::map<std::string, std::vector<double>> times;
  for (auto _ : state) {
    for (const std::string& query : queries()) {
      const auto begin = Clock::now();
      benchmark::DoNotOptimize(index.search(query, 8));
      times[query].push_back(std::chrono::duration<double, std::micro>(Clock::now() - begin).count());
    }
  }
  std::vector<double> all;
  std::pair<double, std::string> slowest;
  for (auto& [query, spent] : times) {
    std::sort(spent.begin(), spent.end());
    all.insert(all.end(), spent.begin(), spent.end());
    slowest = std::max(slowest, {quantile(spent, 0.5), query});
  }
  std::sort(all.begin(), all.end());
  state.counters["p50_us"] = quantile(all, 0.5);
  state.counters["p99_us"] = quantile(all, 0.99);
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
  measure(state, *index);
}
BENCHMARK(search)
    ->ArgNames({"snippets", "naming", "used_every"})
    ->ArgsProduct({{2200, 100'000, 1'000'000}, {numbered, words, alike}, {0, 2000, 3}})
    ->Unit(benchmark::kMillisecond)
    ->MinTime(0.5);

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
