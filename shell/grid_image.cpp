#include "shell/grid_image.h"

#include "support/files.h"
#include "support/folders.h"
#include "support/rounding.h"

namespace quillon {
namespace {

std::int32_t Whole(double value) {
  return static_cast<std::int32_t>(RoundTo(value, 0));
}

std::int32_t WholeTwips(float twips) {
  return Whole(static_cast<double>(twips));
}

bool WantsToSeeIt(MessageBoxes& messages) {
  return messages.Show({"Open Now?", "Screen shot saved successfully.\r\n\r\nDo you want to open the screen shot now?",
                        MessageIcon::kQuestion, MessageButtons::kYesNo}) == MessageAnswer::kYes;
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

std::string SaveGridImage(const std::string& earlierName, GridImageWindow& window, const ProgramFolder& folder) {
  const std::filesystem::path savedGrids = folder.Path / "Saved Grids";
  MakeFolderIfMissing(savedGrids, *folder.Calls);

  const std::string fileName =
      window.AskSaveName({"24-bit Bitmap | *.bmp", "Save Expected Value Grid", savedGrids, earlierName});
  if (fileName.empty()) return earlierName;

  const std::string bitmap = window.CaptureRegion(CaptureRectOf(window.GridContainer()));
  ReplaceFile(fileName, bitmap, folder.Path, *folder.Calls);
  if (WantsToSeeIt(window.Messages())) window.OpenImage(fileName);
  return fileName;
}

}  // namespace quillon
