#pragma once

#include <cstdint>

namespace tessarin {

/// What the program and the process that watches its keyboard say to each other, a packet each.
struct KeyWatchMessage {
  enum class Kind : std::uint32_t {
    // To the watcher.
    connection,  ///< to the X server, which comes along as a file; with the number of the keyboard held by it
    keysHeldAt,  ///< keys are held at this window too from now on, or (0) on the root alone
    working,     ///< keys are being typed: the server itself may be held
    alive,       ///< answer to the question of this number, in the middle of work
    idle,        ///< the same, with nothing in hand: whatever was held before the question has been answered
    // To the program.
    question,  ///< of this number
    letGo,     ///< the connection to the server has been closed
  };
  Kind kind = Kind::question;
  std::uint32_t value = 0;
};

/// The watcher's end of the socket to the program.
constexpr int keyWatchSocket = 0;

}  // namespace tessarin
