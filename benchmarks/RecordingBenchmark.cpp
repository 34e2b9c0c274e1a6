#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "base/Log.h"
#include "model/SnippetStore.h"
#include "model/UsageTracker.h"
#include "support/TemporaryFolder.h"

namespace tessarin {
namespace {

using testing::TemporaryFolder;

std::string triggerNumber(std::size_t n) {
  return "some_trigger_" + std::to_string(n);
}

/// A full event log over `triggers` different triggers.
void writeUsageFiles(const TemporaryFolder& folder, std::size_t triggers) {
  UsageEventsText events;
  UsageCounts counts;
  for (std::size_t i = 0; i < UsageTracker::maxEvents; ++i) {
    const std::string trigger = triggerNumber(i % triggers);
    events.append({trigger, 795173415.123456 + static_cast<double>(i) * 60.7});
    ++counts[trigger];
  }
  folder.write("usage-stats.json", events.json());
  folder.write("usage-counts.json", encodeUsageCounts(counts));
}

std::string emojiData(std::size_t entries) {
  std::string json = "[";
  for (std::size_t i = 0; i < entries; ++i) {
    if (i > 0) json += ',';
    json += R"({"name":"smiling face number )" + std::to_string(i) + R"(","trigger":")" + triggerNumber(i) +
            R"(","replacement":"😀","keywords":["happy","joy","laugh","face","smile"],"category":"Smileys"})";
  }
  return json + "]";
}

/// Recording one use; the argument is the number of different triggers on file.
void recordUsage(benchmark::State& state) {
  const TemporaryFolder folder;
  writeUsageFiles(folder, static_cast<std::size_t>(state.range(0)));
  const SystemWallClock clock;
  UsageTracker tracker(folder.path(), clock);
  std::vector<double> milliseconds;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    tracker.recordUsage("some_trigger_7");
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
    milliseconds.push_back(taken.count());
  }
  std::sort(milliseconds.begin(), milliseconds.end());
  state.counters["p99_ms"] = milliseconds[milliseconds.size() * 99 / 100];
  state.counters["max_ms"] = milliseconds.back();
}
BENCHMARK(recordUsage)->Arg(100)->Arg(2000)->Unit(benchmark::kMillisecond)->UseRealTime();

void loadUsageFiles(benchmark::State& state) {
  const TemporaryFolder folder;
  writeUsageFiles(folder, 500);
  const SystemWallClock clock;
  for (auto _ : state) benchmark::DoNotOptimize(UsageTracker(folder.path(), clock).usageEvents().size());
}
BENCHMARK(loadUsageFiles)->Unit(benchmark::kMillisecond);

/// Start-up of the store; the argument is the number of built-in entries.
void loadStore(benchmark::State& state) {
  const LogCapture quiet([](const std::string&) {});
  const TemporaryFolder folder;
  folder.write("emoji-data.json", emojiData(static_cast<std::size_t>(state.range(0))));
  const SystemWallClock clock;
  for (auto _ : state) {
    const SnippetStore store({folder.path(), folder.path()}, clock);
    benchmark::DoNotOptimize(store.builtInSnippets().size());
  }
}
BENCHMARK(loadStore)->Arg(2200)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessarin
