#pragma once

namespace tessarin {

/// What the user does about an update that was found.
enum class UpdateChoice {
  skip,      ///< this version is not to be offered again unasked
  later,     ///< offer it again at the next check
  download,  ///< open its address
};

}  // namespace tessarin
