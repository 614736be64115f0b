#include "shell/grid_image.h"

#include "support/rounding.h"

namespace quillon {
namespace {

std::int32_t Whole(double value) {
  return static_cast<std::int32_t>(RoundTo(value, 0));
}

std::int32_t WholeTwips(float twips) {
  return Whole(static_cast<double>(twips));
}

}  // namespace

CaptureRect CaptureRectOf(const TwipRect& rect) {
  return {WholeTwips(rect.Left), WholeTwips(rect.Top), WholeTwips(rect.Left + rect.Width),
          WholeTwips(rect.Top + rect.Height)};
}

PixelRect PixelsOf(const CaptureRect& rect, double twipsPerPixelX, double twipsPerPixelY) {
  return {Whole(rect.Left / twipsPerPixelX), Whole(rect.Top / twipsPerPixelY),
          Whole((rect.Right - rect.Left) / twipsPerPixelX), Whole((rect.Bottom - rect.Top) / twipsPerPixelY)};
}

Message OpenImageQuestion() {
  return {std::string(kOpenNowTitle), "Screen shot saved successfully.\r\n\r\nDo you want to open the screen shot now?",
          MessageIcon::kQuestion, MessageButtons::kYesNo};
}

}  // namespace quillon
