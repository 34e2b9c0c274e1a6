#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Subscription.h"

namespace tessarin {

/// The user's preferences, held in memory and answered at once. A value of another type than asked for reads
/// as absent. Main thread.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;

  virtual std::optional<std::string> string(const std::string& key) const = 0;
  virtual std::optional<bool> boolean(const std::string& key) const = 0;
  virtual std::optional<std::vector<std::string>> stringArray(const std::string& key) const = 0;
  /// A value that cannot be stored on disk is logged and stays in memory.
  virtual void set(const std::string& key, const std::string& value) = 0;
  virtual void set(const std::string& key, bool value) = 0;
  virtual void set(const std::string& key, const std::vector<std::string>& value) = 0;
  /// Runs after any value changed, by us or by another program.
  [[nodiscard]] virtual Subscription onChange(std::function<void()> callback) = 0;

  void set(const std::string& key, const char* value) { set(key, std::string(value)); }
};

}  // namespace tessarin
