#include "platform/freedesktop/ComposingInputMethod.h"

#include <poll.h>
#include <sys/eventfd.h>

#include <array>

namespace tessarin::freedesktop {

ComposingInputMethod::ComposingInputMethod(const std::string& session, const Environment& environment)
    : ibusAddress_(environment), wake_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (auto bus = openBus(DBUS_BUS_SESSION, session)) {
    fcitx_ = std::make_unique<FcitxInputMethod>(std::move(bus));
  }
  thread_ = std::thread([this] { run(); });
}

ComposingInputMethod::~ComposingInputMethod() {
  isEnding_ = true;
  lookAgain();
  thread_.join();
}

void ComposingInputMethod::lookAgain() {
  eventfd_write(wake_.get(), 1);
}

void ComposingInputMethod::run() {
  followIBus();
  while (!isEnding_) {
    const pollfd fcitx = workFcitx();
    const pollfd ibus = workIBus();
    state_ = currentState();
    waitFor(fcitx, ibus);
  }
}

void ComposingInputMethod::waitFor(pollfd fcitx, pollfd ibus) {
  std::array files{pollfd{wake_.get(), POLLIN, 0}, pollfd{ibusAddress_.file(), POLLIN, 0}, fcitx, ibus};
  poll(files.data(), files.size(), -1);
  const bool isAsked = files[0].revents != 0;
  const bool hasNewAddress = files[1].revents != 0;
  eventfd_t count = 0;
  if (isAsked) eventfd_read(wake_.get(), &count);
  if (isAsked && fcitx_) fcitx_->lookAgain();
  if (hasNewAddress || (isAsked && !ibus_)) followIBus();
}

// What is written there counts even while we are connected: Fcitx poses as IBus, on a bus that outlives it.
void ComposingInputMethod::followIBus() {
  const std::string address = ibusAddress_.read();
  if (ibus_ && address == usedAddress_) return;
  usedAddress_ = address;
  auto bus = address.empty() ? nullptr : openBusAtOnce(address);
  ibus_ = bus ? std::make_unique<IBusEngine>(std::move(bus)) : nullptr;
}

pollfd ComposingInputMethod::workFcitx() {
  const int file = fcitx_ ? fcitx_->work() : -1;
  if (file < 0) fcitx_.reset();
  return {file, fcitx_ ? fcitx_->events() : short{0}, 0};
}

pollfd ComposingInputMethod::workIBus() {
  const int file = ibus_ ? ibus_->work() : -1;
  if (file < 0) ibus_.reset();
  return {file, ibus_ ? ibus_->events() : short{0}, 0};
}

ComposingInputMethod::State ComposingInputMethod::currentState() const {
  if (ibus_ && ibus_->isComposing()) return State::yes;
  return fcitx_ && fcitx_->isComposing() ? State::lastTime : State::no;
}

}  // namespace tessarin::freedesktop
