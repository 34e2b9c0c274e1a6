#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include "platform/x11/Handles.h"
#include "support/desktop/PrivateDisplay.h"

namespace tessarin::testing {
namespace {

bool answers(const std::string& name) {
  const x11::Connection connection(xcb_connect(name.c_str(), nullptr));
  return xcb_connection_has_error(connection.get()) == 0;
}

TEST(PrivateDisplay, TakesConnectionsWhileItLives) {
  std::string name;
  {
    const PrivateDisplay display;
    name = display.name();
    EXPECT_TRUE(answers(name));
  }
  EXPECT_FALSE(answers(name));
}

TEST(PrivateDisplay, ServersStandBesideEachOther) {
  PrivateDisplay first;
  const PrivateDisplay second;
  first.startWindowManager();
  EXPECT_NE(first.name(), second.name());
  EXPECT_TRUE(answers(second.name()));
}

}  // namespace
}  // namespace tessarin::testing
