#pragma once

#include <QDialog>

#include "input/Permissions.h"

namespace tessarin {

class MainQueue;
class UserDefaults;

namespace ui {

class OnboardingView;

/// The window "Welcome to Tessarin". Its content lives from being presented until the window is closed;
/// closed before its end, it begins anew the next time. Escape does not close it. All references outlive it.
class OnboardingWindow final : public QDialog {
  Q_OBJECT

 public:
  OnboardingWindow(const Permissions& permissions, UserDefaults& defaults, MainQueue& queue);

  /// Shows the window in the middle of the screen and gives it the keyboard; one that is open comes to the
  /// front as it is.
  void present();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void makeView();

  Permissions permissions_;
  UserDefaults& defaults_;
  MainQueue& queue_;
  OnboardingView* view_ = nullptr;
};

}  // namespace ui
}  // namespace tessarin
