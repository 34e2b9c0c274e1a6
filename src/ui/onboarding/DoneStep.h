#pragma once

#include "ui/onboarding/StepPage.h"

namespace tessarin::ui {

/// Says where the program is to be found from now on.
class DoneStep final : public StepPage {
  Q_OBJECT

 public:
  explicit DoneStep(QWidget* parent = nullptr);
};

}  // namespace tessarin::ui
