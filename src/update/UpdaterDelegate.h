#pragma once

#include <optional>
#include <string>

#include "update/AppcastItem.h"
#include "update/UpdateFailure.h"

namespace tessarin {

/// Told of every check, whoever started it.
class UpdaterDelegate {
 public:
  virtual ~UpdaterDelegate() = default;

  /// The HTTPS address of the feed.
  virtual std::string feedUrl() const = 0;
  virtual void didFindValidUpdate(const AppcastItem& item) = 0;
  /// There is none, or the check failed.
  virtual void didNotFindUpdate(std::optional<UpdateFailure> failure) = 0;
  /// The feed was read. Comes after the verdict, so that whoever waits for the end of a check finds its
  /// outcome.
  virtual void didFinishLoadingAppcast(const Appcast& appcast) = 0;
};

}  // namespace tessarin
