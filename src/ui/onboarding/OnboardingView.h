#pragma once

#include <QWidget>

#include "base/Subscription.h"
#include "input/Permissions.h"

class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace tessarin {
class MainQueue;
class UserDefaults;
}  // namespace tessarin

namespace tessarin::ui {

class PermissionRow;
class StepIndicator;

/// Welcomes the user in four steps: what the program is, its permissions, an exercise and the end. Nothing
/// has to be granted to go on.
class OnboardingView final : public QWidget {
  Q_OBJECT

 public:
  /// All outlive the view.
  OnboardingView(const Permissions& permissions, UserDefaults& defaults, MainQueue& queue,
                 QWidget* parent = nullptr);

  int currentStep() const { return currentStep_; }

 Q_SIGNALS:
  /// The user has gone through all of it, and it has been stored.
  void finished();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QWidget* makeWelcome();
  QWidget* makePermissions();
  QWidget* makeExercise();
  QWidget* makeDone();
  QWidget* makeNavigation();
  QString triggerCharacter() const;

  void goTo(int step);
  void goOn();
  void showStep(int step);
  void refresh();

  Permissions permissions_;
  UserDefaults& defaults_;
  MainQueue& queue_;
  int currentStep_ = 0;
  PermissionRow* inputMonitoring_;
  PermissionRow* accessibility_;
  QLineEdit* exercise_;
  QStackedWidget* steps_;
  StepIndicator* indicator_;
  QPushButton* back_;
  QPushButton* forward_;
  Subscription timer_;
};

}  // namespace tessarin::ui
