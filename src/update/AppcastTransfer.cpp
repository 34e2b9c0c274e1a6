#include "update/AppcastTransfer.h"

#include <QUrl>
#include <utility>

#include "base/Log.h"

namespace tessarin {
namespace {

constexpr int statusOk = 200;

QNetworkRequest requestFor(const QUrl& address, const QSslConfiguration& tls, int redirects) {
  QNetworkRequest request(address);
  request.setSslConfiguration(tls);
  request.setMaximumRedirectsAllowed(redirects);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
  request.setHeader(QNetworkRequest::UserAgentHeader, "Tessarin");
  // Packed content could unpack to any size.
  request.setRawHeader("Accept-Encoding", "identity");
  return request;
}

UpdateFailure failureOf(QNetworkReply::NetworkError error) {
  switch (error) {
    case QNetworkReply::SslHandshakeFailedError:
      return UpdateFailure::notTrusted;
    case QNetworkReply::InsecureRedirectError:
    case QNetworkReply::ProtocolUnknownError:
      return UpdateFailure::notSecure;
    case QNetworkReply::TooManyRedirectsError:
      return UpdateFailure::tooManyRedirects;
    default:
      break;
  }
  // Up to the first proxy error they are about the connection, from content errors on about the answer.
  const bool reachedNobody = error < QNetworkReply::ContentAccessDenied;
  return reachedNobody ? UpdateFailure::noConnection : UpdateFailure::serverError;
}

}  // namespace

AppcastTransfer::AppcastTransfer(const AppcastFetcher::Limits& limits,
                                 std::function<void(AppcastSource::Result)> done)
    : limits_(limits), done_(std::move(done)) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, [this] { answer(UpdateFailure::timedOut); });
}

void AppcastTransfer::start(const QUrl& address, const QSslConfiguration& tls) {
  const bool isSecure = address.isValid() && address.scheme() == u"https" && !address.host().isEmpty();
  if (!isSecure) return answer(UpdateFailure::notSecure);
  reply_ = network_.get(requestFor(address, tls, limits_.redirects));
  connect(reply_, &QIODevice::readyRead, this, &AppcastTransfer::read);
  connect(reply_, &QNetworkReply::finished, this, &AppcastTransfer::finish);
  timer_.start(limits_.total);
}

void AppcastTransfer::read() {
  body_ += reply_->readAll();
  if (static_cast<std::size_t>(body_.size()) > limits_.size) answer(UpdateFailure::tooLarge);
}

void AppcastTransfer::finish() {
  if (reply_->error() != QNetworkReply::NoError) {
    log("Updater", "The list of updates did not come: " + reply_->errorString().toStdString());
    return answer(failureOf(reply_->error()));
  }
  const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  if (status != statusOk) return answer(UpdateFailure::serverError);
  body_ += reply_->readAll();
  if (static_cast<std::size_t>(body_.size()) > limits_.size) return answer(UpdateFailure::tooLarge);
  answer(std::string(body_.constData(), static_cast<std::size_t>(body_.size())));
}

void AppcastTransfer::answer(AppcastSource::Result result) {
  timer_.stop();
  if (reply_ != nullptr) {
    reply_->disconnect(this);
    reply_->abort();
  }
  // Later, as whoever is answered may delete this transfer, and the reply may be in the middle of a signal.
  QTimer::singleShot(0, this, [done = std::move(done_), result = std::move(result)] { done(result); });
}

}  // namespace tessarin
