#pragma once

#include <QObject>

#include "platform/MainQueue.h"

namespace tessarin::ui {

/// Work on Qt's main loop. Created on the main thread, after the application object.
class QtMainQueue final : public MainQueue {
 public:
  void async(Work work) override;
  void after(std::chrono::milliseconds delay, Work work) override;
  Subscription repeat(std::chrono::milliseconds interval, Work work) override;
  std::chrono::steady_clock::time_point now() const override { return std::chrono::steady_clock::now(); }

 private:
  QObject context_;  ///< what is still waiting when it goes is dropped
};

}  // namespace tessarin::ui
