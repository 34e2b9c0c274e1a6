#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <functional>

#include "update/AppcastFetcher.h"

namespace tessarin {

/// One fetch. Answers once, never before the event loop runs; deleting it ends the transfer without an
/// answer.
class AppcastTransfer final : public QObject {
  Q_OBJECT

 public:
  AppcastTransfer(const AppcastFetcher::Limits& limits, std::function<void(AppcastSource::Result)> done);

  void start(const QUrl& address, const QSslConfiguration& tls);

 private:
  void read();
  void finish();
  /// Ends the transfer.
  void answer(AppcastSource::Result result);

  AppcastFetcher::Limits limits_;
  std::function<void(AppcastSource::Result)> done_;
  QNetworkAccessManager network_;
  QNetworkReply* reply_ = nullptr;
  QTimer timer_;
  QByteArray body_;
};

}  // namespace tessarin
