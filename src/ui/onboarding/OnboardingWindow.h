#pragma once

#include <QDialog>

#include "ui/onboarding/OnboardingView.h"

namespace tessarin::ui {

/// The window that greets a new user. Closing it before the end lets it come again at the next start.
class OnboardingWindow final : public QDialog {
  Q_OBJECT

 public:
  OnboardingWindow(const Permissions& permissions, UserDefaults& defaults, MainQueue& queue);

  /// In the middle of the screen, in front, with the keyboard.
  void open() override;
  /// Escape closes nothing here.
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override;
};

}  // namespace tessarin::ui
