#pragma once

#include <string>
#include <utility>

#include "platform/InputMonitoring.h"

namespace tessarin::x11 {

/// Whether this X session has what the key tap needs.
class X11InputMonitoring final : public InputMonitoring {
 public:
  /// `display` as in DISPLAY; empty for that variable's value.
  explicit X11InputMonitoring(std::string display = {}) : display_(std::move(display)) {}

  bool isGranted() override;
  void request() override;

 private:
  std::string display_;
};

}  // namespace tessarin::x11
