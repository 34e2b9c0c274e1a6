#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <string>

namespace tessarin::x11 {

/// One form in which a selection's contents can be had.
struct Representation {
  xcb_atom_t target = XCB_ATOM_NONE;
  xcb_atom_t type = XCB_ATOM_NONE;  ///< of the property that carries the data; most often the target itself
  std::uint8_t format = 8;          ///< bits a unit: 8, 16 or 32
  /// Shared, because a slow reader may still be fetching it when the selection has changed hands.
  std::shared_ptr<const std::string> data;
};

}  // namespace tessarin::x11
