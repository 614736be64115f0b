#pragma once

// Announcements as the system's screen readers hear them.

#include <QString>
#include <QWidget>

namespace quillon {

/// Has a screen reader say the text when it has said what it is at, as from that control, which shows. Nothing happens
/// where none listens.
void SendAnnouncement(QWidget* speaker, const QString& text);

}  // namespace quillon
