#include <gtest/gtest.h>

#include "update/UpdateJudge.h"

namespace tessarin {
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

TEST(UpdateJudge, OffersWhatIsNewerAndFits) {
  const struct {
    AppcastItem item;
    bool isUpdate;
    const char* why;
  } cases[] = {
      {release("1.10"), true, "newer"},
      {release("1.2.0"), false, "the same"},
      {release("1.1"), false, "older"},
      {release("1.2b3"), false, "before ours"},
      {release(""), false, "no version"},
      {with(&AppcastItem::operatingSystem, "linux"), true, "our system"},
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
}

TEST(UpdateJudge, OffersTheNewestThatFits) {
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
}

}  // namespace
}  // namespace tessarin
