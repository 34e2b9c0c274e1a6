#include <gtest/gtest.h>

#include "support/CaseName.h"
#include "update/UpdateJudge.h"

namespace tessarin {
namespace {

using testing::CaseName;

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

struct Judged {
  const char* name;
  AppcastItem item;
  bool isUpdate;
};

class JudgedRelease : public ::testing::TestWithParam<Judged> {};

TEST_P(JudgedRelease, IsOfferedOrNot) {
  EXPECT_EQ(bestUpdate({{GetParam().item}}, installed).has_value(), GetParam().isUpdate);
}

INSTANTIATE_TEST_SUITE_P(
    , JudgedRelease,
    ::testing::Values(Judged{"Newer", release("1.10"), true}, Judged{"Same", release("1.2.0"), false},
                      Judged{"Older", release("1.1"), false},
                      Judged{"PreReleaseOfOurs", release("1.2b3"), false},
                      Judged{"NoVersion", release(""), false},
                      Judged{"OurSystem", with(&AppcastItem::operatingSystem, "linux"), true},
                      Judged{"OtherSystem", with(&AppcastItem::operatingSystem, "macos"), false},
                      Judged{"AnotherSystem", with(&AppcastItem::operatingSystem, "windows"), false},
                      Judged{"Channel", with(&AppcastItem::channel, "beta"), false},
                      Judged{"OldEnoughKernel", with(&AppcastItem::minimumSystemVersion, "6.1"), true},
                      Judged{"NewerKernelNeeded", with(&AppcastItem::minimumSystemVersion, "6.2"), false},
                      Judged{"PlainHttp", with(&AppcastItem::downloadUrl, "http://example.org/2"), false},
                      Judged{"LocalFile", with(&AppcastItem::downloadUrl, "file:///2"), false},
                      Judged{"Option", with(&AppcastItem::downloadUrl, "--help"), false},
                      Judged{"NoHost", with(&AppcastItem::downloadUrl, "https:///2"), false},
                      Judged{"Password", with(&AppcastItem::downloadUrl, "https://a:b@example.org/2"), false},
                      Judged{"Blank", with(&AppcastItem::downloadUrl, "https://example.org/a b"), false},
                      Judged{"NoDownload", with(&AppcastItem::downloadUrl, ""), false}),
    CaseName());

TEST(UpdateJudge, OffersTheNewestThatFits) {
  AppcastItem newest = release("3.0");
  newest.channel = "beta";
  const auto best = bestUpdate({{release("1.9"), newest, release("2.10"), release("2.9")}}, installed);
  ASSERT_TRUE(best);
  EXPECT_EQ(best->version, "2.10");
  EXPECT_FALSE(bestUpdate({}, installed));
}

TEST(UpdateJudge, ComparesBuildsWhereVersionsAreEqual) {
  AppcastItem item = release("121");
  item.shortVersion = "1.2";
  EXPECT_TRUE(isNewer(item, installed));
  EXPECT_FALSE(isNewer(item, {"1.2", "121", ""}));
  EXPECT_FALSE(isNewer(item, {"1.2", "", ""})) << "our own build is not known";
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

TEST(UpdateJudge, MeetsEveryRequirementOnAnUnknownKernel) {
  EXPECT_TRUE(bestUpdate({{with(&AppcastItem::minimumSystemVersion, "99")}}, {"1.2", "", ""}));
}

TEST(UpdateJudge, KnowsTheKernelAsANumber) {
  EXPECT_FALSE(kernelVersion().empty());
  EXPECT_EQ(kernelVersion().find_first_not_of("0123456789."), std::string::npos);
}

}  // namespace
}  // namespace tessarin
