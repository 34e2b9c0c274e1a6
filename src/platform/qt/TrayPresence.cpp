#include "platform/qt/TrayPresence.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <cstdlib>
#include <string>
#include <utility>

#include "platform/qt/QtConnection.h"

namespace tessarin::ui {
namespace {

constexpr const char* service = "org.kde.StatusNotifierWatcher";
constexpr const char* path = "/StatusNotifierWatcher";
constexpr const char* hostSignal = "StatusNotifierHostRegistered";

}  // namespace

TrayPresence::~TrayPresence() {
  if (qApp != nullptr) qApp->removeNativeEventFilter(this);
}

void TrayPresence::waitForTray(std::function<void()> arrived) {
  arrived_ = std::move(arrived);
  if (const auto qt = qtConnection()) {
    manager_ = qt->atom("MANAGER");
    selection_ = qt->atom("_NET_SYSTEM_TRAY_S" + std::to_string(qt->screenNumber));
    qApp->installNativeEventFilter(this);
  }
  QDBusConnection bus = QDBusConnection::sessionBus();
  watcher_ = std::make_unique<QDBusServiceWatcher>(service, bus, QDBusServiceWatcher::WatchForRegistration);
  connect(watcher_.get(), &QDBusServiceWatcher::serviceRegistered, this, &TrayPresence::askForHost);
  bus.connect(service, path, service, hostSignal, this, SLOT(askForHost()));
  askForHost();
}

void TrayPresence::askForHost() {
  QDBusMessage question =
      QDBusMessage::createMethodCall(service, path, "org.freedesktop.DBus.Properties", "Get");
  question << QString(service) << QString("IsStatusNotifierHostRegistered");
  question.setAutoStartService(false);
  auto* call = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
  connect(call, &QDBusPendingCallWatcher::finished, this, &TrayPresence::handleAnswer);
}

void TrayPresence::handleAnswer(QDBusPendingCallWatcher* call) {
  call->deleteLater();
  const QDBusPendingReply<QDBusVariant> reply = *call;
  const bool hasHost = reply.isValid() && reply.value().variant().toBool();
  if (hasHost || hasOldStyleTray()) finish();
}

bool TrayPresence::hasOldStyleTray() const {
  const auto qt = qtConnection();
  if (!qt) return false;
  const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> reply(
      xcb_get_selection_owner_reply(qt->connection, xcb_get_selection_owner(qt->connection, selection_),
                                    nullptr),
      &std::free);
  return reply && reply->owner != XCB_NONE;
}

void TrayPresence::finish() {
  const auto arrived = std::exchange(arrived_, nullptr);
  if (!arrived) return;
  qApp->removeNativeEventFilter(this);
  watcher_.reset();
  QDBusConnection::sessionBus().disconnect(service, path, service, hostSignal, this, SLOT(askForHost()));
  arrived();
}

bool TrayPresence::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
  if (eventType != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_client_message_event_t*>(message);
  constexpr int withoutSentFlag = 0x7f;
  const bool announcesTray = (event->response_type & withoutSentFlag) == XCB_CLIENT_MESSAGE &&
                             event->type == manager_ && event->data.data32[1] == selection_;
  // By way of the bus, which may have a tray as well.
  if (announcesTray) askForHost();
  return false;
}

}  // namespace tessarin::ui
