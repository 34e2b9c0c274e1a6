#include "ui/onboarding/DoneStep.h"

#include "ui/style/StyledLabel.h"

namespace tessarin::ui {

DoneStep::DoneStep(QWidget* parent) : StepPage(parent) {
  auto* title = new StyledLabel(tr("You're All Set!"), TextStyle::title);
  auto* body = new StyledLabel(
      tr("Tessarin runs in your menu bar. Look for the keyboard icon to access settings, manage snippets, "
         "and more."),
      TextStyle::body, ColorRole::secondary);
  addSymbol("checkmark-circle", symbolSize, ColorRole::green);
  add(&title->wrapped().centred());
  add(&body->wrapped().centred(), textPadding);
}

}  // namespace tessarin::ui
