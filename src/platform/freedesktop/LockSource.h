#pragma once

#include "platform/freedesktop/BusListener.h"

namespace tessarin::freedesktop {

/// Somebody on a bus who says whether the screen is locked.
class LockSource : public BusListener {
 public:
  using BusListener::BusListener;

  virtual bool isLocked() const = 0;
};

}  // namespace tessarin::freedesktop
