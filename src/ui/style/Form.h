#pragma once

#include "ui/style/ScrollPane.h"

class QVBoxLayout;

namespace tessarin::ui {

/// A form in groups: each section has a title, which may be empty, above a card that holds its rows. Scrolls
/// where the window is too low for it.
class Form : public ScrollPane {
  Q_OBJECT

 public:
  explicit Form(QWidget* parent = nullptr);

  /// Returns the layout that takes the section's rows. Once the last section is there, what room is left
  /// stays below.
  QVBoxLayout* addSection(const QString& title);
  /// All of it.
  QSize sizeHint() const override { return widget()->sizeHint(); }

 private:
  QVBoxLayout* sections_;
};

}  // namespace tessarin::ui
