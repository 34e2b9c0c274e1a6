#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <chrono>
#include <system_error>

#include "Matchers.h"
#include "base/AtomicFile.h"
#include "base/Files.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

namespace fs = std::filesystem;

TEST(AtomicFile, ReplacesTheContentAndLeavesNothingBeside) {
  for (const Durability durability : {Durability::processEnd, Durability::powerCut}) {
    const TemporaryFolder folder;
    replaceFile(folder / "a", "first, and the longer one", durability);
    replaceFile(folder / "a", std::string("second\0", 7), durability);
    EXPECT_EQ(folder.read("a"), std::string("second\0", 7));
    EXPECT_THAT(folder.names(), ElementsAre("a"));
  }
}

TEST(AtomicFile, KeepsPermissionsAndMakesWhatIsNewPrivate) {
  const TemporaryFolder folder;
  const auto modeOf = [&](const char* name) {
    return static_cast<unsigned>(fs::status(folder / name).permissions());
  };
  createFolders(folder / "a/b/");
  EXPECT_EQ(modeOf("a"), 0700U);
  EXPECT_EQ(modeOf("a/b"), 0700U);
  replaceFile(folder / "a/new", "", Durability::processEnd);
  EXPECT_EQ(modeOf("a/new"), 0600U);
  fs::permissions(folder / "a/new", fs::perms(0644));
  replaceFile(folder / "a/new", "again", Durability::processEnd);
  EXPECT_EQ(modeOf("a/new"), 0644U);
}

TEST(AtomicFile, WritesThroughLinks) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "elsewhere");
  folder.write("elsewhere/there", "old");
  for (const auto& [name, target] : {std::pair{"relative", "elsewhere/there"},
                                     {"chained", "relative"},
                                     {"dangling", "elsewhere/not-yet"}}) {
    fs::create_symlink(target, folder / name);
    replaceFile(folder / name, name, Durability::processEnd);
    EXPECT_TRUE(fs::is_symlink(folder / name)) << name;
    EXPECT_EQ(folder.read(name), name);
  }
  EXPECT_EQ(folder.read("elsewhere/there"), "chained");
  EXPECT_EQ(folder.read("elsewhere/not-yet"), "dangling");
}

TEST(AtomicFile, RefusesWhatIsNoFile) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "folder");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  fs::create_symlink("loop", folder / "loop");
  folder.write("file", "whole");
  for (const char* name : {"folder", "pipe", "loop", "file/inside", "missing/inside"}) {
    EXPECT_THROW(replaceFile(folder / name, "x", Durability::processEnd), std::system_error) << name;
  }
  EXPECT_THAT(folder.names(), ElementsAre("file", "folder", "loop", "pipe"));
  EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST(AtomicFile, AFailedWriteLeavesTheOldContentAndNothingElse) {
  const TemporaryFolder folder;
  folder.write("a", "old");
  // No file may grow beyond a thousand bytes: what a full disk does to a write.
  const auto previousHandler = ::signal(SIGXFSZ, SIG_IGN);
  rlimit previous{};
  ::getrlimit(RLIMIT_FSIZE, &previous);
  const rlimit limit{1000, previous.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_THROW(replaceFile(folder / "a", std::string(5000, 'n'), Durability::powerCut), std::system_error);
  ::setrlimit(RLIMIT_FSIZE, &previous);
  ::signal(SIGXFSZ, previousHandler);
  EXPECT_EQ(folder.read("a"), "old");
  EXPECT_THAT(folder.names(), ElementsAre("a"));
}

TEST(Files, TellsMissingFromUnreadable) {
  const TemporaryFolder folder;
  folder.write("file", "");
  fs::create_directory(folder / "folder");
  for (const char* name : {"missing", "file/inside"}) {
    EXPECT_EQ(readFileIfPresent(folder / name), std::nullopt) << name;
    EXPECT_THROW(readFile(folder / name), std::system_error) << name;
  }
  EXPECT_THROW(readFileIfPresent(folder / "folder"), std::system_error);
}

TEST(AtomicFile, WhatAKilledProcessLeftCanBeRemoved) {
  const TemporaryFolder folder;
  const auto now = fs::file_time_type::clock::now();
  const auto write = [&](const std::string& name, std::chrono::seconds age) {
    folder.write(name, "x");
    fs::last_write_time(folder / name, now - age);
  };
  write(".tessarin-aB3xYz", std::chrono::hours(1));
  write(".tessarin-fresh1", std::chrono::seconds(-1));
  for (const char* other : {".tessarin-toolong", ".tessarin-short", "tessarin-aB3xYz", "data.json"}) {
    write(other, std::chrono::hours(1));
  }
  fs::create_symlink("data.json", folder / ".tessarin-a_link");
  removeAbandonedReplacements(folder.path(), now);
  EXPECT_THAT(folder.names(), ElementsAre(".tessarin-a_link", ".tessarin-fresh1", ".tessarin-short",
                                          ".tessarin-toolong", "data.json", "tessarin-aB3xYz"));
  removeAbandonedReplacements(folder / "missing", now);
}

}  // namespace
}  // namespace tessarin::testing
