#pragma once

#include <QScrollArea>

namespace tessarin::ui {

/// Content without a frame or a ground of its own, which scrolls up and down where its room is too low for
/// it, as it is with large fonts.
class ScrollPane : public QScrollArea {
  Q_OBJECT

 public:
  explicit ScrollPane(QWidget* content, QWidget* parent = nullptr);
};

}  // namespace tessarin::ui
