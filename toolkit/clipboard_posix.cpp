#include <QAbstractNativeEventFilter>
#include <QClipboard>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

#include "toolkit/clipboard.h"

namespace quillon {
namespace {

constexpr std::chrono::seconds kPatience{1};

// Frees the X server's replies.
template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> Own(Reply* reply) {
  return {reply, &std::free};
}

xcb_atom_t Atom(xcb_connection_t* screen, std::string_view name) {
  const auto cookie = xcb_intern_atom(screen, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const auto reply = Own(xcb_intern_atom_reply(screen, cookie, nullptr));
  return reply == nullptr ? xcb_atom_t{XCB_ATOM_NONE} : reply->atom;
}

bool HasOwner(xcb_connection_t* screen, xcb_atom_t selection) {
  const auto reply = Own(xcb_get_selection_owner_reply(screen, xcb_get_selection_owner(screen, selection), nullptr));
  return reply != nullptr && reply->owner != XCB_NONE;
}

// A window that represents the program in the exchange and is never shown.
xcb_window_t MakeRequestor(xcb_connection_t* screen) {
  const xcb_window_t window = xcb_generate_id(screen);
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(screen)).data->root;
  xcb_create_window(screen, 0, window, root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0,
                    nullptr);
  return window;
}

// Ends the loop when the manager reports success.
class Answer : public QAbstractNativeEventFilter {
 public:
  Answer(xcb_window_t requestor, QEventLoop& loop) : requestor_(requestor), loop_(loop) {}

  bool nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr* /*result*/) override {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & 0x7FU) != XCB_SELECTION_NOTIFY) return false;
    const auto* notify = static_cast<const xcb_selection_notify_event_t*>(message);
    if (notify->requestor == requestor_) loop_.quit();
    return false;
  }

 private:
  xcb_window_t requestor_;
  QEventLoop& loop_;
};

}  // namespace

void HandOverClipboard() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || !QGuiApplication::clipboard()->ownsClipboard()) return;
  xcb_connection_t* screen = x11->connection();
  const xcb_atom_t manager = Atom(screen, "CLIPBOARD_MANAGER");
  if (!HasOwner(screen, manager)) return;

  const xcb_window_t requestor = MakeRequestor(screen);
  QEventLoop loop;
  Answer answer(requestor, loop);
  qGuiApp->installNativeEventFilter(&answer);
  const xcb_atom_t all = Atom(screen, "SAVE_TARGETS");
  xcb_convert_selection(screen, requestor, manager, all, all, XCB_CURRENT_TIME);
  xcb_flush(screen);
  // The manager requests the texts, and Qt answers from the loop.
  QTimer patience;
  QObject::connect(&patience, &QTimer::timeout, &loop, &QEventLoop::quit);
  patience.start(kPatience);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace quillon
