#pragma once

#include <string>
#include <vector>

#include "platform/x11/Representation.h"

namespace tessarin::x11 {

/// A selection and everything that is on it. Atoms are the server's, so both processes know them.
struct KeptSelection {
  xcb_atom_t selection = XCB_ATOM_NONE;
  std::vector<Representation> contents;
};

/// What the user had copied belongs to us after a paste, and would go with us when we end. So a small process
/// of its own goes on offering it, until somebody copies something else or the display goes.
class SelectionKeeper {
 public:
  /// The option with which the program is started for that.
  static constexpr const char* option = "--keep-selections";

  /// Starts the program and waits, one second at most, until it has taken the selections. False, and a line
  /// in the log, when that failed.
  static bool start(const std::string& program, const std::vector<KeptSelection>& selections);
  /// What the process does, from reading the selections out of `input` to its end; writes one byte to
  /// `output` when they are taken. Its exit status.
  static int run(int input, int output);
};

}  // namespace tessarin::x11
