#pragma once

#include "ui/style/Card.h"

class QLabel;

namespace tessarin::ui {

/// A number with what it counts below it.
class StatCard final : public Card {
  Q_OBJECT

 public:
  explicit StatCard(const QString& title, QWidget* parent = nullptr);
  void setValue(const QString& value);

 private:
  QLabel* value_;
};

}  // namespace tessarin::ui
