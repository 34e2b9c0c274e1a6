#include <QCoreApplication>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslServer>
#include <map>
#include <optional>

#include "Matchers.h"
#include "platform/qt/TestApplication.h"
#include "support/LogRecorder.h"
#include "support/TemporaryFolder.h"
#include "update/AppcastFetcher.h"

namespace tessarin::testing {
namespace {

/// A certificate for 127.0.0.1 with its key, made for this test and trusted by nobody else.
class TestCertificate {
 public:
  TestCertificate() {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("openssl",
                  {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                   "-days", "2", "-subj", "/CN=Test", "-addext", "subjectAltName=IP:127.0.0.1", "-keyout",
                   QString::fromStdString(folder_ / "key.pem"), "-out",
                   QString::fromStdString(folder_ / "certificate.pem")});
    if (!process.waitForFinished() || process.exitCode() != 0)
      throw std::runtime_error(process.readAll().toStdString() + process.errorString().toStdString());
  }

  /// For a client: trusts this certificate alone.
  QSslConfiguration trusting() const {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setCaCertificates({certificate()});
    return tls;
  }
  /// For a server: shows this certificate.
  QSslConfiguration presenting() const {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(certificate());
    tls.setPrivateKey(QSslKey(QByteArray::fromStdString(folder_.read("key.pem")), QSsl::Ec));
    tls.setPeerVerifyMode(QSslSocket::VerifyNone);
    return tls;
  }

 private:
  QSslCertificate certificate() const {
    return QSslCertificate(QByteArray::fromStdString(folder_.read("certificate.pem")));
  }
  TemporaryFolder folder_;
};

/// Made once, in a program with an event loop.
const TestCertificate& certificate() {
  ensureApplication();
  static const TestCertificate made;
  return made;
}

/// An HTTPS server on the loopback device. For each path the test says what is sent back, byte for byte; the
/// connection is closed after it. A path without an answer keeps the client waiting.
class HttpsServer {
 public:
  HttpsServer() {
    server_.setSslConfiguration(certificate().presenting());
    QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, &server_, [this] {
      while (QTcpSocket* socket = server_.nextPendingConnection()) accept(*socket);
    });
    if (!server_.listen(QHostAddress::LocalHost)) throw std::runtime_error("no port to listen on");
  }

  std::string address(const std::string& path) const {
    return "https://127.0.0.1:" + std::to_string(server_.serverPort()) + path;
  }
  /// Status with further header lines, and the content.
  void answer(const std::string& path, const std::string& status, const std::string& content = "") {
    responses_[path] = "HTTP/1.1 " + status + "\r\nConnection: close\r\n\r\n" + content;
  }
  void redirect(const std::string& path, const std::string& target) {
    answer(path, "302 Found\r\nLocation: " + target);
  }

  /// What was asked for, header lines included.
  std::vector<std::string> requests;
  /// Clients that are connected at the moment.
  int connections = 0;

 private:
  void accept(QTcpSocket& socket) {
    ++connections;
    QObject::connect(&socket, &QTcpSocket::disconnected, &socket, [this, &socket] {
      --connections;
      socket.deleteLater();
    });
    const auto receive = [this, &socket, received = std::make_shared<std::string>()] {
      *received += socket.readAll().toStdString();
      if (received->ends_with("\r\n\r\n")) reply(socket, *received);
    };
    QObject::connect(&socket, &QTcpSocket::readyRead, &socket, receive);
    receive();
  }
  void reply(QTcpSocket& socket, const std::string& request) {
    requests.push_back(request);
    const std::size_t begin = request.find(' ') + 1;
    const auto found = responses_.find(request.substr(begin, request.find(' ', begin) - begin));
    if (found == responses_.end()) return;
    socket.write(found->second.data(), static_cast<qint64>(found->second.size()));
    socket.disconnectFromHost();
  }

  QSslServer server_;
  std::map<std::string, std::string> responses_;
};

class Fetching : public ::testing::Test {
 protected:
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
  AppcastSource::Result fetchPath(const std::string& path) { return fetch(server.address(path)); }

  std::optional<QSslConfiguration> tls = certificate().trusting();
  HttpsServer server;
  AppcastFetcher::Limits limits;
  std::optional<AppcastSource::Result> result;
  Subscription token;
  LogRecorder log;
};

TEST_F(Fetching, BringsTheFeed) {
  const std::string content = "<rss>größer</rss>" + std::string(1, '\0');
  server.answer("/feed.xml?a=b", "200 OK", content);
  EXPECT_EQ(fetchPath("/feed.xml?a=b"), AppcastSource::Result(content));
  ASSERT_THAT(server.requests, SizeIs(1));
  EXPECT_THAT(server.requests[0], Not(HasSubstr("gzip")));
  EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(Fetching, FollowsFiveRedirectsOnly) {
  for (int i = 0; i < 6; ++i) {
    server.redirect("/" + std::to_string(i), server.address("/" + std::to_string(i + 1)));
  }
  server.answer("/6", "200 OK", "feed");
  EXPECT_EQ(fetchPath("/1"), AppcastSource::Result("feed"));
  EXPECT_EQ(fetchPath("/0"), AppcastSource::Result(UpdateFailure::tooManyRedirects));
}

TEST_F(Fetching, AsksHttpsAddressesOnlyAndIsNotLedAwayFromThem) {
  QTcpServer plain;
  ASSERT_TRUE(plain.listen(QHostAddress::LocalHost));
  const std::string plainAddress = "http://127.0.0.1:" + std::to_string(plain.serverPort()) + "/feed";
  for (const std::string& address : {plainAddress, std::string("file:///etc/hostname")}) {
    EXPECT_EQ(fetch(address), AppcastSource::Result(UpdateFailure::notSecure)) << address;
    server.redirect("/", address);
    EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::notSecure)) << address;
  }
  for (const char* address : {"", "https://"}) {
    EXPECT_EQ(fetch(address), AppcastSource::Result(UpdateFailure::notSecure)) << address;
  }
  EXPECT_FALSE(plain.hasPendingConnections());
}

TEST_F(Fetching, BelievesNoCertificateOfAStrangerOrAnotherHost) {
  server.answer("/", "200 OK", "feed");
  std::string address = server.address("/");
  EXPECT_EQ(fetch(address.replace(address.find("127.0.0.1"), 9, "localhost")),
            AppcastSource::Result(UpdateFailure::notTrusted));
  tls->setCaCertificates({});
  tls->setPeerVerifyMode(QSslSocket::VerifyNone);
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::notTrusted)) << "whatever the settings say";
  tls.reset();
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::notTrusted));
  EXPECT_THAT(server.requests, IsEmpty());
}

TEST_F(Fetching, TakesNothingButAWholeFeedWithinTheSizeLimit) {
  for (const char* status : {"404 Not Found", "401 Unauthorized", "500 Broken", "206 Part"}) {
    server.answer("/", status);
    EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::serverError)) << status;
  }
  server.answer("/", "200 OK\r\nContent-Length: 100", "<rss/>");
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::noConnection)) << "cut off";
  server.answer("/", "200 OK", std::string(64 << 20, 'x'));
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::tooLarge));
}

TEST_F(Fetching, GivesUpOnASilentServer) {
  limits.total = std::chrono::milliseconds(200);
  EXPECT_EQ(fetchPath("/"), AppcastSource::Result(UpdateFailure::timedOut));
  EXPECT_TRUE(eventuallyInLoop([this] { return server.connections == 0; }));
}

TEST_F(Fetching, EndsWithItsToken) {
  start(server.address("/"));
  ASSERT_TRUE(eventuallyInLoop([this] { return server.requests.size() == 1; }));
  token.reset();
  EXPECT_TRUE(eventuallyInLoop([this] { return server.connections == 0; }));
  EXPECT_FALSE(result);
}

}  // namespace
}  // namespace tessarin::testing
