#pragma once

#include <QPushButton>

namespace tessarin::ui {

/// A push button with a symbol and a text side by side in its middle, whichever side the layout begins at.
class IconButton final : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tessarin::ui
