#include "main/UnixSignals.h"

#include <sys/signalfd.h>

#include <csignal>

namespace tessarin {

UnixSignals::UnixSignals() {
  std::signal(SIGPIPE, SIG_IGN);
  sigset_t set;
  sigemptyset(&set);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&set, number);
  pthread_sigmask(SIG_BLOCK, &set, nullptr);
  signals_ = FileDescriptor(signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK));
}

void UnixSignals::onTermination(std::function<void()> callback) {
  notifier_ = std::make_unique<QSocketNotifier>(signals_.get(), QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [fd = signals_.get(), callback = std::move(callback)] {
                     signalfd_siginfo info{};
                     while (::read(fd, &info, sizeof info) == sizeof info) continue;
                     callback();
                   });
}

}  // namespace tessarin
