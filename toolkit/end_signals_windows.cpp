#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <utility>
#include <windows.h>

#include "toolkit/end_signals.h"

namespace quillon {

// The system ends the process once the message is answered, so everything is done before that.
class EndSignals::Watch final : public QAbstractNativeEventFilter {
 public:
  explicit Watch(std::function<void()> end) : end_(std::move(end)) { qGuiApp->installNativeEventFilter(this); }

  bool nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr* /*result*/) override {
    const auto* const told = static_cast<const MSG*>(message);
    // Sent to each window of the process; also sent, with 0, if the session goes on after all.
    if (told->message == WM_ENDSESSION && told->wParam != 0 && !std::exchange(isEnding_, true)) end_();
    return false;
  }

 private:
  std::function<void()> end_;
  bool isEnding_ = false;
};

EndSignals::EndSignals(std::function<void()> end) : watch_(std::make_unique<Watch>(std::move(end))) {}

EndSignals::~EndSignals() = default;

}  // namespace quillon
