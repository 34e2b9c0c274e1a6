#include <gtest/gtest.h>

#include "Matchers.h"
#include "base/DataError.h"
#include "update/AppcastParser.h"
#include "update/UpdateJudge.h"
#include "update/VersionOrder.h"

namespace tessarin::testing {
namespace {

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

std::string feed(const std::string& items) {
  return "<?xml version='1.0' encoding='utf-8'?>\n<rss version='2.0' xmlns:s='urn:example'><channel>"
         "<title>Changes</title>" +
         items + "</channel></rss>";
}

AppcastItem onlyItem(const std::string& items) {
  const Appcast appcast = parseAppcast(feed(items));
  EXPECT_EQ(appcast.items.size(), 1u);
  return appcast.items.empty() ? AppcastItem() : appcast.items.front();
}

TEST(AppcastParser, ReadsEverythingThatAReleaseSays) {
  const AppcastItem item = onlyItem(R"(<item>
    <title>Version 1.2 &amp; more</title>
    <link> https://example.org/1.2 </link>
    <s:version>120</s:version>
    <s:shortVersionString>1.2</s:shortVersionString>
    <s:minimumSystemVersion>5.10</s:minimumSystemVersion>
    <s:channel>beta</s:channel>
    <s:criticalUpdate/>
    <s:releaseNotesLink>https://example.org/notes</s:releaseNotesLink>
    <pubDate>Sat, 14 Mar 2026 09:30:00 +0000</pubDate>
    <description><![CDATA[<p>New: <b>größer</b></p>]]></description>
    <enclosure url="https://example.org/1.2.tar" length="1234" type="application/x-tar" s:os="linux"/>
  </item>)");
  EXPECT_EQ(item, (AppcastItem{.title = "Version 1.2 & more",
                               .version = "120",
                               .shortVersion = "1.2",
                               .minimumSystemVersion = "5.10",
                               .channel = "beta",
                               .operatingSystem = "linux",
                               .notes = "<p>New: <b>größer</b></p>",
                               .link = "https://example.org/1.2",
                               .publicationDate = "Sat, 14 Mar 2026 09:30:00 +0000",
                               .downloadUrl = "https://example.org/1.2.tar",
                               .downloadType = "application/x-tar",
                               .downloadLength = 1234}));
}

TEST(AppcastParser, PassesOverWhatIsNotOfTheReleaseItself) {
  const AppcastItem item = onlyItem(R"(<item>
    <s:deltas><enclosure url="https://example.org/delta" s:version="9"/><s:version>9</s:version></s:deltas>
    <version>9</version><s:title>Other</s:title><s:link>https://example.org/other</s:link>
    <enclosure url="https://example.org/full"/><enclosure url="https://example.org/second"/>
  </item>)");
  AppcastItem expected;
  expected.downloadUrl = "https://example.org/full";
  EXPECT_EQ(item, expected);
}

TEST(AppcastParser, RefusesWhatIsDamaged) {
  const std::string whole = feed("<item><title>a</title></item>");
  const struct {
    const char* name;
    std::string bytes;
    const char* complaint;
  } cases[] = {
      {"empty", "", "line"},
      {"cut off", whole.substr(0, whole.size() - 8), "line 2"},
      {"web page", "<html><body>moved</body></html>", "no feed"},
      {"quoted name", "<?xml version='1.0' encoding='\nquoted'?><rss/>", "line 2"},
      {"external document type", "<!DOCTYPE rss SYSTEM 'file:///etc/passwd'><rss/>", "document type"},
      {"entities", "<!DOCTYPE rss [<!ENTITY a 'b'><!ENTITY c '&a;&a;'>]><rss>&c;</rss>", "document type"},
      {"Latin 1", feed("<item><title>gr\xf6\xdf\x65r</title></item>"), "UTF-8"},
      {"endless depth", feed(repeated("<a>", 200000)), "nested"},
      {"releases", feed(repeated("<item/>", 1001)), "too many releases"},
      {"attributes", "<rss " + repeated("a=''", 90000) + "/>", "attributes"},
      {"size", feed("<!--" + std::string(maximumAppcastSize, ' ') + "-->"), "too large"},
  };
  for (const auto& [name, bytes, complaint] : cases) {
    EXPECT_THAT([&] { parseAppcast(bytes); },
                ThrowsMessage<DataError>(AllOf(HasSubstr(complaint), Not(HasSubstr("quoted")))))
        << name;
  }
}

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
