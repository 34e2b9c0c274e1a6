#pragma once

#include <QTabBar>

namespace tessarin::ui {

/// Tabs with their symbol above their title, so that all of them have room beside one another.
class SettingsTabBar final : public QTabBar {
  Q_OBJECT

 public:
  explicit SettingsTabBar(QWidget* parent = nullptr);

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintLabel(QPainter& painter, int index) const;
};

}  // namespace tessarin::ui
