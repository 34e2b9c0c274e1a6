#pragma once

#include <QSslConfiguration>
#include <QSslServer>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace tessarin::testing {

/// A certificate for 127.0.0.1 with its key, made for this test and trusted by nobody else.
class TestCertificate {
 public:
  TestCertificate();

  /// For a client: trusts this certificate alone.
  QSslConfiguration trusting() const;
  /// For a server: shows this certificate.
  QSslConfiguration presenting() const;

 private:
  TemporaryFolder folder_;
};

/// An HTTPS server on the loopback device. For each path the test says what is sent back, byte for byte; the
/// connection is closed after it. A path without an answer keeps the client waiting.
class HttpsServer {
 public:
  explicit HttpsServer(const TestCertificate& certificate);

  std::string address(const std::string& path) const;
  void answer(const std::string& path, std::string response) { responses_[path] = std::move(response); }
  /// 200 with the content.
  void serve(const std::string& path, const std::string& content);
  void redirect(const std::string& path, const std::string& target);

  /// What was asked for, header lines included.
  std::vector<std::string> requests;
  /// Clients that are connected at the moment.
  int connections = 0;

 private:
  void accept(QTcpSocket& socket);
  void reply(QTcpSocket& socket, const std::string& request);

  QSslServer server_;
  std::map<std::string, std::string> responses_;
};

}  // namespace tessarin::testing
