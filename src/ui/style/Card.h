#pragma once

#include <QWidget>

namespace tessarin::ui {

/// A faint rounded ground under what belongs together.
class Card : public QWidget {
  Q_OBJECT

 public:
  explicit Card(QWidget* parent = nullptr) : QWidget(parent) {}

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tessarin::ui
