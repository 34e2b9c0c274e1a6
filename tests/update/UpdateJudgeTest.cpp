#include <gtest/gtest.h>

#include "update/UpdateJudge.h"
#include "update/VersionOrder.h"

namespace tessarin::testing {
namespace {

const Installation installed{"1.2", "120", "6.1.0"};

AppcastItem release(std::string version) {
  AppcastItem item;
  item.downloadUrl = "https://example.org/" + version;
  item.version = std::move(version);
  return item;
}

AppcastItem with(std::string AppcastItem::*field, std::string value) {
  AppcastItem item = release("2.0");
  item.*field = std::move(value);
  return item;
}

TEST(UpdateJudge, OffersTheNewestThatIsNewerAndFits) {
  const struct {
    AppcastItem item;
    bool isUpdate;
    const char* why;
  } cases[] = {
      {release("1.10"), true, "newer"},
      {release("1.1"), false, "older"},
      {release("1.2b3"), false, "before ours"},
      {release(""), false, "no version"},
      {with(&AppcastItem::operatingSystem, "windows"), false, "another system"},
      {with(&AppcastItem::channel, "beta"), false, "another channel"},
      {with(&AppcastItem::minimumSystemVersion, "6.2"), false, "needs a newer kernel"},
      {with(&AppcastItem::downloadUrl, "http://example.org/2"), false, "plain HTTP"},
      {with(&AppcastItem::downloadUrl, "--help"), false, "an option"},
      {with(&AppcastItem::downloadUrl, "https://a:b@example.org/2"), false, "with a password"},
      {with(&AppcastItem::downloadUrl, ""), false, "no download"},
  };
  for (const auto& [item, isUpdate, why] : cases) {
    EXPECT_EQ(bestUpdate({{item}}, installed).has_value(), isUpdate) << why;
  }
  AppcastItem newest = release("3.0");
  newest.channel = "beta";
  const auto best = bestUpdate({{release("1.9"), newest, release("2.10"), release("2.9")}}, installed);
  ASSERT_TRUE(best);
  EXPECT_EQ(best->version, "2.10");
}

TEST(UpdateJudge, ComparesBuildsWhereVersionsAreEqual) {
  AppcastItem item = release("121");
  item.shortVersion = "1.2";
  EXPECT_TRUE(isNewer(item, installed));
  EXPECT_FALSE(isNewer(item, {"1.2", "121", ""}));
  item.shortVersion = "1.1";
  EXPECT_FALSE(isNewer(item, installed));
}

TEST(UpdateJudge, LeadsToThePageWhereThereIsNoSafeDownload) {
  AppcastItem item = release("2.0");
  item.link = "https://example.org/page";
  EXPECT_EQ(downloadAddress(item), "https://example.org/2.0");
  item.downloadUrl = "http://example.org/2.0";
  EXPECT_EQ(downloadAddress(item), "https://example.org/page");
  item.link = "javascript:alert(1)";
  EXPECT_EQ(downloadAddress(item), std::nullopt);
  item.link = "HTTPS://Example.org/für%20alle";
  EXPECT_EQ(downloadAddress(item), "https://example.org/f%C3%BCr%20alle") << "as handlers are looked up";
}

const std::string huge(5000, '9');

/// Each line's versions are equal to one another and older than all of the lines below it.
const std::vector<std::vector<std::string>> ladder = {
    {"", "0", "0.0", "...", "v0"},
    {"1.0a", "1a", "1.0-A"},
    {"1.0b2"},
    {"1.0b10"},
    {"1-rc", "1.0.0rc", "1.0 (RC)"},
    {"1", "1.0", "01.000", "v1.0", "1.0+build7"},
    {"1.2b3", "1.2.b.3", "1.2-b3", "1.2.0b3"},
    {"1.2.1"},
    {"1.10", "1.0010"},
    {"18446744073709551616"},
    {huge, "000" + huge},
    {huge + "0"},
};

TEST(VersionOrder, IsTheSameWhicheverWayItIsAsked) {
  for (std::size_t low = 0; low < ladder.size(); ++low) {
    for (std::size_t high = low; high < ladder.size(); ++high) {
      for (const std::string& a : ladder[low]) {
        for (const std::string& b : ladder[high]) {
          EXPECT_EQ(compareVersions(a, b), low <=> high) << a << " and " << b;
          EXPECT_EQ(compareVersions(b, a), high <=> low) << b << " and " << a;
        }
      }
    }
  }
}

}  // namespace
}  // namespace tessarin::testing
