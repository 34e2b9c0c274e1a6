#pragma once

#include <utility>
#include <vector>

#include "platform/LoginItem.h"

namespace tessarin::testing {

/// A login item in memory. `calls` lists the operations in order.
class FakeLoginItem final : public LoginItem {
 public:
  std::optional<std::string> registerItem() override { return change("register", true); }
  std::optional<std::string> unregisterItem() override { return change("unregister", false); }
  bool isEnabled() override { return enabled; }

  bool enabled = false;
  std::optional<std::string> failure;  ///< with it both operations fail and change nothing
  std::vector<std::string> calls;

 private:
  std::optional<std::string> change(std::string call, bool isEnabled) {
    calls.push_back(std::move(call));
    if (!failure) enabled = isEnabled;
    return failure;
  }
};

}  // namespace tessarin::testing
