#pragma once

#include "ui/style/Colors.h"
#include "ui/style/ScrollPane.h"

class QVBoxLayout;

namespace tessarin::ui {

class SymbolLabel;

/// One step of the onboarding: a column in the middle of its room. Where large type or long texts need it, it
/// moves closer together, then does without its symbol, and at the very last scrolls.
class StepPage : public ScrollPane {
  Q_OBJECT

 public:
  explicit StepPage(QWidget* parent = nullptr);

  /// Rewrites what names the trigger.
  virtual void setTriggerCharacter(const QString& /*trigger*/) {}
  /// What takes the keyboard focus when the step appears; none for the button that goes on.
  virtual QWidget* initialFocus() const { return nullptr; }
  /// Everything that can be read in the step.
  QString text() const;

 protected:
  /// Of the first and the last step, which are a symbol and a few lines.
  static constexpr int symbolSize = 64;
  static constexpr int textPadding = 40;

  /// Puts it below what is there, with `sidePadding` left and right.
  void add(QWidget* widget, int sidePadding = 0);
  void addSymbol(const QString& name, int size, ColorRole color);
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void fit();
  bool fitsMovedTogether();

  QVBoxLayout* column_;
  SymbolLabel* symbol_ = nullptr;
};

}  // namespace tessarin::ui
