#include "ui/onboarding/OnboardingView.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <chrono>

#include "input/Preferences.h"
#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"
#include "ui/onboarding/StepAnimation.h"
#include "ui/onboarding/StepIndicator.h"
#include "ui/style/Card.h"
#include "ui/style/PermissionRow.h"
#include "ui/style/Spacing.h"
#include "ui/style/StyledLabel.h"
#include "ui/style/SymbolLabel.h"

namespace tessarin::ui {
namespace {

constexpr int totalSteps = 4;
constexpr std::chrono::milliseconds refreshInterval{2000};
constexpr QSize viewSize(520, 480);
constexpr int itemSpacing = 20;
constexpr int textPadding = 40;
constexpr int hintPadding = 60;
constexpr int hintSpacing = 8;
constexpr int rowSpacing = 16;
constexpr int permissionSymbol = 24;

/// A step's items below one another, in the middle of the room that there is.
class Step {
 public:
  Step() : widget_(new QWidget), items_(new QVBoxLayout(widget_)) {
    items_->setSpacing(itemSpacing);
    items_->setContentsMargins(0, defaultPadding, 0, defaultPadding);
    items_->addStretch(1);
  }

  void addSymbol(const QString& name, int size, ColorRole color) {
    items_->addWidget(new SymbolLabel(name, size, color), 0, Qt::AlignHCenter);
  }

  void addText(const QString& text, TextStyle style, ColorRole color = ColorRole::primary) {
    auto* label = new StyledLabel(text, style, color);
    label->wrapped().centred();
    addPadded(label, textPadding);
  }

  void addPadded(QWidget* widget, int sides) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(sides, 0, sides, 0);
    row->addWidget(widget);
    items_->addLayout(row);
  }

  QWidget* finish() {
    items_->addStretch(1);
    return widget_;
  }

 private:
  QWidget* widget_;
  QVBoxLayout* items_;
};

QWidget* onCard(PermissionRow* row) {
  auto* card = new Card;
  auto* layout = new QVBoxLayout(card);
  layout->setContentsMargins(defaultPadding, defaultPadding, defaultPadding, defaultPadding);
  layout->addWidget(row);
  return card;
}

QWidget* makeHint(int number, const QString& text) {
  auto* hint = new QWidget;
  auto* row = new QHBoxLayout(hint);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(hintSpacing);
  row->addWidget(new SymbolLabel(QStringLiteral("circle-%1").arg(number), 18, ColorRole::primary));
  auto* label = new StyledLabel(text);
  label->wrapped();
  row->addWidget(label, 1);
  return hint;
}

}  // namespace

OnboardingView::OnboardingView(const Permissions& permissions, UserDefaults& defaults, MainQueue& queue,
                               QWidget* parent)
    : QWidget(parent),
      permissions_(permissions),
      defaults_(defaults),
      queue_(queue),
      inputMonitoring_(new PermissionRow({tr("Input Monitoring"), tr("Detects when you type shortcodes"),
                                          "xmark-circle-fill", ColorRole::red},
                                         permissionSymbol)),
      accessibility_(new PermissionRow({tr("Accessibility"), tr("Positions the popup and inserts text"),
                                        "minus-circle-fill", ColorRole::yellow},
                                       permissionSymbol)),
      exercise_(new QLineEdit),
      steps_(new QStackedWidget),
      indicator_(new StepIndicator(totalSteps)),
      back_(new QPushButton(tr("Back"))),
      forward_(new QPushButton) {
  setFixedSize(viewSize);
  for (QWidget* step : {makeWelcome(), makePermissions(), makeExercise(), makeDone()})
    steps_->addWidget(step);
  auto* divider = new QFrame;
  divider->setFrameShape(QFrame::HLine);
  divider->setFrameShadow(QFrame::Sunken);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(steps_, 1);
  layout->addWidget(divider);
  layout->addWidget(makeNavigation());
  connect(inputMonitoring_, &PermissionRow::grantClicked, this,
          [this] { permissions_.openInputMonitoringSettings(); });
  connect(accessibility_, &PermissionRow::grantClicked, this,
          [this] { permissions_.promptForAccessibility(); });
  showStep(0);
}

void OnboardingView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  forward_->setDefault(true);  // not before it is in its window, which keeps the default button
  refresh();
  timer_ = queue_.repeat(refreshInterval, [this] { refresh(); });
}

void OnboardingView::hideEvent(QHideEvent* event) {
  timer_.reset();
  QWidget::hideEvent(event);
}

QString OnboardingView::triggerCharacter() const {
  return QString::fromStdString(preferences::currentTriggerCharacter(defaults_));
}

QWidget* OnboardingView::makeWelcome() {
  Step step;
  step.addSymbol("keyboard", 64, ColorRole::accent);
  step.addText(tr("Welcome to Tessarin"), TextStyle::largeTitle);
  step.addText(tr("System-wide %1shortcode%1 autocomplete for macOS").arg(triggerCharacter()),
               TextStyle::title3, ColorRole::secondary);
  step.addText(tr("Type shortcodes anywhere to instantly insert emoji, kaomoji, and custom snippets."),
               TextStyle::body, ColorRole::secondary);
  return step.finish();
}

QWidget* OnboardingView::makePermissions() {
  Step step;
  step.addText(tr("Grant Permissions"), TextStyle::title);
  step.addText(tr("Tessarin needs two permissions to work:"), TextStyle::body, ColorRole::secondary);
  auto* rows = new QWidget;
  auto* layout = new QVBoxLayout(rows);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(rowSpacing);
  layout->addWidget(onCard(inputMonitoring_));
  layout->addWidget(onCard(accessibility_));
  step.addPadded(rows, textPadding);
  return step.finish();
}

QWidget* OnboardingView::makeExercise() {
  Step step;
  step.addSymbol("text-cursor", 48, ColorRole::accent);
  step.addText(tr("Try It Out"), TextStyle::title);
  step.addText(tr("Type %1smile%1 in any text field").arg(triggerCharacter()), TextStyle::title3,
               ColorRole::secondary);
  auto* hints = new QWidget;
  auto* layout = new QVBoxLayout(hints);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(hintSpacing);
  layout->addWidget(makeHint(1, tr("Type the trigger character to start")));
  layout->addWidget(makeHint(2, tr("Type a shortcode like \"smile\" or \"wave\"")));
  layout->addWidget(makeHint(3, tr("Press Enter or type the trigger again to confirm")));
  step.addPadded(hints, hintPadding);
  exercise_->setPlaceholderText(tr("Try it here"));
  exercise_->setAccessibleName(tr("Try it here"));
  step.addPadded(exercise_, hintPadding);
  return step.finish();
}

QWidget* OnboardingView::makeDone() {
  Step step;
  step.addSymbol("checkmark-circle", 64, ColorRole::green);
  step.addText(tr("You're All Set!"), TextStyle::title);
  step.addText(tr("Tessarin runs in your menu bar. Look for the keyboard icon to access settings, manage "
                  "snippets, and more."),
               TextStyle::body, ColorRole::secondary);
  return step.finish();
}

QWidget* OnboardingView::makeNavigation() {
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(defaultPadding, defaultPadding, defaultPadding, defaultPadding);
  row->addWidget(indicator_);
  row->addStretch(1);
  row->addWidget(back_);
  row->addWidget(forward_);
  back_->setAutoDefault(false);
  connect(back_, &QPushButton::clicked, this, [this] { goTo(currentStep_ - 1); });
  connect(forward_, &QPushButton::clicked, this, &OnboardingView::goOn);
  return bar;
}

void OnboardingView::goOn() {
  if (currentStep_ < totalSteps - 1) return goTo(currentStep_ + 1);
  defaults_.set(preferences::key::hasCompletedOnboarding, true);
  Q_EMIT finished();
}

void OnboardingView::goTo(int step) {
  const auto direction =
      step > currentStep_ ? StepAnimation::Direction::forward : StepAnimation::Direction::back;
  const QPixmap before = steps_->grab();
  showStep(step);
  StepAnimation::run(*steps_, before, direction);
}

void OnboardingView::showStep(int step) {
  constexpr int exerciseStep = 2;
  currentStep_ = step;
  steps_->setCurrentIndex(step);
  indicator_->setCurrentStep(step);
  back_->setVisible(step > 0);
  forward_->setText(step < totalSteps - 1 ? tr("Continue") : tr("Get Started"));
  step == exerciseStep ? exercise_->setFocus() : forward_->setFocus();
}

void OnboardingView::refresh() {
  inputMonitoring_->setGranted(permissions_.isInputMonitoringGranted());
  accessibility_->setGranted(permissions_.isAccessibilityGranted());
}

}  // namespace tessarin::ui
