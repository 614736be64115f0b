#pragma once

// Announcements through the system's screen readers.

#include <QString>
#include <QWidget>

namespace quillon {

/// Has a screen reader say the text after its current one, on behalf of that visible control, if one is listening.
void SendAnnouncement(QWidget* speaker, const QString& text);

}  // namespace quillon
