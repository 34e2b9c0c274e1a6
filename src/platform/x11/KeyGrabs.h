#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/x11/KeyWatch.h"
#include "platform/x11/KeyboardLayout.h"
#include "platform/x11/SessionKeyboard.h"

namespace tessarin::x11 {

/// Which keys the server holds for us. A change takes effect in the order of the connection's requests, so
/// before an answer that is given after it. One thread.
///
/// The trigger is held on the root, wherever the focus is. The other keys, and the trigger among them once it
/// may confirm, are held on the window that has the focus: what others hold on the root, the window manager
/// above all, is looked at before and stays theirs; and the focused program, which is told with every held
/// key that its focus goes and comes back, is told both at once and does not draw itself as if it had lost
/// it.
class KeyGrabs {
 public:
  /// `watch` is told before keys are held anywhere but on the root.
  KeyGrabs(const SessionKeyboard& keyboard, KeyWatch& watch) : keyboard_(keyboard), watch_(watch) {}

  /// Lets go of everything and learns the keys anew.
  void setKeys(const KeyboardLayout& layout, const std::string& trigger);

  void holdNothing();
  /// The trigger's keys, with the modifiers that produce it, and nothing else.
  void holdTrigger();
  /// Every key that types, with any modifiers, where the focus is now. The connection is sent FocusOut events
  /// of that window, for `followFocus`.
  void holdEverything();
  /// Where every key is held, the trigger is held there too from now on. Not while a trigger that is to be
  /// let by is held on the root: from there it would come to the window, and be held a second time.
  void holdTriggerAtFocus();
  /// Whether the focus has gone from where every key is held; they are held at its new place then.
  bool followFocus();

 private:
  enum class Level { nothing, trigger, everything };
  using Modifiers = std::vector<std::uint32_t>;

  void grab(xcb_window_t window, std::uint8_t code, const Modifiers& modifiers);
  void ungrab(xcb_window_t window, std::uint8_t code, const Modifiers& modifiers);
  void moveTrigger(xcb_window_t from, xcb_window_t to);
  xcb_window_t focusedWindow();
  void settleOnFocus();
  void grabAtFocus();
  void holdTriggerAtRoot();
  void letGoOfEverything();
  void watchFocus(bool watched);

  SessionKeyboard keyboard_;
  KeyWatch& watch_;
  std::map<std::uint8_t, Modifiers> everything_;  ///< by key code; without what produces the trigger
  std::map<std::uint8_t, Modifiers> trigger_;     ///< by key code
  Level level_ = Level::nothing;
  xcb_window_t window_ = XCB_NONE;  ///< where everything is held
  bool isTriggerAtFocus_ = false;
};

}  // namespace tessarin::x11
