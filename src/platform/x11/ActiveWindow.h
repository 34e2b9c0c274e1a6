#pragma once

#include <xcb/xcb.h>

#include <functional>

#include "platform/x11/WindowProperties.h"

namespace tessarin::x11 {

class Atoms;

/// Follows the window that the user works in: the one that the window manager calls active, or the one with
/// the input focus where there is no window manager. On the thread of the connection.
class ActiveWindow {
 public:
  enum class Change { otherWindow, sameWindow };  ///< sameWindow: it says something else of itself
  using Changed = std::function<void(Change change)>;

  ActiveWindow(xcb_connection_t* connection, Atoms& atoms, WindowProperties& properties, xcb_window_t root,
               Changed changed);

  /// Looks which window it is and tells of it, if it is another than before.
  void refresh();
  void handle(const xcb_generic_event_t& event);
  /// XCB_WINDOW_NONE when it is not known.
  xcb_window_t window() const { return window_; }
  bool isManaged() const { return manager_ != XCB_WINDOW_NONE; }

 private:
  void follow(xcb_window_t window);
  void handleDestroyed(xcb_window_t window);
  void handleProperty(const xcb_property_notify_event_t& event);
  void handleFocus(const xcb_focus_in_event_t& event);
  xcb_window_t focusedWindow();
  void select(xcb_window_t window, std::uint32_t events);

  xcb_connection_t* connection_;
  WindowProperties& properties_;
  xcb_window_t root_;
  xcb_atom_t activeProperty_;
  xcb_atom_t managerProperty_;
  xcb_atom_t applicationIdProperty_;
  Changed changed_;
  xcb_window_t window_ = XCB_WINDOW_NONE;
  xcb_window_t manager_ = XCB_WINDOW_NONE;
  xcb_window_t focus_ = XCB_WINDOW_NONE;
};

}  // namespace tessarin::x11
