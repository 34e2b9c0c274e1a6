#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "platform/EventTap.h"
#include "platform/KeyPoster.h"

namespace tessarin::x11 {

/// What the tap's owner wants at the moment.
struct TapSettings {
  bool isEnabled = false;
  /// Off for one key that was not answered in time, and the owner has not switched it since.
  bool hasTimedOut = false;
  KeyAttention attention = KeyAttention::triggerOnly;
  std::string trigger;
  bool operator==(const TapSettings&) const = default;
};

struct KeyPost {
  std::vector<KeyPress> presses;
  std::function<void()> made;  ///< keyboard thread
};

/// What the main thread tells the keyboard thread. Any thread.
class TapControl {
 public:
  TapControl();
  ~TapControl();
  TapControl(const TapControl&) = delete;
  TapControl& operator=(const TapControl&) = delete;

  void setEnabled(bool enabled);
  /// A key was not answered in time: switches off, and remembers that unless it is the second time in a row.
  void timeOut();
  void setAttention(KeyAttention attention, const std::string& trigger);
  void post(KeyPost post);
  /// The thread is to end.
  void stop();
  /// There is a thread again, which is not to end.
  void begin();

  TapSettings settings() const;
  bool isStopping() const;
  std::vector<KeyPost> takePosts();
  /// Readable when something was said since `clearWakeUp`.
  int wakeFd() const { return wakeFd_; }
  void clearWakeUp();

 private:
  void wake();

  mutable std::mutex mutex_;
  TapSettings settings_;
  std::vector<KeyPost> posts_;
  bool stopping_ = false;
  int wakeFd_ = -1;
};

}  // namespace tessarin::x11
