#pragma once

#include "platform/InputMonitoring.h"

namespace tessarin::testing {

class FakeInputMonitoring final : public InputMonitoring {
 public:
  bool isGranted() override { return granted; }
  void request() override { ++requests; }

  bool granted = true;
  int requests = 0;
};

}  // namespace tessarin::testing
