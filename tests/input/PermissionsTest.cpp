#include <gtest/gtest.h>

#include "input/Permissions.h"
#include "support/FakeAccessibility.h"
#include "support/FakeInputMonitoring.h"
#include "support/FakeWorkspace.h"

namespace tessarin::testing {
namespace {

class PermissionsTest : public ::testing::Test {
 protected:
  FakeAccessibility accessibility;
  FakeInputMonitoring monitoring;
  FakeWorkspace workspace;
  Permissions permissions{accessibility, monitoring, workspace};
};

TEST_F(PermissionsTest, AsksThePlatformAfreshEachTime) {
  for (const bool granted : {true, false, true}) {
    accessibility.trusted = granted;
    monitoring.granted = !granted;
    EXPECT_EQ(permissions.isAccessibilityGranted(), granted);
    EXPECT_EQ(permissions.isInputMonitoringGranted(), !granted);
  }
}

TEST_F(PermissionsTest, RequestsEachGrantFromItsOwner) {
  permissions.requestListenAccess();
  EXPECT_EQ(monitoring.requests, 1);
  EXPECT_EQ(accessibility.prompts, 0);
  permissions.promptForAccessibility();
  EXPECT_EQ(accessibility.prompts, 1);
}

TEST_F(PermissionsTest, OpensTheSettings) {
  workspace.expectOpenUrl("tessarin:settings/input-monitoring");
  workspace.expectOpenUrl("tessarin:settings/accessibility");
  permissions.openInputMonitoringSettings();
  permissions.openAccessibilitySettings();
}

}  // namespace
}  // namespace tessarin::testing
