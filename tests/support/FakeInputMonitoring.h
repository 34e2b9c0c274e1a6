#pragma once

#include "platform/InputMonitoring.h"

namespace tessarin::testing {

class FakeInputMonitoring final : public InputMonitoring {
 public:
  bool isGranted() override { return granted; }
  void request() override {
    ++requests;
    if (!granted) ++explanations;
  }

  bool granted = true;
  int requests = 0;
  int explanations = 0;
};

}  // namespace tessarin::testing
