#include "platform/qt/DesktopWatch.h"

#include <xcb/randr.h>
#include <xcb/xfixes.h>

#include <QGuiApplication>

namespace tessarin::ui {
namespace {

std::uint8_t firstEvent(const QtConnection& x, xcb_extension_t& extension) {
  const auto* data = xcb_get_extension_data(x.connection, &extension);
  return data != nullptr && data->present != 0 ? data->first_event : std::uint8_t{0};
}

}  // namespace

// Qt has asked the server for all of these events, for its own use; what a client asks for more than once for
// the same window replaces what it asked for before, so they are left as Qt wants them.
DesktopWatch::DesktopWatch() : x_(qtConnection()) {
  if (!x_) return;
  sources_ = monitors::sources(*x_);
  firstRandrEvent_ = firstEvent(*x_, xcb_randr_id);
  firstXfixesEvent_ = firstEvent(*x_, xcb_xfixes_id);
  qGuiApp->installNativeEventFilter(this);
}

const monitors::Desktop* DesktopWatch::desktop() {
  if (!x_) return nullptr;
  if (!known_) known_ = monitors::desktop(*x_, sources_);
  return &*known_;
}

bool DesktopWatch::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
  if (type == "xcb_generic_event_t" && isChange(*static_cast<const xcb_generic_event_t*>(message))) {
    known_.reset();
  }
  return false;
}

bool DesktopWatch::isChange(const xcb_generic_event_t& event) const {
  constexpr std::uint8_t sentByClient = 0x80;
  const auto type = static_cast<std::uint8_t>(event.response_type & ~sentByClient);
  if (type == XCB_CONFIGURE_NOTIFY) {
    return reinterpret_cast<const xcb_configure_notify_event_t&>(event).window == x_->root;
  }
  if (type == XCB_PROPERTY_NOTIFY) {
    const auto& changed = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    return changed.window == x_->root &&
           (changed.atom == sources_.workArea || changed.atom == sources_.currentDesktop ||
            changed.atom == sources_.activeWindow);
  }
  if (firstXfixesEvent_ != 0 && type == firstXfixesEvent_ + XCB_XFIXES_SELECTION_NOTIFY) {
    return reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event).selection ==
           sources_.compositor;
  }
  return firstRandrEvent_ != 0 && (type == firstRandrEvent_ + XCB_RANDR_SCREEN_CHANGE_NOTIFY ||
                                   type == firstRandrEvent_ + XCB_RANDR_NOTIFY);
}

}  // namespace tessarin::ui
