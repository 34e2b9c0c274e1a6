#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTcpServer>
#include <optional>

#include "support/Eventually.h"
#include "support/LogRecorder.h"
#include "update/AppcastFetcher.h"
#include "update/HttpsServer.h"

namespace tessarin {
namespace {

using ::testing::HasSubstr;
using testing::HttpsServer;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using testing::TestCertificate;

void ensureEventLoop() {
  static int count = 1;
  static char name[] = "update_tests";
  static char* arguments[] = {name, nullptr};
  static const QCoreApplication application(count, arguments);
}

const TestCertificate& certificate() {
  static const TestCertificate made;
  return made;
}

class Fetching : public ::testing::Test {
 protected:
  Fetching() {
    ensureEventLoop();
    server.emplace(certificate());
    tls = certificate().trusting();
  }

  template <class Condition>
  static bool eventuallyInLoop(Condition condition) {
    return testing::eventually(condition, [] { QCoreApplication::processEvents(); });
  }
  void start(const std::string& address) {
    AppcastFetcher fetcher(limits, tls);
    token = fetcher.fetch(address, [this](const AppcastSource::Result& answer) {
      result = answer;
      token.reset();
    });
  }
  AppcastSource::Result fetch(const std::string& address) {
    result.reset();
    start(address);
    EXPECT_FALSE(result) << "answered at once";
    EXPECT_TRUE(eventuallyInLoop([this] { return result.has_value(); }));
    return result.value_or("no answer");
  }
  AppcastSource::Result fetchPath(const std::string& path) { return fetch(server->address(path)); }
  /// "/0" leads to "/1" and so on; the last one is served.
  void redirectTimes(int count) {
    for (int i = 0; i < count; ++i) {
      server->redirect("/" + std::to_string(i), server->address("/" + std::to_string(i + 1)));
    }
    server->serve("/" + std::to_string(count), "feed");
  }

  std::optional<HttpsServer> server;
  AppcastFetcher::Limits limits;
  std::optional<QSslConfiguration> tls;
  std::optional<AppcastSource::Result> result;
  Subscription token;
  testing::LogRecorder log;
};

TEST_F(Fetching, BringsTheFeed) {
  const std::string content = "<rss>größer</rss>" + std::string(1, '\0');
  server->serve("/feed.xml?a=b", content);
  EXPECT_EQ(fetchPath("/feed.xml?a=b"), AppcastSource::Result(content));
  ASSERT_THAT(server->requests, SizeIs(1));
  EXPECT_THAT(server->requests[0], HasSubstr("User-Agent: Tessarin\r\n"));
  EXPECT_THAT(server->requests[0], Not(HasSubstr("gzip")));
  EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(Fetching, FollowsFiveRedirects) {
  redirectTimes(5);
  EXPECT_EQ(fetchPath("/0"), AppcastSource::Result("feed"));
}

TEST_F(Fetching, DoesNotFollowASixth) {
  redirectTimes(6);
  EXPECT_EQ(fetchPath("/0"), AppcastSource::Result(UpdateFailure::tooManyRedirects));
  EXPECT_THAT(server->requests, SizeIs(6));
}

TEST_F(Fetching, EndsInARedirectLoop) {
  server->redirect("/", "/");
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::tooManyRedirects));
}

TEST_F(Fetching, IsNotLedAwayFromHttps) {
  QTcpServer plain;
  ASSERT_TRUE(plain.listen(QHostAddress::LocalHost));
  const std::string plainAddress = "127.0.0.1:" + std::to_string(plain.serverPort()) + "/";
  for (const std::string& target :
       {"http://" + plainAddress, std::string("file:///etc/hostname"), "ftp://" + plainAddress}) {
    server->redirect("/", target);
    EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::notSecure)) << target;
  }
  EXPECT_FALSE(plain.hasPendingConnections());
}

TEST_F(Fetching, AsksHttpsAddressesOnly) {
  QTcpServer plain;
  ASSERT_TRUE(plain.listen(QHostAddress::LocalHost));
  for (const std::string& address :
       {"http://127.0.0.1:" + std::to_string(plain.serverPort()) + "/feed",
        std::string("file:///etc/hostname"), std::string("feed.xml"), std::string(), std::string("https://"),
        std::string("https://exa mple/")}) {
    EXPECT_EQ(fetch(address), AppcastSource::Result(UpdateFailure::notSecure)) << address;
  }
  EXPECT_FALSE(plain.hasPendingConnections());
}

TEST_F(Fetching, BelievesNoStrangersCertificate) {
  server->serve("/", "feed");
  tls.reset();
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::notTrusted));
  EXPECT_THAT(server->requests, IsEmpty());
  EXPECT_THAT(log.lines, SizeIs(1));
}

TEST_F(Fetching, BelievesNoCertificateOfAnotherHost) {
  server->serve("/", "feed");
  std::string address = server->address("/");
  address.replace(address.find("127.0.0.1"), 9, "localhost");
  EXPECT_EQ(fetch(address), AppcastSource::Result(UpdateFailure::notTrusted));
  EXPECT_THAT(server->requests, IsEmpty());
}

TEST_F(Fetching, VerifiesWhateverTheSettingsSay) {
  tls->setCaCertificates({});
  tls->setPeerVerifyMode(QSslSocket::VerifyNone);
  server->serve("/", "feed");
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::notTrusted));
}

TEST_F(Fetching, TakesNothingButAFeed) {
  for (const char* status : {"404 Not Found", "403 Forbidden", "401 Unauthorized", "500 Broken", "503 Busy",
                             "204 Empty", "206 Part"}) {
    server->answer("/",
                   std::string("HTTP/1.1 ") + status + "\r\nConnection: close\r\nContent-Length: 0\r\n\r\n");
    EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::serverError)) << status;
  }
}

TEST_F(Fetching, TakesNoFeedThatWasCutOff) {
  server->answer("/", "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: 100\r\n\r\n<rss/>");
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::noConnection));
}

TEST_F(Fetching, StopsAtTheSizeLimit) {
  limits.size = 1000;
  server->serve("/fits", std::string(1000, 'x'));
  EXPECT_EQ(fetchPath("/fits"), AppcastSource::Result(std::string(1000, 'x')));
  server->serve("/exceeds", std::string(1001, 'x'));
  EXPECT_EQ(fetchPath("/exceeds"), AppcastSource::Result(UpdateFailure::tooLarge));
}

TEST_F(Fetching, StopsInTheMiddleOfAnEndlessFeed) {
  server->answer("/", "HTTP/1.1 200 OK\r\n\r\n" + std::string(64 << 20, 'x'));
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::tooLarge));
}

TEST_F(Fetching, GivesUpOnASilentServer) {
  limits.total = std::chrono::milliseconds(200);
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::timedOut));
  EXPECT_TRUE(eventuallyInLoop([this] { return server->connections == 0; }));
}

TEST_F(Fetching, SaysThatNobodyListens) {
  const std::string address = server->address("/");
  server.reset();
  EXPECT_EQ(fetch(address), AppcastSource::Result(UpdateFailure::noConnection));
}

TEST_F(Fetching, EndsWithItsToken) {
  start(server->address("/"));
  ASSERT_TRUE(eventuallyInLoop([this] { return server->requests.size() == 1; }));
  token.reset();
  EXPECT_TRUE(eventuallyInLoop([this] { return server->connections == 0; }));
  EXPECT_FALSE(result);
}

TEST_F(Fetching, EndsWithItsTokenBeforeItHasBegun) {
  start(server->address("/"));
  token.reset();
  start("http://127.0.0.1/");
  token.reset();
  QCoreApplication::processEvents();
  EXPECT_FALSE(result);
}

}  // namespace
}  // namespace tessarin
