#pragma once

#include "ui/onboarding/StepPage.h"

namespace tessarin::ui {

class PermissionRow;

/// The two permissions, each with its state and a button that leads to it.
class PermissionsStep final : public StepPage {
  Q_OBJECT

 public:
  explicit PermissionsStep(QWidget* parent = nullptr);

  void setInputMonitoringGranted(bool granted);
  void setAccessibilityGranted(bool granted);

 Q_SIGNALS:
  void inputMonitoringWanted();
  void accessibilityWanted();

 private:
  PermissionRow* inputMonitoring_;
  PermissionRow* accessibility_;
};

}  // namespace tessarin::ui
