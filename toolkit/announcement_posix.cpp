#include <QAccessible>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include "toolkit/announcement.h"

namespace quillon {

// Qt before 6.8 has no event for an announcement; this is the signal that later versions send, on the same connection.
void SendAnnouncement(QWidget* speaker, const QString& text) {
  const QDBusConnection bus(QStringLiteral("a11y"));
  if (!bus.isConnected()) return;
  constexpr int kPolite = 1;
  const QAccessible::Id id = QAccessible::uniqueId(QAccessible::queryAccessibleInterface(speaker));
  QDBusMessage signal =
      QDBusMessage::createSignal(QStringLiteral("/org/a11y/atspi/accessible/%1").arg(id),
                                 QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("Announcement"));
  signal << QString() << kPolite << 0 << QVariant::fromValue(QDBusVariant(text)) << QVariantMap();
  bus.send(signal);
}

}  // namespace quillon
