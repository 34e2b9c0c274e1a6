#include <sched.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <map>
#include <random>
#include <thread>

#include "base/Files.h"
#include "model/SnippetStore.h"
#include "platform/freedesktop/FolderLock.h"
#include "platform/freedesktop/JsonUserDefaults.h"
#include "support/LogRecorder.h"
#include "support/ManualWallClock.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

namespace fs = std::filesystem;
using freedesktop::JsonUserDefaults;
using ::testing::Contains;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::Not;

/// Everything that the program keeps on disk, below one folder.
struct Data {
  explicit Data(const fs::path& root)
      : store({.resources = root / "none", .storage = root / "data"}, clock, LocalCalendar("UTC")),
        defaults(root / "config/preferences.json") {}

  ManualWallClock clock;
  SnippetStore store;
  JsonUserDefaults defaults;
};

/// The files below a folder by name, and what they hold.
std::map<std::string, std::string> contents(const fs::path& root) {
  std::map<std::string, std::string> files;
  for (const auto& file : fs::recursive_directory_iterator(root)) {
    if (file.is_regular_file() && file.path().filename() != "ballast")
      files[file.path().lexically_relative(root)] = readFile(file.path());
  }
  return files;
}

Snippet snippet(const std::string& id, const std::string& replacement) {
  return {id, "name", "t" + id, replacement, {}, "Custom", false};
}

// What the disk does

/// A disk of 64 kB in a folder of its own, seen by this process and its children alone.
class SmallDisk {
 public:
  /// Throws, with the reason, where this user may not mount anything.
  SmallDisk() {
    // The mounts of everybody else stay as they are.
    require(::unshare(CLONE_NEWNS) == 0 && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0);
    require(::mount("tmpfs", folder_.path().c_str(), "tmpfs", 0, "size=64k") == 0);
  }
  ~SmallDisk() { ::umount2(folder_.path().c_str(), MNT_DETACH); }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  const TemporaryFolder& folder() const { return folder_; }
  void fill() const {
    std::ofstream ballast(folder_ / "ballast");
    while (ballast.put('x').flush()) continue;
  }
  void clear() const { std::filesystem::remove(folder_ / "ballast"); }
  void setReadOnly(bool isReadOnly) const {
    const int flags = isReadOnly ? MS_REMOUNT | MS_RDONLY : MS_REMOUNT;
    require(::mount(nullptr, folder_.path().c_str(), nullptr, static_cast<unsigned long>(flags), nullptr) ==
            0);
  }

 private:
  static void require(bool isDone) {
    if (!isDone) throw std::runtime_error(std::string("mounting: ") + std::strerror(errno));
  }

  TemporaryFolder folder_;
};

struct Fault {
  const char* name;
  bool failsSaves;
  void (*strike)(const SmallDisk& disk);
  void (*heal)(const SmallDisk& disk);
};

class StorageFault : public ::testing::TestWithParam<Fault> {
 protected:
  void SetUp() override {
    try {
      disk.emplace();
    } catch (const std::runtime_error& error) {
      GTEST_SKIP() << error.what();
    }
  }
  const fs::path& root() const { return disk->folder().path(); }
  static void saveSomething(Data& data) {
    data.store.addSnippet(snippet("1", "before"));
    data.store.usageTracker().recordUsage("a");
    data.defaults.set("kept", "before");
  }
  void expectOnDisk(const Data& data) const {
    const Data later(root());
    EXPECT_EQ(later.store.userSnippets(), data.store.userSnippets());
    EXPECT_EQ(later.store.usageTracker().usageCounts(), data.store.usageTracker().usageCounts());
    EXPECT_EQ(later.store.usageTracker().usageEvents(), data.store.usageTracker().usageEvents());
  }

  LogRecorder log;
  std::optional<SmallDisk> disk;
};

TEST_P(StorageFault, LosesNothingAndSaysWhatHappened) {
  Data data(root());
  saveSomething(data);
  const auto before = contents(root());
  log.clear();

  GetParam().strike(*disk);
  if (GetParam().failsSaves) {
    data.store.addSnippet(snippet("2", "after"));
    data.defaults.set("text", "after");
    data.store.usageTracker().recordUsage("b");
    EXPECT_EQ(contents(root()), before) << "old and whole, with nothing beside it";
    for (const char* what : {"user snippets", "usage counts", "usage events", "preferences"}) {
      EXPECT_THAT(log.lines(), Contains(HasSubstr("Failed to save " + std::string(what) + ": ")));
    }
    EXPECT_EQ(data.store.userSnippets().size(), 2U);
    EXPECT_EQ(data.defaults.string("text"), "after");
    EXPECT_TRUE(freedesktop::FolderLock::acquire(root() / "data"));
  }
  GetParam().heal(*disk);
  log.clear();
  data.store.usageTracker().recordUsage("c");
  expectOnDisk(data);
  EXPECT_THAT(log.lines(),
              Contains("[SnippetStore] Saved the user snippets again, which were missing from the disk"));
  EXPECT_THAT(log.lines(), Each(Not(HasSubstr("Failed"))));
}

TEST_P(StorageFault, IsMadeGoodAtTheEndAtLatest) {
  Data data(root());
  saveSomething(data);
  GetParam().strike(*disk);
  data.defaults.set("text", "after");
  if (GetParam().failsSaves) data.store.usageTracker().recordUsage("b");
  GetParam().heal(*disk);
  data.store.saveWhatIsMissing();
  expectOnDisk(data);
  data.defaults.saveWhatIsMissing();
  EXPECT_EQ(Data(root()).defaults.string("text"), "after");
}

INSTANTIATE_TEST_SUITE_P(
    Faults, StorageFault,
    ::testing::Values(
        Fault{"FullDisk", true, [](const SmallDisk& disk) { disk.fill(); },
              [](const SmallDisk& disk) { disk.clear(); }},
        Fault{"ReadOnlyDisk", true, [](const SmallDisk& disk) { disk.setReadOnly(true); },
              [](const SmallDisk& disk) { disk.setReadOnly(false); }},
        Fault{"FolderRemoved", false, [](const SmallDisk& disk) { fs::remove_all(disk.folder() / "data"); },
              [](const SmallDisk&) {}},
        Fault{"FolderMovedAway", false,
              [](const SmallDisk& disk) { fs::rename(disk.folder() / "data", disk.folder() / "elsewhere"); },
              [](const SmallDisk&) {}}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(StorageFault, AReadOnlyFolderIsHeldByOneInstanceOnly) {
  fs::create_directory(disk->folder() / "data");
  disk->setReadOnly(true);
  {
    const auto lock = freedesktop::FolderLock::acquire(disk->folder() / "data");
    EXPECT_THAT(log.lines(), ::testing::ElementsAre(HasSubstr("cannot be locked: Read-only file system")));
    EXPECT_FALSE(freedesktop::FolderLock::acquire(disk->folder() / "data"));
  }
  EXPECT_TRUE(freedesktop::FolderLock::acquire(disk->folder() / "data"));
}

// Killed while saving

/// How far the saves of each kind have come, told by a process that is killed.
struct Progress {
  std::atomic<int> snippets{0};
  std::atomic<int> counts{0};
  std::atomic<int> preferences{0};

  int saves() const { return snippets + 2 * counts + preferences; }
};

/// One number after the other into every file, going on where the disk says that the last one stopped. The
/// files change their sizes from save to save.
[[noreturn]] void saveForEver(const fs::path& root, Progress& progress) {
  removeAbandonedReplacements(root / "data", fs::file_time_type::max());
  removeAbandonedReplacements(root / "config", fs::file_time_type::max());
  Data data(root);
  for (;;) {
    const std::size_t size = static_cast<std::size_t>(progress.snippets % 5) * 20'000;
    data.store.updateSnippet(
        snippet("1", std::to_string(progress.snippets + 1) + " " + std::string(size, 'x')));
    ++progress.snippets;
    data.store.usageTracker().recordUsage("a");
    ++progress.counts;
    data.defaults.set("number", std::to_string(progress.preferences + 1));
    ++progress.preferences;
  }
}

struct KillSaves : ::testing::Test {
  void SetUp() override {
    void* shared =
        ::mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(shared, MAP_FAILED);
    progress = new (shared) Progress;
    Data data(folder.path());
    data.store.addSnippet(snippet("1", "0 "));
    data.store.usageTracker().recordUsage("b");
    data.defaults.set("number", "0");
  }
  void TearDown() override { ::munmap(progress, sizeof(Progress)); }

  /// Kills it so many saves and so much time after it has begun.
  void saveAndKill(int saves, std::chrono::microseconds after) const {
    const int enough = progress->saves() + saves;
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) saveForEver(folder.path(), *progress);
    while (progress->saves() < enough && ::waitpid(child, nullptr, WNOHANG) == 0) {
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    std::this_thread::sleep_for(after);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
  }
  /// The save that was told of last, or the one that it died in.
  static void expectLatest(int found, std::atomic<int>& told) {
    EXPECT_TRUE(found == told || found == told + 1) << found << " where " << told << " was told";
    told = found;
  }
  void checkFiles() {
    log.clear();
    const Data data(folder.path());
    EXPECT_THAT(log.lines(), Each(Not(HasSubstr("Failed"))));
    ASSERT_EQ(data.store.userSnippets().size(), 1U);
    expectLatest(std::stoi(data.store.userSnippets()[0].replacement), progress->snippets);
    const auto counts = data.store.usageTracker().usageCounts();
    const int count = counts.contains("a") ? static_cast<int>(counts.at("a")) : 0;
    const int events = static_cast<int>(data.store.usageTracker().usageEvents().size()) - 1 + missedEvents;
    EXPECT_TRUE(events == count || events == count - 1) << "they are saved one after the other";
    missedEvents += count - events;
    expectLatest(count, progress->counts);
    expectLatest(std::stoi(data.defaults.string("number").value_or("-1")), progress->preferences);
    const auto files = contents(folder.path());
    const auto abandoned = std::ranges::count_if(
        files, [](const auto& file) { return file.first.find(".tessarin-") != std::string::npos; });
    EXPECT_LE(abandoned, 1) << "they pile up";
    interrupted += abandoned > 0 ? 1 : 0;
    EXPECT_EQ(files.size(), 4U + static_cast<std::size_t>(abandoned));
  }

  TemporaryFolder folder;
  LogRecorder log;
  Progress* progress = nullptr;
  int missedEvents = 0;
  int interrupted = 0;
};

TEST_F(KillSaves, AtAnyMomentLeavesEveryFileWholeAndTheLatestOrTheOneBefore) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const auto atMost = [&random](int most) { return std::uniform_int_distribution(0, most)(random); };
  int kills = 0;
  while (progress->saves() < 2000 && !HasFailure()) {
    saveAndKill(atMost(12), std::chrono::microseconds(atMost(10'000)));
    checkFiles();
    ++kills;
  }
  std::printf("%d saves, %d kills, %d of them in the middle of a save\n", progress->saves(), kills,
              interrupted);
  EXPECT_GT(interrupted, 0) << "none was interrupted";
}

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class FolderLockTest : public ::testing::Test {
 protected:
  LogRecorder log;
  TemporaryFolder parent;
  std::filesystem::path folder = parent / "share/tessarin";
};

TEST_F(FolderLockTest, makesTheFolderAndHoldsItToItsEnd) {
  auto lock = freedesktop::FolderLock::acquire(folder);
  ASSERT_TRUE(lock);
  EXPECT_FALSE(freedesktop::FolderLock::acquire(folder)) << "taken already";
  EXPECT_TRUE(freedesktop::FolderLock::acquire(parent / "another"));
  EXPECT_EQ(std::filesystem::status(folder).permissions(), std::filesystem::perms::owner_all);
  EXPECT_THAT(log.lines(), IsEmpty());
  lock.reset();
  EXPECT_TRUE(freedesktop::FolderLock::acquire(folder)) << "the file that stays behind locks nothing";
}

TEST_F(FolderLockTest, followsNoLinkToAnotherFile) {
  std::filesystem::create_directories(folder);
  parent.write("precious", "");
  std::filesystem::create_symlink(parent / "precious", folder / "lock");
  const auto lock = freedesktop::FolderLock::acquire(folder);
  EXPECT_THAT(log.lines(), ElementsAre(StartsWith("[Tessarin] The data folder cannot be locked: ")));
}
}  // namespace
}  // namespace tessarin::testing
