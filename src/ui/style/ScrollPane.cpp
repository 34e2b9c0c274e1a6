#include "ui/style/ScrollPane.h"

namespace tessarin::ui {

ScrollPane::ScrollPane(QWidget* content, QWidget* parent) : QScrollArea(parent) {
  setWidget(content);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  viewport()->setAutoFillBackground(false);
  content->setAutoFillBackground(false);
}

}  // namespace tessarin::ui
