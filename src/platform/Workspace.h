#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Subscription.h"

namespace tessarin {

/// Which keys paste.
enum class PasteChord {
  controlV,
  controlShiftV,  ///< Qt's web engine: Control-V that comes within a millisecond pastes twice there
  shiftInsert,    ///< terminals and Emacs; terminals take the text from PRIMARY
  registerPlus    ///< Vim, inserting and at its command line: Control-R, Control-O, +
};

/// A running application as the user knows it.
struct Application {
  std::string
      bundleIdentifier;  ///< desktop-entry id, or the listed identifier of a known product; may be empty
  std::string name;
  PasteChord pasteChord = PasteChord::controlV;
  bool isTerminal = false;  ///< a terminal emulator
  /// Another program reads the pasteboard for it (Wine), so nobody can tell whether it has pasted.
  bool isReadForByAnother = false;
  bool operator==(const Application&) const = default;
};

/// What an identifier leads to when it is installed.
struct ApplicationInfo {
  std::string name;
  std::string location;  ///< path of its desktop entry
  std::string icon;      ///< icon name or path
};

/// The desktop's applications. Main thread.
class Workspace {
 public:
  virtual ~Workspace() = default;

  /// None when it is not known.
  virtual std::optional<Application> frontmostApplication() = 0;
  /// Those with a window that belongs in a task bar.
  virtual std::vector<Application> runningApplications() = 0;
  virtual std::optional<ApplicationInfo> application(const std::string& bundleIdentifier) = 0;
  virtual void openUrl(const std::string& url) = 0;
  /// The typed text is no longer where the caret is: another window became active, or a pointer button was
  /// pressed outside the popup.
  [[nodiscard]] virtual Subscription onContextChanged(std::function<void()> callback) = 0;
};

}  // namespace tessarin
