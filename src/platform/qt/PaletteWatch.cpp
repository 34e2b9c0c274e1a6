#include "platform/qt/PaletteWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

namespace tessarin::ui {

PaletteWatch::PaletteWatch(std::function<void()> changed) : changed_(std::move(changed)) {
  qApp->installEventFilter(this);
}

bool PaletteWatch::eventFilter(QObject* watched, QEvent* event) {
  // Every window is sent the event as well.
  if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) changed_();
  return false;
}

}  // namespace tessarin::ui
