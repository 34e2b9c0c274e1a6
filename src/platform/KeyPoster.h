#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tessarin {

struct KeyPress {
  std::int64_t keyCode = 0;    ///< one of deleteBackward, v, insert, r, o
  std::uint64_t flags = 0;     ///< exactly these modifiers, whatever the user is holding
  std::string character = {};  ///< UTF-8: instead of the above, the key that types this, with what it needs
  bool operator==(const KeyPress&) const = default;
};

/// Posts synthetic key presses, each as a press and a release. They reach the focused application in order,
/// behind everything typed before the call, and are not judged by our own tap. Main thread.
class KeyPoster {
 public:
  virtual ~KeyPoster() = default;

  /// A press that the keyboard layout cannot produce is skipped. Returns at once: the effect comes later.
  /// `made` is called when the presses are on their way to the application; behind a great many keys that
  /// takes seconds.
  virtual void post(const std::vector<KeyPress>& presses, std::function<void()> made) = 0;
};

}  // namespace tessarin
