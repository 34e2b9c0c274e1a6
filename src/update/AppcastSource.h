#pragma once

#include <functional>
#include <string>
#include <variant>

#include "base/Subscription.h"
#include "update/UpdateFailure.h"

namespace tessarin {

/// Fetches a feed. Main thread.
class AppcastSource {
 public:
  /// The feed's bytes, or why there are none.
  using Result = std::variant<std::string, UpdateFailure>;

  virtual ~AppcastSource() = default;

  /// The answer comes once, after this call has returned. Dropping the token, also while the answer is being
  /// given, ends the transfer without one.
  virtual Subscription fetch(const std::string& address, std::function<void(Result)> done) = 0;
};

}  // namespace tessarin
