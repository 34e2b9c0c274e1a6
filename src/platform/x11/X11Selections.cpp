#include "platform/x11/X11Selections.h"

#include <xcb/xfixes.h>

#include <array>
#include <future>
#include <utility>

#include "base/Log.h"
#include "platform/x11/Atoms.h"
#include "platform/x11/OutgoingTransfers.h"
#include "platform/x11/SelectionChannel.h"
#include "platform/x11/SelectionKeeper.h"
#include "platform/x11/X11Pasteboard.h"
#include "platform/x11/XThread.h"

namespace tessarin::x11 {
namespace {

constexpr std::chrono::milliseconds handoverPatience{1000};
constexpr std::chrono::milliseconds keepingPatience{1500};

bool hasSelectionEvents(xcb_connection_t* connection) {
  const auto* extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
  if (extension == nullptr || extension->present == 0) return false;
  const Owned<xcb_xfixes_query_version_reply_t> version(
      xcb_xfixes_query_version_reply(connection, xcb_xfixes_query_version(connection, 1, 0), nullptr));
  return version != nullptr;
}

}  // namespace

class X11Selections::Impl {
 public:
  Impl(MainQueue& queue, std::unique_ptr<XThread> thread)
      : thread_(std::move(thread)),
        atoms_(thread_->connection()),
        transfers_(thread_->connection(), atoms_.atom("INCR")),
        window_(createSelectionWindow(thread_->connection(), *thread_->screen())),
        firstEvent_(xcb_get_extension_data(thread_->connection(), &xcb_xfixes_id)->first_event),
        channels_{channel(atoms_.atom("CLIPBOARD")), channel(XCB_ATOM_PRIMARY)},
        general_(queue, *thread_, channels_[0]),
        primary_(queue, *thread_, channels_[1]) {
    thread_->start([this](const xcb_generic_event_t& event) { handle(event); });
  }

  ~Impl() { thread_->stop(); }
  Impl(const Impl&) = delete;
  Impl& operator=(const Impl&) = delete;

  X11Pasteboard& general() { return general_; }
  X11Pasteboard& primary() { return primary_; }

  void shutdown(const std::string& keeper) {
    auto done = handedOver_.get_future();
    thread_->post([this] { handOver(); });
    if (done.wait_for(handoverPatience) != std::future_status::ready) {
      log("Pasteboard", "the clipboard manager did not take over in time");
    }
    if (!keeper.empty()) thread_->call([this, keeper] { keepWhatIsStillOurs(keeper); }, keepingPatience);
    thread_->stop();
  }

 private:
  std::shared_ptr<SelectionChannel> channel(xcb_atom_t selection) {
    constexpr std::uint32_t changes = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
    xcb_xfixes_select_selection_input(thread_->connection(), window_, selection, changes);
    return std::make_shared<SelectionChannel>(*thread_, atoms_, transfers_, window_, selection);
  }

  void handle(const xcb_generic_event_t& event) {
    const int type = event.response_type & 0x7f;
    if (type == firstEvent_ + XCB_XFIXES_SELECTION_NOTIFY) {
      handleOwnerChange(reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event));
      return;
    }
    if (type == XCB_SELECTION_NOTIFY) {
      handleHandover(reinterpret_cast<const xcb_selection_notify_event_t&>(event));
    }
    transfers_.handle(event);
    for (const auto& channel : channels_) channel->handle(event);
  }

  void handleOwnerChange(const xcb_xfixes_selection_notify_event_t& event) {
    auto& channel = event.selection == XCB_ATOM_PRIMARY ? *channels_[1] : *channels_[0];
    channel.handleOwnerChange(event.subtype, event.owner, event.selection_timestamp);
  }

  void handOver() {
    SelectionChannel& clipboard = *channels_[0];
    const xcb_atom_t manager = atoms_.atom("CLIPBOARD_MANAGER");
    const Owned<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        thread_->connection(), xcb_get_selection_owner(thread_->connection(), manager), nullptr));
    const bool isWanted = clipboard.owner().isOwner() && !clipboard.isSecret();
    if (!isWanted || !owner || owner->owner == XCB_WINDOW_NONE) {
      handedOver_.set_value();
      return;
    }
    std::vector<xcb_atom_t> targets;
    for (const auto& representation : clipboard.owner().contents()) targets.push_back(representation.target);
    const xcb_atom_t property = atoms_.atom("TESSARIN_SAVE_TARGETS");
    xcb_change_property(thread_->connection(), XCB_PROP_MODE_REPLACE, window_, property, XCB_ATOM_ATOM, 32,
                        static_cast<std::uint32_t>(targets.size()), targets.data());
    isHandingOver_ = true;
    xcb_convert_selection(thread_->connection(), window_, manager, atoms_.atom("SAVE_TARGETS"), property,
                          thread_->serverTime(window_));
  }

  void handleHandover(const xcb_selection_notify_event_t& event) {
    if (!isHandingOver_ || event.requestor != window_) return;
    isHandingOver_ = false;
    handedOver_.set_value();
  }

  void keepWhatIsStillOurs(const std::string& keeper) {
    std::vector<KeptSelection> kept;
    for (const auto& channel : channels_) {
      const SelectionOwner& owner = channel->owner();
      if (owner.isOwner()) kept.push_back({owner.selection(), owner.contents()});
    }
    if (!kept.empty()) SelectionKeeper::start(keeper, kept);
  }

  std::unique_ptr<XThread> thread_;
  Atoms atoms_;
  OutgoingTransfers transfers_;
  xcb_window_t window_;
  int firstEvent_;
  std::array<std::shared_ptr<SelectionChannel>, 2> channels_;
  X11Pasteboard general_;
  X11Pasteboard primary_;
  bool isHandingOver_ = false;
  std::promise<void> handedOver_;
};

std::unique_ptr<X11Selections> X11Selections::connect(MainQueue& queue, const std::string& display) {
  auto thread = XThread::connect(display);
  if (!thread || !hasSelectionEvents(thread->connection())) return nullptr;
  return std::unique_ptr<X11Selections>(new X11Selections(std::make_unique<Impl>(queue, std::move(thread))));
}

X11Selections::X11Selections(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
X11Selections::~X11Selections() = default;
Pasteboard& X11Selections::general() {
  return impl_->general();
}
Pasteboard& X11Selections::primary() {
  return impl_->primary();
}
void X11Selections::shutdown(const std::string& keeper) {
  impl_->shutdown(keeper);
}

}  // namespace tessarin::x11
