#pragma once

#include <xcb/xcb.h>

#include <optional>
#include <string>

namespace tessarin::ui {

/// Qt's own connection to the X server. Requests made on it keep their order with Qt's.
struct QtConnection {
  xcb_connection_t* connection;
  int screenNumber;
  xcb_window_t root;

  /// A round trip; keep the answer.
  xcb_atom_t atom(const std::string& name) const;
};

/// None when Qt does not run on X.
std::optional<QtConnection> qtConnection();

}  // namespace tessarin::ui
