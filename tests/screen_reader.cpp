#include "tests/screen_reader.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusVariant>
#include <stdexcept>
#include <utility>

namespace quillon {
namespace {

const QString kRoot = QStringLiteral("/org/a11y/atspi/accessible/root");
const QString kRegistry = QStringLiteral("org.a11y.atspi.Registry");
const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString kEvents = QStringLiteral("org.a11y.atspi.Event.Object");

// The bus's numbers for states.
constexpr unsigned kChecked = 4;
constexpr unsigned kFocused = 12;
constexpr unsigned kShowing = 25;
constexpr unsigned kIndeterminate = 32;

QDBusMessage Call(const QDBusConnection& bus, const QString& service, const QString& path, const QString& interface,
                  const QString& method, const QList<QVariant>& arguments = {}) {
  QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
  message.setArguments(arguments);
  return bus.call(message);
}

QDBusConnection ConnectToAccessibilityBus(const std::string& sessionBus) {
  const QString address = QString::fromStdString(sessionBus);
  const QDBusConnection session = QDBusConnection::connectToBus(address, address);
  const QDBusMessage answer = Call(session, QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                   QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
  if (answer.type() != QDBusMessage::ReplyMessage) {
    throw std::runtime_error("there is no accessibility bus: " + answer.errorMessage().toStdString());
  }
  const QString accessible = answer.arguments().value(0).toString();
  return QDBusConnection::connectToBus(accessible, accessible);
}

struct Reference {
  QString Service;
  QString Path;
};

// "a(so)"
std::vector<Reference> References(const QVariant& list) {
  std::vector<Reference> references;
  const auto argument = list.value<QDBusArgument>();
  argument.beginArray();
  while (!argument.atEnd()) {
    Reference reference;
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> reference.Service >> path;
    argument.endStructure();
    reference.Path = path.path();
    references.push_back(std::move(reference));
  }
  argument.endArray();
  return references;
}

}  // namespace

ScreenReader::ScreenReader(const std::string& sessionBus) : bus_(ConnectToAccessibilityBus(sessionBus)) {
  // Programs only send events that somebody has registered for.
  for (const char* events : {"object:", "focus:"}) {
    Call(bus_, kRegistry, QStringLiteral("/org/a11y/atspi/registry"), kRegistry, QStringLiteral("RegisterEvent"),
         {QString::fromLatin1(events)});
  }
}

bool ScreenReader::Meet(pid_t process) {
  const QDBusMessage answer = Call(bus_, kRegistry, kRoot, kAccessible, QStringLiteral("GetChildren"));
  if (answer.type() != QDBusMessage::ReplyMessage) return false;
  for (const Reference& program : References(answer.arguments().value(0))) {
    const QDBusMessage owner =
        Call(bus_, QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
             QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetConnectionUnixProcessID"), {program.Service});
    if (owner.arguments().value(0).toInt() != process) continue;
    program_ = program.Service;
    return bus_.connect(program_, QString(), kEvents, QString(), this, SLOT(Hear(QDBusMessage)));
  }
  return false;
}

void ScreenReader::Hear(const QDBusMessage& event) {
  if (event.member() == QStringLiteral("Announcement")) {
    const auto text = event.arguments().value(3).value<QDBusVariant>();
    announcements_.push_back(text.variant().toString().toStdString());
  }
  const bool tellsOfFocus = event.arguments().value(0).toString() == QStringLiteral("focused");
  if (tellsOfFocus && event.arguments().value(1).toInt() == 1) focused_ = event.path();
  // Its states are reported before it is hidden, too.
  const bool comesOrGoes =
      event.member() == QStringLiteral("StateChanged") || event.member() == QStringLiteral("ChildrenChanged");
  if (!comesOrGoes) speakers_.push_back(event.path());
}

std::vector<std::string> ScreenReader::TakeAnnouncements() {
  QCoreApplication::processEvents();
  return std::exchange(announcements_, {});
}

std::vector<QString> ScreenReader::TakeSpeakers() {
  QCoreApplication::processEvents();
  return std::exchange(speakers_, {});
}

QList<QVariant> ScreenReader::Ask(const QString& path, const QString& interface, const QString& method,
                                  const QList<QVariant>& arguments) const {
  return Call(bus_, program_, path, interface, method, arguments).arguments();
}

QVariant ScreenReader::Property(const QString& path, const QString& name) const {
  const QList<QVariant> answer =
      Ask(path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"), {kAccessible, name});
  return answer.value(0).value<QDBusVariant>().variant();
}

bool ScreenReader::Is(const QString& path, unsigned state) const {
  const QList<QVariant> answer = Ask(path, kAccessible, QStringLiteral("GetState"));
  const auto words = qdbus_cast<QList<uint>>(answer.value(0));
  return (words.value(static_cast<qsizetype>(state / 32)) >> state % 32 & 1U) != 0;
}

std::string ScreenReader::RoleOf(const QString& path) const {
  return Ask(path, kAccessible, QStringLiteral("GetRoleName")).value(0).toString().toStdString();
}

std::optional<ScreenReader::Part> ScreenReader::Find(std::string_view role, std::string_view name) const {
  return Find(kRoot, role, name, false);
}

std::optional<ScreenReader::Part> ScreenReader::FindAnywhere(std::string_view role, std::string_view name) const {
  return Find(kRoot, role, name, true);
}

std::optional<ScreenReader::Part> ScreenReader::Find(const QString& path, std::string_view role, std::string_view name,
                                                     bool hidden) const {
  const QList<QVariant> children = Ask(path, kAccessible, QStringLiteral("GetChildren"));
  if (children.isEmpty() || !children.first().canConvert<QDBusArgument>()) return std::nullopt;
  for (const Reference& child : References(children.first())) {
    if (!hidden && !Shows(child.Path)) continue;
    if (Property(child.Path, QStringLiteral("Name")).toString().toStdString() == name) {
      const std::string itsRole = RoleOf(child.Path);
      if (itsRole == role) return Part{child.Path, itsRole, std::string(name)};
    }
    if (std::optional<Part> found = Find(child.Path, role, name, hidden)) return found;
  }
  return std::nullopt;
}

std::string ScreenReader::Description(const Part& part) const {
  return Property(part.Path, QStringLiteral("Description")).toString().toStdString();
}

std::string ScreenReader::Text(const Part& part) const {
  return Ask(part.Path, QStringLiteral("org.a11y.atspi.Text"), QStringLiteral("GetText"), {0, -1})
      .value(0)
      .toString()
      .toStdString();
}

bool ScreenReader::Shows(const Part& part) const {
  return Shows(part.Path);
}

bool ScreenReader::Shows(const QString& path) const {
  return Is(path, kShowing);
}

bool ScreenReader::IsChecked(const Part& part) const {
  return Is(part.Path, kChecked);
}

bool ScreenReader::IsHalfChecked(const Part& part) const {
  return Is(part.Path, kIndeterminate);
}

bool ScreenReader::HasFocus(const Part& part) const {
  return Is(part.Path, kFocused);
}

QRect ScreenReader::PlaceOf(const Part& part) const {
  constexpr unsigned kOnScreen = 0;
  const QVariant answer =
      Ask(part.Path, QStringLiteral("org.a11y.atspi.Component"), QStringLiteral("GetExtents"), {kOnScreen}).value(0);
  const auto extents = answer.value<QDBusArgument>();  // "(iiii)"
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  extents.beginStructure();
  extents >> left >> top >> width >> height;
  extents.endStructure();
  return {left, top, width, height};
}

ScreenReader::Part ScreenReader::Focused() const {
  QCoreApplication::processEvents();
  return {focused_, RoleOf(focused_), Property(focused_, QStringLiteral("Name")).toString().toStdString()};
}

// Without waiting for its end, which may be a box that waits for an answer.
void ScreenReader::Press(const Part& part) const {
  QDBusMessage press = QDBusMessage::createMethodCall(program_, part.Path, QStringLiteral("org.a11y.atspi.Action"),
                                                      QStringLiteral("DoAction"));
  press.setArguments({0});
  bus_.send(press);
}

void ScreenReader::Write(const Part& part, std::string_view text) const {
  Ask(part.Path, QStringLiteral("org.a11y.atspi.EditableText"), QStringLiteral("SetTextContents"),
      {QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))});
}

void ScreenReader::GiveFocus(const Part& part) const {
  Ask(part.Path, QStringLiteral("org.a11y.atspi.Component"), QStringLiteral("GrabFocus"));
}

}  // namespace quillon
