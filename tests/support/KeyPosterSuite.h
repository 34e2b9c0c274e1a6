#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/KeyCodes.h"
#include "platform/KeyPoster.h"
#include "text/Graphemes.h"

namespace tessarin::testing {

/// How a KeyPoster behaves, whoever implements it. `World` offers:
///   KeyPoster& poster();
///   std::string typeTwo();    the user types two characters and keeps Shift down; the document then
///   std::string document();   Control-v pastes a "P", other chords stand in angle brackets
///   bool waitFor(condition);  lets presses travel until it holds
template <class World>
class KeyPosterSuite : public ::testing::Test {
 protected:
  World world;
};

TYPED_TEST_SUITE_P(KeyPosterSuite);

TYPED_TEST_P(KeyPosterSuite, PressesInOrderWithExactlyTheModifiersGiven) {
  const std::string typed = this->world.typeTwo();
  bool isMade = false;
  this->world.poster().post({{keycode::deleteBackward, 0},
                             {keycode::v, keyflag::control},
                             {keycode::insert, keyflag::shift},
                             {keycode::deleteBackward, keyflag::control | keyflag::shift}},
                            [&isMade] { isMade = true; });
  const std::string expected = text::withoutLastCharacter(typed) + "P<Shift-Insert><Control-Shift-BackSpace>";
  EXPECT_TRUE(this->world.waitFor([&] { return this->world.document() == expected; }))
      << this->world.document();
  EXPECT_TRUE(this->world.waitFor([&] { return isMade; }));
}

REGISTER_TYPED_TEST_SUITE_P(KeyPosterSuite, PressesInOrderWithExactlyTheModifiersGiven);

}  // namespace tessarin::testing
