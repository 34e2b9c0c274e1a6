#pragma once

#include <map>
#include <variant>

#include "base/Signal.h"
#include "platform/UserDefaults.h"

namespace tessarin::testing {

/// Preferences in memory. `writes` lists the keys in the order in which they were set.
class FakeUserDefaults final : public UserDefaults {
 public:
  using Value = std::variant<std::string, bool, std::vector<std::string>>;
  using UserDefaults::set;

  std::optional<std::string> string(const std::string& key) const override { return read<std::string>(key); }
  std::optional<bool> boolean(const std::string& key) const override { return read<bool>(key); }
  std::optional<std::vector<std::string>> stringArray(const std::string& key) const override {
    return read<std::vector<std::string>>(key);
  }
  void set(const std::string& key, const std::string& value) override { write(key, value); }
  void set(const std::string& key, bool value) override { write(key, value); }
  void set(const std::string& key, const std::vector<std::string>& value) override { write(key, value); }
  Subscription onChange(std::function<void()> callback) override {
    return changed_.subscribe(std::move(callback));
  }

  std::vector<std::string> writes;

 private:
  template <class T>
  std::optional<T> read(const std::string& key) const {
    const auto found = values_.find(key);
    if (found == values_.end() || !std::holds_alternative<T>(found->second)) return std::nullopt;
    return std::get<T>(found->second);
  }
  void write(const std::string& key, Value value) {
    values_[key] = std::move(value);
    writes.push_back(key);
    changed_.emit();
  }

  std::map<std::string, Value> values_;
  Signal<> changed_;
};

}  // namespace tessarin::testing
