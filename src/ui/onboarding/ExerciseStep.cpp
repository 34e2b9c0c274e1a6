#include "ui/onboarding/ExerciseStep.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/style/StyledLabel.h"
#include "ui/style/SymbolLabel.h"

namespace tessarin::ui {
namespace {

constexpr int exerciseSymbolSize = 48;
constexpr int hintSymbolSize = 18;
constexpr int exerciseHintSpacing = 8;
constexpr int hintPadding = 60;
constexpr int widestHint = 520 - 2 * hintPadding - hintSymbolSize - exerciseHintSpacing;

}  // namespace

ExerciseStep::ExerciseStep(QWidget* parent)
    : StepPage(parent),
      task_(new StyledLabel({}, TextStyle::title3, ColorRole::secondary)),
      field_(new QLineEdit) {
  auto* title = new StyledLabel(tr("Try It Out"), TextStyle::title);
  addSymbol("text-cursor", exerciseSymbolSize, ColorRole::accent);
  add(&title->wrapped().centred());
  add(&task_->wrapped().centred());
  add(makeHints(), hintPadding);
  add(field_, hintPadding);
  field_->setAccessibleName(tr("Try it here"));
}

QWidget* ExerciseStep::makeHints() const {
  auto* hints = new QWidget;
  auto* centred = new QHBoxLayout(hints);
  centred->setContentsMargins(0, 0, 0, 0);
  auto* list = new QVBoxLayout;
  list->setSpacing(exerciseHintSpacing);
  addHint(*list, "circle-1", tr("Type the trigger character to start"));
  addHint(*list, "circle-2", tr("Type a shortcode like \"smile\" or \"wave\""));
  addHint(*list, "circle-3", tr("Press Enter or type the trigger again to confirm"));
  centred->addStretch(1);
  centred->addLayout(list);
  centred->addStretch(1);
  return hints;
}

void ExerciseStep::addHint(QVBoxLayout& list, const QString& symbol, const QString& text) {
  // On one line where that fits, so that the hints stand together in the middle.
  auto* label = new StyledLabel(text);
  label->setMinimumWidth(std::min(label->sizeHint().width(), widestHint));
  label->wrapped();
  auto* row = new QHBoxLayout;
  row->setSpacing(exerciseHintSpacing);
  row->addWidget(new SymbolLabel(symbol, hintSymbolSize, ColorRole::primary));
  row->addWidget(label, 1);
  list.addLayout(row);
}

void ExerciseStep::setTriggerCharacter(const QString& trigger) {
  task_->setText(tr("Type %1smile%1 in any text field").arg(trigger));
  field_->setPlaceholderText(tr("%1smile%1").arg(trigger));
  field_->setAccessibleDescription(task_->text());
}

QWidget* ExerciseStep::initialFocus() const {
  return field_;
}

}  // namespace tessarin::ui
