#include "platform/qt/ControlGroups.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QList>
#include <QString>
#include <utility>

#include "base/Log.h"

namespace tessarin::ui {
namespace {

template <typename Content>
struct Named {
  QString name;
  Content content;
};
using Property = Named<QDBusVariant>;
/// Of which a call may bring more; ours never does.
using AuxiliaryUnit = Named<QList<Property>>;

template <typename Content>
QDBusArgument& operator<<(QDBusArgument& to, const Named<Content>& named) {
  to.beginStructure();
  to << named.name << named.content;
  to.endStructure();
  return to;
}

template <typename Content>
const QDBusArgument& operator>>(const QDBusArgument& from, Named<Content>& named) {
  from.beginStructure();
  from >> named.name >> named.content;
  from.endStructure();
  return from;
}

template <typename Value>
Property property(const char* name, const Value& value) {
  return {name, QDBusVariant(QVariant::fromValue(value))};
}

/// Among what the desktop itself runs on, which nobody freezes together with applications.
QList<Property> propertiesOfGroup(pid_t process) {
  return {property("Description", QString("Watches over the keyboard for Tessarin")),
          property("Slice", QString("session.slice")), property("CollectMode", QString("inactive-or-failed")),
          property("PIDs", QList<uint>{static_cast<uint>(process)})};
}

/// Of the manager, or of the bus.
bool isAbsence(const QString& error) {
  return error == QStringLiteral("org.freedesktop.DBus.Error.NameHasNoOwner") ||
         error == QStringLiteral("org.freedesktop.DBus.Error.ServiceUnknown") ||
         error == QStringLiteral("org.freedesktop.DBus.Error.Disconnected");
}

}  // namespace

void ControlGroups::separate(pid_t child) {
  qDBusRegisterMetaType<Property>();
  qDBusRegisterMetaType<QList<Property>>();
  qDBusRegisterMetaType<AuxiliaryUnit>();
  qDBusRegisterMetaType<QList<AuxiliaryUnit>>();
  QDBusMessage request =
      QDBusMessage::createMethodCall("org.freedesktop.systemd1", "/org/freedesktop/systemd1",
                                     "org.freedesktop.systemd1.Manager", "StartTransientUnit");
  request << QString("tessarin-keywatch-%1.scope").arg(child) << QString("fail")
          << QVariant::fromValue(propertiesOfGroup(child)) << QVariant::fromValue(QList<AuxiliaryUnit>());
  request.setAutoStartService(false);
  auto* call = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(request), this);
  connect(call, &QDBusPendingCallWatcher::finished, this, &ControlGroups::handleAnswer);
}

void ControlGroups::handleAnswer(QDBusPendingCallWatcher* call) {
  call->deleteLater();
  const QString error = call->error().name();
  if (!call->isError() || isAbsence(error) || std::exchange(hasComplained_, true)) return;
  log("KeyWatch", "The keyboard's watcher stays in our control group, and would be frozen with it: " +
                      error.toStdString());
}

}  // namespace tessarin::ui
