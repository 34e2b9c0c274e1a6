#include <gtest/gtest.h>

#include <random>
#include <string>

#include "base/DataError.h"
#include "support/CaseName.h"
#include "update/AppcastParser.h"

namespace tessarin {
namespace {

using testing::CaseName;

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

TEST(AppcastParser, TakesVersionsFromTheEnclosureWhereNoElementHasThem) {
  const std::string enclosure =
      "<enclosure url='https://example.org/a' s:version='7' s:shortVersionString='0.7' length='-5'/>";
  EXPECT_EQ(onlyItem("<item>" + enclosure + "</item>").version, "7");
  EXPECT_EQ(onlyItem("<item>" + enclosure + "</item>").shortVersion, "0.7");
  EXPECT_EQ(onlyItem("<item>" + enclosure + "</item>").downloadLength, 0);
  EXPECT_EQ(onlyItem("<item><s:version>8</s:version>" + enclosure + "</item>").version, "8");
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
  EXPECT_TRUE(parseAppcast("<rss><channel><other><item><title>x</title></item></other></channel></rss>")
                  .items.empty());
  EXPECT_TRUE(parseAppcast("<rss><item><title>x</title></item></rss>").items.empty());
}

TEST(AppcastParser, KeepsTheOrderOfTheFeed) {
  const Appcast appcast =
      parseAppcast(feed("<item><title>a</title></item><item/><item><title>b</title></item>"));
  ASSERT_EQ(appcast.items.size(), 3u);
  EXPECT_EQ(appcast.items[0].title + "," + appcast.items[1].title + "," + appcast.items[2].title, "a,,b");
}

struct Damaged {
  std::string name;
  std::string bytes;
  std::string complaint;
};

class DamagedFeed : public ::testing::TestWithParam<Damaged> {};

TEST_P(DamagedFeed, IsRefused) {
  try {
    parseAppcast(GetParam().bytes);
    FAIL() << "was taken";
  } catch (const DataError& error) {
    const std::string told = error.what();
    EXPECT_NE(told.find(GetParam().complaint), std::string::npos) << told;
    EXPECT_EQ(told.find("quoted"), std::string::npos) << told;
  }
}

const std::string wholeFeed = feed("<item><title>a</title></item>");

INSTANTIATE_TEST_SUITE_P(
    , DamagedFeed,
    ::testing::Values(
        Damaged{"Empty", "", "line"}, Damaged{"NoXml", "404 not found", "line 1"},
        Damaged{"CutOff", wholeFeed.substr(0, wholeFeed.size() - 8), "line 2"},
        Damaged{"WebPage", "<html><body>moved</body></html>", "no feed"},
        Damaged{"WrongNesting", "<rss><channel></rss></channel>", "line 1"},
        Damaged{"QuotedName", "<?xml version='1.0' encoding='\nquoted'?><rss/>", "line 2"},
        Damaged{"SecondRoot", "<rss/><rss/>", "line 1"},
        Damaged{"DocumentType", "<!DOCTYPE rss><rss/>", "document type"},
        Damaged{"ExternalDocumentType", "<!DOCTYPE rss SYSTEM 'file:///etc/passwd'><rss/>", "document type"},
        Damaged{"Entities", "<!DOCTYPE rss [<!ENTITY a 'b'><!ENTITY c '&a;&a;'>]><rss>&c;</rss>",
                "document type"},
        Damaged{"UnknownEntity", feed("<item><title>&nbsp;</title></item>"), "line 2"},
        Damaged{"UnboundPrefix", "<rss><channel><item><s:version>1</s:version></item></channel></rss>",
                "line 1"},
        Damaged{"Latin1Bytes", feed("<item><title>gr\xf6\xdf\x65r</title></item>"), "UTF-8"},
        Damaged{"CutOffCharacter", feed("<item><title>\xf0\x9f\x98</title></item>"), "UTF-8"},
        Damaged{"Surrogate", feed("<item><title>\xed\xa0\x80</title></item>"), "UTF-8"},
        Damaged{"DeclaredLatin1", "<?xml version='1.0' encoding='ISO-8859-1'?><rss/>", "UTF-8"},
        Damaged{"Utf16", std::string("\xff\xfe<\0r\0s\0s\0/\0>\0", 14), "UTF-8"},
        Damaged{"ZeroByte", feed(std::string("<item>\0</item>", 14)), "line 2"},
        Damaged{"ControlCharacter", feed("<item><title>&#1;</title></item>"), "line 2"},
        Damaged{"Depth", feed(repeated("<a>", 40) + repeated("</a>", 40)), "nested"},
        Damaged{"EndlessDepth", feed(repeated("<a>", 200000)), "nested"},
        Damaged{"Releases", feed(repeated("<item/>", 1001)), "too many releases"},
        Damaged{"Attributes", "<rss " + repeated("a=''", 90000) + "/>", "attributes"},
        Damaged{"Size", feed("<!--" + std::string(maximumAppcastSize, ' ') + "-->"), "too large"}),
    CaseName());

/// Feeds that are odd, but are feeds.
TEST(AppcastParser, TakesWhatIsAllowed) {
  EXPECT_TRUE(parseAppcast("\xef\xbb\xbf<?xml version='1.0'?><rss/>").items.empty());
  EXPECT_EQ(parseAppcast(feed(repeated("<item/>", 1000))).items.size(), 1000u);
  EXPECT_EQ(onlyItem("<item><title>a<b>b</b>c</title></item>").title, "abc");
  EXPECT_EQ(onlyItem("<item><title>&lt;&#x1F604;&gt;</title></item>").title, "<😄>");
}

TEST(AppcastParser, AnswersForAnyDamage) {
  std::mt19937 random(7);
  const std::string whole =
      feed("<item><title>a&amp;b</title><enclosure url='https://x/' s:version='1'/></item>");
  int taken = 0;
  for (int round = 0; round < 3000; ++round) {
    std::string bytes = whole;
    bytes[random() % bytes.size()] = "<>&\"'/=!\0\xff a"[random() % 12];
    bytes.resize(bytes.size() - (round % 4 == 0 ? random() % bytes.size() : 0));
    try {
      taken += static_cast<int>(parseAppcast(bytes).items.size());
    } catch (const DataError&) {
    }
  }
  EXPECT_GT(taken, 100);
}

}  // namespace
}  // namespace tessarin
