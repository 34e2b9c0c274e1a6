#include "update/AppcastFetcher.h"

#include <QUrl>
#include <memory>
#include <utility>

#include "update/AppcastTransfer.h"

namespace tessarin {

AppcastFetcher::AppcastFetcher(Limits limits, std::optional<QSslConfiguration> tls)
    : limits_(limits), tls_(std::move(tls)) {}

Subscription AppcastFetcher::fetch(const std::string& address, std::function<void(Result)> done) {
  QSslConfiguration tls = tls_ ? *tls_ : QSslConfiguration::defaultConfiguration();
  tls.setPeerVerifyMode(QSslSocket::VerifyPeer);
  tls.setProtocol(QSsl::TlsV1_2OrLater);
  auto transfer = std::make_shared<AppcastTransfer>(limits_, std::move(done));
  transfer->start(QUrl(QString::fromStdString(address), QUrl::StrictMode), tls);
  return Subscription([transfer]() mutable { transfer.reset(); });
}

}  // namespace tessarin
