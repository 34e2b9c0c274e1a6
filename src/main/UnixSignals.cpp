#include "main/UnixSignals.h"

#include <sys/signalfd.h>

#include <csignal>

namespace tessarin {

UnixSignals::UnixSignals() {
  for (const int number : {SIGPIPE, SIGTTIN, SIGTTOU}) std::signal(number, SIG_IGN);
  sigset_t set;
  sigemptyset(&set);
  for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGTSTP}) sigaddset(&set, number);
  pthread_sigmask(SIG_BLOCK, &set, nullptr);
  signals_ = FileDescriptor(signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK));
}

void UnixSignals::listen(std::function<void()> end, std::function<void()> stop) {
  notifier_ = std::make_unique<QSocketNotifier>(signals_.get(), QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [fd = signals_.get(), end = std::move(end), stop = std::move(stop)] {
                     signalfd_siginfo info{};
                     while (::read(fd, &info, sizeof info) == sizeof info) {
                       info.ssi_signo == SIGTSTP ? stop() : end();
                     }
                   });
}

}  // namespace tessarin
