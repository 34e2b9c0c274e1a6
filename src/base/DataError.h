#pragma once

#include <stdexcept>

namespace tessarin {

/// The content of a file is not what it should be, or cannot be put into one. The text says where, in one
/// line fit for the user, and holds nothing of the content itself.
class DataError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace tessarin
