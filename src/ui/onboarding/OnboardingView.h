#pragma once

#include <QWidget>
#include <vector>

#include "base/Subscription.h"
#include "input/Permissions.h"

class QPushButton;

namespace tessarin {

class MainQueue;
class UserDefaults;

namespace ui {

class PermissionsStep;
class StepIndicator;
class StepPage;
class StepStack;

/// Walks the user through four steps: a welcome, the two permissions, an exercise and a closing page. The
/// permissions' state is live while the view exists. Its button that goes on is the default button of the
/// dialog around it. All references outlive it.
class OnboardingView final : public QWidget {
  Q_OBJECT

 public:
  static constexpr int totalSteps = 4;

  OnboardingView(const Permissions& permissions, UserDefaults& defaults, MainQueue& queue,
                 QWidget* parent = nullptr);

  int currentStep() const { return currentStep_; }

 Q_SIGNALS:
  /// The last step was confirmed, and that has been stored.
  void finished();

 private:
  void addSteps();
  QWidget* makeNavigation();
  void goOn();
  void goBack();
  void showStep(int step);
  void finish();
  void refreshPermissions();
  void refreshTrigger();

  Permissions permissions_;
  UserDefaults& defaults_;
  int currentStep_ = 0;
  std::vector<StepPage*> steps_;
  PermissionsStep* permissionsStep_ = nullptr;
  StepStack* stack_ = nullptr;
  StepIndicator* indicator_ = nullptr;
  QPushButton* back_ = nullptr;
  QPushButton* next_ = nullptr;
  Subscription timer_;
  Subscription defaultsObserver_;
};

}  // namespace ui
}  // namespace tessarin
