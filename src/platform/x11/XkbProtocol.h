#pragma once

// The protocol header names a structure member "explicit", which C++ reserves.
#define explicit explicitKeys  // NOLINT(clang-diagnostic-keyword-macro)
#include <xcb/xkb.h>
#undef explicit
