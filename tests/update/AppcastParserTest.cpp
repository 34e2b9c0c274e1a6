#include "Matchers.h"
#include "base/DataError.h"
#include "update/AppcastParser.h"

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

}  // namespace
}  // namespace tessarin::testing
