#pragma once

namespace tessarin {

/// How the question for trust comes up. It is always to be seen.
enum class PromptManner {
  unobtrusive,  ///< the program asks by itself: the keyboard stays where it is
  inFront,      ///< the user wants to be asked: with the keyboard
};

}  // namespace tessarin
