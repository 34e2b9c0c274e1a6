#include "ui/onboarding/WelcomeStep.h"

#include "ui/style/StyledLabel.h"

namespace tessarin::ui {

WelcomeStep::WelcomeStep(QWidget* parent)
    : StepPage(parent), subtitle_(new StyledLabel({}, TextStyle::title3, ColorRole::secondary)) {
  auto* title = new StyledLabel(tr("Welcome to Tessarin"), TextStyle::largeTitle);
  auto* body =
      new StyledLabel(tr("Type shortcodes anywhere to instantly insert emoji, kaomoji, and custom snippets."),
                      TextStyle::body, ColorRole::secondary);
  addSymbol("keyboard", symbolSize, ColorRole::accent);
  add(&title->wrapped().centred());
  add(&subtitle_->wrapped().centred());
  add(&body->wrapped().centred(), textPadding);
}

void WelcomeStep::setTriggerCharacter(const QString& trigger) {
  subtitle_->setText(tr("System-wide %1shortcode%1 autocomplete for macOS").arg(trigger));
}

}  // namespace tessarin::ui
