#pragma once

#include <xcb/xcb.h>

#include <string>
#include <unordered_map>
#include <vector>

namespace tessarin::x11 {

/// The server's numbers for names and the names of the numbers, each asked for once. Belongs to the thread
/// that uses the connection.
class Atoms {
 public:
  explicit Atoms(xcb_connection_t* connection) : connection_(connection) {}

  /// XCB_ATOM_NONE only when the server has gone.
  xcb_atom_t atom(const std::string& name);
  /// In the order of the names; one round trip for all that are not known yet.
  std::vector<xcb_atom_t> atoms(const std::vector<std::string>& names);
  /// Empty for a number that is no atom.
  std::string name(xcb_atom_t atom);
  /// In the order of the atoms; one round trip for all that are not known yet.
  std::vector<std::string> names(const std::vector<xcb_atom_t>& atoms);

 private:
  xcb_connection_t* connection_;
  std::unordered_map<std::string, xcb_atom_t> atoms_;
  std::unordered_map<xcb_atom_t, std::string> names_;
};

}  // namespace tessarin::x11
