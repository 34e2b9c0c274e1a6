#include "platform/freedesktop/JsonUserDefaults.h"
#include "support/Eventually.h"
#include "support/LogRecorder.h"
#include "support/ManualMainQueue.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

namespace fs = std::filesystem;
using freedesktop::JsonUserDefaults;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class JsonUserDefaultsTest : public ::testing::Test {
 protected:
  std::string content() const { return folder.read("preferences.json"); }
  void write(const std::string& text) const { folder.write("preferences.json", text); }

  TemporaryFolder folder;
  fs::path file = folder / "preferences.json";
};

TEST_F(JsonUserDefaultsTest, AnswersWhatWasSetLast) {
  JsonUserDefaults defaults(folder / "tessarin" / "preferences.json");
  EXPECT_EQ(defaults.boolean("flag"), std::nullopt);
  defaults.set("text", ";");
  defaults.set("flag", true);
  defaults.set("flag", false);
  defaults.set("list", std::vector<std::string>{"b", "", "😀"});
  EXPECT_EQ(defaults.string("text"), ";");
  EXPECT_EQ(defaults.boolean("flag"), false);
  EXPECT_EQ(defaults.stringArray("list"), (std::vector<std::string>{"b", "", "😀"}));
  EXPECT_EQ(defaults.boolean("text"), std::nullopt) << "a value of another type is absent";
  EXPECT_EQ(defaults.stringArray("flag"), std::nullopt);
  EXPECT_EQ(defaults.string("list"), std::nullopt);
  defaults.set("list", std::vector<std::string>{});
  EXPECT_EQ(defaults.stringArray("list"), std::vector<std::string>());
  defaults.set("text", "true");
  EXPECT_EQ(defaults.boolean("text"), std::nullopt);
  const std::string withZero("a\0b", 3);
  defaults.set("text", withZero);
  EXPECT_EQ(JsonUserDefaults(folder / "tessarin" / "preferences.json").string("text"), withZero);
}

TEST_F(JsonUserDefaultsTest, AMalformedFileIsLoggedOnceAndMovedAsideBeforeTheFirstWrite) {
  for (const char* malformed :
       {"", "[]", "{\"triggerCharacter\": \";\"", "{\"triggerCharacter\": \"\xff\"}"}) {
    SCOPED_TRACE(malformed);
    fs::remove(folder / "preferences.json.unreadable");
    write(malformed);
    LogRecorder log;
    JsonUserDefaults defaults(file);
    EXPECT_EQ(defaults.string("triggerCharacter"), std::nullopt);
    EXPECT_THAT(log.lines(), ElementsAre(StartsWith("[UserDefaults] Failed to load preferences: ")));
    EXPECT_EQ(content(), malformed);
    defaults.set("triggerCharacter", "/");
    defaults.set("triggerCharacter", ";");
    EXPECT_THAT(folder.names(), ElementsAre("preferences.json", "preferences.json.unreadable"));
    EXPECT_EQ(folder.read("preferences.json.unreadable"), malformed);
    EXPECT_EQ(JsonUserDefaults(file).string("triggerCharacter"), ";");
  }
}

TEST_F(JsonUserDefaultsTest, AnEarlierUnreadableFileIsNotOverwritten) {
  folder.write("preferences.json.unreadable", "first");
  write("second");
  LogRecorder log;
  JsonUserDefaults(file).set("flag", true);
  EXPECT_EQ(folder.read("preferences.json.unreadable"), "first");
  EXPECT_EQ(folder.read("preferences.json.unreadable-2"), "second");
}

TEST_F(JsonUserDefaultsTest, AValueThatJsonCannotHoldStaysInMemory) {
  LogRecorder log;
  JsonUserDefaults defaults(file);
  defaults.set("triggerCharacter", "\xff");
  defaults.set("flag", true);
  EXPECT_EQ(defaults.string("triggerCharacter"), "\xff");
  EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("in memory only: triggerCharacter")));
  EXPECT_EQ(content(), "{\n  \"flag\": true\n}\n");
}

TEST_F(JsonUserDefaultsTest, SettingOneKeyKeepsWhatAnotherProgramWroteMeanwhile) {
  JsonUserDefaults defaults(file);
  defaults.set("text", "ours");
  write(R"({"text": "theirs", "flag": true})");
  defaults.set("list", std::vector<std::string>{});
  EXPECT_EQ(defaults.string("text"), "theirs");
  EXPECT_EQ(JsonUserDefaults(file).boolean("flag"), true);
}

TEST_F(JsonUserDefaultsTest, ReloadsOnlyWhatHasChanged) {
  LogRecorder log;
  JsonUserDefaults defaults(file);
  defaults.set("text", "a");
  int changes = 0;
  const auto subscription = defaults.onChange([&] { ++changes; });
  write(R"({"text":   "a"})");
  defaults.reloadIfChanged();
  EXPECT_EQ(changes, 0) << "the same values in another layout";
  write(R"({"text": "other"})");
  defaults.reloadIfChanged();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(defaults.string("text"), "other");
  write(R"({"text": "OTHER"})");
  fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(24 * 365 * 20));
  defaults.reloadIfChanged();
  EXPECT_EQ(defaults.string("text"), "OTHER") << "as long, and older: the clock was set back";
  write(R"({"text": "hal)");
  defaults.reloadIfChanged();
  EXPECT_EQ(changes, 2) << "what cannot be read changes nothing";
  EXPECT_EQ(defaults.string("text"), "OTHER");
  fs::remove(file);
  defaults.reloadIfChanged();
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(defaults.string("text"), std::nullopt);
}

class WatchedPreferences : public JsonUserDefaultsTest {
 protected:
  bool waitFor(auto condition) {
    return eventually(condition, [this] { queue.runReady(); });
  }
  ManualMainQueue queue;
};

TEST_F(WatchedPreferences, FollowWritingReplacingAndRemoving) {
  JsonUserDefaults defaults(file);
  defaults.watch(queue);
  write(R"({"text": "written"})");
  EXPECT_TRUE(waitFor([&] { return defaults.string("text") == "written"; }));
  folder.write("new", R"({"text": "replaced"})");
  fs::rename(folder / "new", file);
  EXPECT_TRUE(waitFor([&] { return defaults.string("text") == "replaced"; }));
  fs::remove(file);
  EXPECT_TRUE(waitFor([&] { return !defaults.string("text"); }));
}

}  // namespace
}  // namespace tessarin::testing
