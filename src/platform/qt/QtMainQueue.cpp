#include "platform/qt/QtMainQueue.h"

#include <QMetaObject>
#include <QTimer>
#include <memory>
#include <utility>

namespace tessarin::ui {

void QtMainQueue::async(Work work) {
  QMetaObject::invokeMethod(&context_, std::move(work), Qt::QueuedConnection);
}

void QtMainQueue::after(std::chrono::milliseconds delay, Work work) {
  QTimer::singleShot(delay, Qt::PreciseTimer, &context_, std::move(work));
}

Subscription QtMainQueue::repeat(std::chrono::milliseconds interval, Work work) {
  auto timer = std::make_shared<QTimer>();
  // Seconds may be coarse: the system then wakes up once for several timers.
  timer->setTimerType(interval >= std::chrono::seconds(1) ? Qt::CoarseTimer : Qt::PreciseTimer);
  QObject::connect(timer.get(), &QTimer::timeout, &context_, std::move(work));
  timer->start(interval);
  return Subscription([timer] { timer->stop(); });
}

}  // namespace tessarin::ui
