#include "update/HttpsServer.h"

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <memory>
#include <stdexcept>

namespace tessarin::testing {
namespace {

void run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  const bool succeeded =
      process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
  if (!succeeded)
    throw std::runtime_error(process.readAll().toStdString() + process.errorString().toStdString());
}

QByteArray contentOf(const std::filesystem::path& path) {
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no " + path.string());
  return file.readAll();
}

}  // namespace

TestCertificate::TestCertificate() {
  run("openssl", {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                  "-days", "2", "-subj", "/CN=Test", "-addext", "subjectAltName=IP:127.0.0.1", "-keyout",
                  QString::fromStdString(folder_ / "key.pem"), "-out",
                  QString::fromStdString(folder_ / "certificate.pem")});
}

QSslConfiguration TestCertificate::trusting() const {
  QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
  tls.setCaCertificates({QSslCertificate(contentOf(folder_ / "certificate.pem"))});
  return tls;
}

QSslConfiguration TestCertificate::presenting() const {
  QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
  tls.setLocalCertificate(QSslCertificate(contentOf(folder_ / "certificate.pem")));
  tls.setPrivateKey(QSslKey(contentOf(folder_ / "key.pem"), QSsl::Ec));
  tls.setPeerVerifyMode(QSslSocket::VerifyNone);
  return tls;
}

HttpsServer::HttpsServer(const TestCertificate& certificate) {
  server_.setSslConfiguration(certificate.presenting());
  QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, &server_, [this] {
    while (QTcpSocket* socket = server_.nextPendingConnection()) accept(*socket);
  });
  if (!server_.listen(QHostAddress::LocalHost)) throw std::runtime_error("no port to listen on");
}

std::string HttpsServer::address(const std::string& path) const {
  return "https://127.0.0.1:" + std::to_string(server_.serverPort()) + path;
}

void HttpsServer::serve(const std::string& path, const std::string& content) {
  answer(path, "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + std::to_string(content.size()) +
                   "\r\n\r\n" + content);
}

void HttpsServer::redirect(const std::string& path, const std::string& target) {
  answer(path,
         "HTTP/1.1 302 Found\r\nConnection: close\r\nContent-Length: 0\r\nLocation: " + target + "\r\n\r\n");
}

void HttpsServer::accept(QTcpSocket& socket) {
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

void HttpsServer::reply(QTcpSocket& socket, const std::string& request) {
  requests.push_back(request);
  const std::size_t begin = request.find(' ') + 1;
  const auto found = responses_.find(request.substr(begin, request.find(' ', begin) - begin));
  if (found == responses_.end()) return;
  socket.write(found->second.data(), static_cast<qint64>(found->second.size()));
  socket.disconnectFromHost();
}

}  // namespace tessarin::testing
