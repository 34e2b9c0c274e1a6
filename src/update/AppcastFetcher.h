#pragma once

#include <QSslConfiguration>
#include <chrono>
#include <cstddef>
#include <optional>

#include "update/AppcastParser.h"
#include "update/AppcastSource.h"

namespace tessarin {

/// Fetches over HTTPS alone: redirects lead to HTTPS too, and certificates must be in order. The network
/// machinery exists only while a transfer runs. Created and used on the main thread, after the application
/// object.
class AppcastFetcher final : public AppcastSource {
 public:
  struct Limits {
    std::chrono::milliseconds total = std::chrono::seconds(30);  ///< for all of it, redirects included
    std::size_t size = maximumAppcastSize;
    int redirects = 5;
  };

  AppcastFetcher() = default;
  /// `tls` in place of the system's settings, e.g. with another certificate authority; certificates are
  /// verified in any case.
  explicit AppcastFetcher(Limits limits, std::optional<QSslConfiguration> tls = std::nullopt);

  Subscription fetch(const std::string& address, std::function<void(Result)> done) override;

 private:
  Limits limits_;
  std::optional<QSslConfiguration> tls_;
};

}  // namespace tessarin
