#pragma once

// A client of the accessibility bus that acts as a screen reader: it walks through the program's windows, asks what
// each part is, presses and checks, and receives announcements. It finds visible parts by role and name, as its user
// would.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QRect>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace quillon {

class ScreenReader : public QObject {
  Q_OBJECT

 public:
  /// Uses the session bus at that address, which has or will soon have the accessibility bus. std::runtime_error if
  /// there is none.
  explicit ScreenReader(const std::string& sessionBus);

  /// A part of the program. The role is the bus's name for it, such as "check box".
  struct Part {
    QString Path;
    std::string Role;
    std::string Name;
  };

  /// Finds the program with that process number; false until it is on the bus.
  [[nodiscard]] bool Meet(pid_t process);

  /// The visible part; nothing if there is none.
  [[nodiscard]] std::optional<Part> Find(std::string_view role, std::string_view name) const;
  /// The same among all parts, including hidden ones.
  [[nodiscard]] std::optional<Part> FindAnywhere(std::string_view role, std::string_view name) const;

  [[nodiscard]] std::string Description(const Part& part) const;
  [[nodiscard]] std::string Text(const Part& part) const;
  [[nodiscard]] bool Shows(const Part& part) const;
  [[nodiscard]] bool IsChecked(const Part& part) const;
  [[nodiscard]] bool IsHalfChecked(const Part& part) const;
  [[nodiscard]] bool HasFocus(const Part& part) const;

  /// Its place on the screen.
  [[nodiscard]] QRect PlaceOf(const Part& part) const;

  /// The part that last reported the focus. An open menu is not part of any window, and only found this way.
  [[nodiscard]] Part Focused() const;

  /// Does its first action, a click; does nothing if it has none.
  void Press(const Part& part) const;
  void Write(const Part& part, std::string_view text) const;
  void GiveFocus(const Part& part) const;

  /// The announcements since the last call.
  [[nodiscard]] std::vector<std::string> TakeAnnouncements();
  /// The paths of the parts that have reported a change since the last call.
  [[nodiscard]] std::vector<QString> TakeSpeakers();
  [[nodiscard]] bool Shows(const QString& path) const;

 private Q_SLOTS:
  void Hear(const QDBusMessage& event);

 private:
  QList<QVariant> Ask(const QString& path, const QString& interface, const QString& method,
                      const QList<QVariant>& arguments = {}) const;
  [[nodiscard]] QVariant Property(const QString& path, const QString& name) const;
  [[nodiscard]] std::string RoleOf(const QString& path) const;
  [[nodiscard]] bool Is(const QString& path, unsigned state) const;
  [[nodiscard]] std::optional<Part> Find(const QString& path, std::string_view role, std::string_view name,
                                         bool hidden) const;

  QDBusConnection bus_;
  QString program_;  // its name on the bus
  std::vector<std::string> announcements_;
  std::vector<QString> speakers_;
  QString focused_;
};

}  // namespace quillon
