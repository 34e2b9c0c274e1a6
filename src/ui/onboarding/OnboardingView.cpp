#include "ui/onboarding/OnboardingView.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <chrono>

#include "input/Preferences.h"
#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"
#include "ui/onboarding/DoneStep.h"
#include "ui/onboarding/ExerciseStep.h"
#include "ui/onboarding/PermissionsStep.h"
#include "ui/onboarding/StepIndicator.h"
#include "ui/onboarding/StepStack.h"
#include "ui/onboarding/WelcomeStep.h"

namespace tessarin::ui {
namespace {

constexpr int viewWidth = 520;
constexpr int viewHeight = 480;
constexpr int footerPadding = 16;
constexpr std::chrono::milliseconds refreshInterval{2000};

}  // namespace

OnboardingView::OnboardingView(const Permissions& permissions, UserDefaults& defaults, MainQueue& queue,
                               QWidget* parent)
    : QWidget(parent), permissions_(permissions), defaults_(defaults), stack_(new StepStack) {
  setFixedSize(viewWidth, viewHeight);
  addSteps();
  auto* divider = new QFrame;
  divider->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(stack_, 1);
  column->addWidget(divider);
  column->addWidget(makeNavigation());
  refreshPermissions();
  refreshTrigger();
  showStep(0);
  next_->setDefault(true);  // not before it stands in the dialog
  timer_ = queue.repeat(refreshInterval, [this] { refreshPermissions(); });
  defaultsObserver_ = defaults_.onChange([this] { refreshTrigger(); });
}

void OnboardingView::addSteps() {
  permissionsStep_ = new PermissionsStep;
  steps_ = {new WelcomeStep, permissionsStep_, new ExerciseStep, new DoneStep};
  for (StepPage* step : steps_) stack_->addWidget(step);
  connect(permissionsStep_, &PermissionsStep::inputMonitoringWanted, this,
          [this] { permissions_.openInputMonitoringSettings(); });
  connect(permissionsStep_, &PermissionsStep::accessibilityWanted, this,
          [this] { permissions_.promptForAccessibility(); });
}

QWidget* OnboardingView::makeNavigation() {
  indicator_ = new StepIndicator(totalSteps);
  back_ = new QPushButton(tr("Back"));
  next_ = new QPushButton;
  connect(back_, &QPushButton::clicked, this, &OnboardingView::goBack);
  connect(next_, &QPushButton::clicked, this, &OnboardingView::goOn);
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(footerPadding, footerPadding, footerPadding, footerPadding);
  row->addWidget(indicator_);
  row->addStretch(1);
  row->addWidget(back_);
  row->addWidget(next_);
  return bar;
}

void OnboardingView::goOn() {
  currentStep_ < totalSteps - 1 ? showStep(currentStep_ + 1) : finish();
}

void OnboardingView::goBack() {
  showStep(currentStep_ - 1);
}

void OnboardingView::showStep(int step) {
  currentStep_ = step;
  const StepPage* page = steps_[static_cast<std::size_t>(step)];
  stack_->slideTo(step);
  indicator_->setCurrent(step);
  next_->setText(step < totalSteps - 1 ? tr("Continue") : tr("Get Started"));
  next_->setAccessibleDescription(page->text());
  QWidget* focus = page->initialFocus();
  (focus != nullptr ? focus : next_)->setFocus();
  back_->setVisible(step > 0);
}

void OnboardingView::finish() {
  defaults_.set(preferences::key::hasCompletedOnboarding, true);
  Q_EMIT finished();
}

void OnboardingView::refreshPermissions() {
  permissionsStep_->setInputMonitoringGranted(permissions_.isInputMonitoringGranted());
  permissionsStep_->setAccessibilityGranted(permissions_.isAccessibilityGranted());
}

void OnboardingView::refreshTrigger() {
  const QString trigger = QString::fromStdString(preferences::currentTriggerCharacter(defaults_));
  for (StepPage* step : steps_) step->setTriggerCharacter(trigger);
}

}  // namespace tessarin::ui
