#pragma once

#include "ui/onboarding/StepPage.h"

class QLineEdit;
class QVBoxLayout;

namespace tessarin::ui {

class StyledLabel;

/// How a shortcode is typed, and a field in which it can be tried at once.
class ExerciseStep final : public StepPage {
  Q_OBJECT

 public:
  explicit ExerciseStep(QWidget* parent = nullptr);
  void setTriggerCharacter(const QString& trigger) override;
  QWidget* initialFocus() const override;

 private:
  static void addHint(QVBoxLayout& list, const QString& symbol, const QString& text);
  QWidget* makeHints() const;

  StyledLabel* task_;
  QLineEdit* field_;
};

}  // namespace tessarin::ui
