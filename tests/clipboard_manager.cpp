// A clipboard manager for tests: it prints "ready", and when a program asks it to take over the clipboard, it prints
// the contents as the data type of its argument, such as "UTF8_STRING". With the argument "silent" it never answers.

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <xcb/xcb.h>

namespace {

class Manager {
 public:
  explicit Manager(std::string_view kind) : kind_(kind), silent_(kind == "silent") {
    xcb_screen_t* root = xcb_setup_roots_iterator(xcb_get_setup(screen_)).data;
    xcb_create_window(screen_, 0, window_, root->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                      0, nullptr);
    xcb_set_selection_owner(screen_, window_, Atom("CLIPBOARD_MANAGER"), XCB_CURRENT_TIME);
    xcb_flush(screen_);
  }

  void Run() {
    std::cout << "ready\n" << std::flush;
    while (const auto event =
               std::unique_ptr<xcb_generic_event_t, decltype(&std::free)>(xcb_wait_for_event(screen_), &std::free)) {
      const unsigned kind = event->response_type & 0x7FU;
      if (kind == XCB_SELECTION_REQUEST && !silent_) {
        request_ = *reinterpret_cast<const xcb_selection_request_event_t*>(event.get());
        xcb_convert_selection(screen_, window_, Atom("CLIPBOARD"), Atom(kind_), Atom("TAKEN"), XCB_CURRENT_TIME);
      } else if (kind == XCB_SELECTION_NOTIFY) {
        std::cout << Taken() << std::flush;
        Answer();
      }
      xcb_flush(screen_);
    }
  }

 private:
  [[nodiscard]] xcb_atom_t Atom(std::string_view name) const {
    const auto cookie = xcb_intern_atom(screen_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    return std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)>(
               xcb_intern_atom_reply(screen_, cookie, nullptr), &std::free)
        ->atom;
  }

  [[nodiscard]] std::string Taken() const {
    constexpr std::uint32_t kLimit = 1U << 20U;
    const auto cookie = xcb_get_property(screen_, 1, window_, Atom("TAKEN"), XCB_GET_PROPERTY_TYPE_ANY, 0, kLimit);
    const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply(
        xcb_get_property_reply(screen_, cookie, nullptr), &std::free);
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
  }

  void Answer() const {
    xcb_selection_notify_event_t notify{};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.requestor = request_.requestor;
    notify.selection = request_.selection;
    notify.target = request_.target;
    notify.property = request_.property;
    notify.time = request_.time;
    xcb_send_event(screen_, 0, request_.requestor, 0, reinterpret_cast<const char*>(&notify));
  }

  std::string_view kind_;
  bool silent_;
  xcb_connection_t* screen_ = xcb_connect(nullptr, nullptr);
  xcb_window_t window_ = xcb_generate_id(screen_);
  xcb_selection_request_event_t request_{};
};

}  // namespace

int main(int argc, char** argv) {
  Manager(argc > 1 ? argv[1] : "UTF8_STRING").Run();
  return EXIT_SUCCESS;
}
