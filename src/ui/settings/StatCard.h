#pragma once

#include "ui/style/Card.h"

namespace tessarin::ui {

class StyledLabel;

/// A number in large type above what it counts.
class StatCard final : public Card {
  Q_OBJECT

 public:
  explicit StatCard(const QString& title, QWidget* parent = nullptr);

  void setValue(const QString& value);

 private:
  QString title_;
  StyledLabel* value_;
};

}  // namespace tessarin::ui
