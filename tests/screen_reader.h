#pragma once

// A client of the accessibility bus, which does what a screen reader does: it walks through the windows of the program,
// asks what each part is, presses and checks, and hears what is announced. Parts are found by role and name among those
// that show, as its user finds them.

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
  /// By the session bus of that address, on which the accessibility bus is or is about to be. std::runtime_error where
  /// there is none.
  explicit ScreenReader(const std::string& sessionBus);

  /// One part of the program. The role is the bus's name for it, such as "check box".
  struct Part {
    QString Path;
    std::string Role;
    std::string Name;
  };

  /// The program with that process; false until the bus knows it.
  [[nodiscard]] bool Meet(pid_t process);

  /// The part that shows, nothing where there is none.
  [[nodiscard]] std::optional<Part> Find(std::string_view role, std::string_view name) const;
  /// The same among all parts, those that are hidden, too.
  [[nodiscard]] std::optional<Part> FindAnywhere(std::string_view role, std::string_view name) const;

  [[nodiscard]] std::string Description(const Part& part) const;
  [[nodiscard]] std::string Text(const Part& part) const;
  [[nodiscard]] bool Shows(const Part& part) const;
  [[nodiscard]] bool IsChecked(const Part& part) const;
  [[nodiscard]] bool IsHalfChecked(const Part& part) const;
  [[nodiscard]] bool HasFocus(const Part& part) const;

  /// Where it is on the screen.
  [[nodiscard]] QRect PlaceOf(const Part& part) const;

  /// The part that told last that it has the focus. An open menu is no part of any window, and only heard this way.
  [[nodiscard]] Part Focused() const;

  /// Its first action, that of a click; nothing where it offers none.
  void Press(const Part& part) const;
  void Write(const Part& part, std::string_view text) const;
  void GiveFocus(const Part& part) const;

  /// What was announced since the last call.
  [[nodiscard]] std::vector<std::string> TakeAnnouncements();
  /// The paths of the parts that have told of a change in themselves since the last call.
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
