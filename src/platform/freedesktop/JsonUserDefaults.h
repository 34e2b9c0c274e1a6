#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "base/Signal.h"
#include "platform/UserDefaults.h"
#include "platform/freedesktop/FileWatcher.h"

struct json_t;

namespace tessarin {
class MainQueue;
}

namespace tessarin::freedesktop {

/// Preferences in one JSON file, an object. It is held in memory and replaced as a whole at every change;
/// what it holds beyond our own keys stays. A file that cannot be read is logged, and moved aside before the
/// next value is written; what was read last goes on to apply, at the start the defaults.
class JsonUserDefaults final : public UserDefaults {
 public:
  using UserDefaults::set;

  /// Reads the file, which need not exist.
  explicit JsonUserDefaults(std::filesystem::path file);

  /// From now on, what another program writes into the file applies here at once. The folder is made if it
  /// does not exist.
  void watch(MainQueue& queue);
  /// Takes over what another program has written since we last looked.
  void reloadIfChanged();
  /// Tries once more to write what could not be written.
  void saveWhatIsMissing();

  std::optional<std::string> string(const std::string& key) const override;
  std::optional<bool> boolean(const std::string& key) const override;
  std::optional<std::vector<std::string>> stringArray(const std::string& key) const override;
  void set(const std::string& key, const std::string& value) override;
  void set(const std::string& key, bool value) override;
  void set(const std::string& key, const std::vector<std::string>& value) override;
  Subscription onChange(std::function<void()> callback) override;

 private:
  using Value = std::variant<std::string, bool, std::vector<std::string>>;
  /// Tells one state of the file from another.
  struct Stamp {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = -1;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
    bool operator==(const Stamp&) const = default;
  };

  Stamp currentStamp() const;
  void load();
  void write(const std::string& key, Value value);
  void save();
  void moveAside();
  template <class T>
  const T* unsaved(const std::string& key, bool& isUnsaved) const;

  std::filesystem::path file_;
  Stamp stamp_;
  bool isUnreadable_ = false;
  bool wasThere_ = false;
  bool hasSaveFailed_ = false;
  std::shared_ptr<json_t> root_;
  std::map<std::string, Value> unsaved_;  // what could not be written; goes before what the file holds
  Signal<> changed_;
  std::unique_ptr<FileWatcher> watcher_;
};

}  // namespace tessarin::freedesktop
