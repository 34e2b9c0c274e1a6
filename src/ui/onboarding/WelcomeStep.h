#pragma once

#include "ui/onboarding/StepPage.h"

namespace tessarin::ui {

class StyledLabel;

/// Says what the program does.
class WelcomeStep final : public StepPage {
  Q_OBJECT

 public:
  explicit WelcomeStep(QWidget* parent = nullptr);
  void setTriggerCharacter(const QString& trigger) override;

 private:
  StyledLabel* subtitle_;
};

}  // namespace tessarin::ui
