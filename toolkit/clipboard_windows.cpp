#include <QClipboard>
#include <QGuiApplication>
#include <ole2.h>

#include "toolkit/clipboard.h"

namespace quillon {

void HandOverClipboard() {
  if (QGuiApplication::clipboard()->ownsClipboard()) OleFlushClipboard();
}

}  // namespace quillon
