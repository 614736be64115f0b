#include "shell/screens/grid_image_view.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QEventLoop>
#include <QImage>
#include <QScreen>
#include <QTimer>
#include <utility>

#include "shell/grid_image.h"
#include "shell/start_up.h"
#include "support/files.h"
#include "support/folders.h"
#include "support/run_time_error.h"
#include "support/windows_1252.h"
#include "toolkit/browser.h"
#include "toolkit/placement.h"
#include "toolkit/save_dialog.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

// How long a closed window may remain visible.
constexpr int kSettleMilliseconds = 250;

// The save dialog has just closed; the window under it must be repainted before the screen is copied.
void WaitForTheScreen() {
  QEventLoop loop;
  QTimer timer;
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
  timer.start(kSettleMilliseconds);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

// In the desktop's image program.
void OpenImage(const std::filesystem::path& fileName) {
  if (QDesktopServices::openUrl(AddressOfFile(fileName))) return;
  throw RunTimeError(RunTimeFault::kFileNotFound, "no program opens " + TextOfFileName(fileName.string()));
}

}  // namespace

GridImageView::GridImageView(QWidget& form, const MainControls& controls, MessageBoxes& messages, ProgramFolder folder)
    : form_(form), controls_(controls), messages_(messages), folder_(std::move(folder)) {}

void GridImageView::Save() {
  MakeFolderIfMissing(SavedGridsFolderPath(folder_), *folder_.Calls);
  const std::filesystem::path fileName = AskFileName(form_, {.Title = kSaveImageTitle,
                                                             .Filter = kSaveImageFilter,
                                                             .Folder = SavedGridsFolderPath(folder_).string(),
                                                             .Offered = lastName_});
  if (fileName.empty()) return;

  lastName_ = fileName.string();
  ReplaceFile(fileName, CaptureGrid(), folder_.Path, *folder_.Calls);
  if (messages_.Show(OpenImageQuestion()) == MessageAnswer::kYes) OpenImage(fileName);
}

QPixmap GridImageView::Picture() const {
  Frame& panel = controls_.FrameAt("frameHover");
  const bool shown = panel.isVisible();
  panel.hide();
  QPixmap picture = controls_.FrameAt("frameContent", kGridScreen).grab(GridArea());
  panel.setVisible(shown);
  return picture;
}

// In pixels of the grid screen.
QRect GridImageView::GridArea() const {
  const CaptureRect rect = CaptureRectOf(PlaceOf(controls_.ShapeAt("GridContainer")));
  const PixelRect place = PixelsOf(rect, TwipsPerPixel(), TwipsPerPixel());
  return {place.Left, place.Top, place.Width, place.Height};
}

// A bitmap file of the screen's own pixels, including whatever covers the window; at a higher scale these are finer
// than the window's. If the screen cannot be copied, the window's own rendering instead. The focus mark is not in the
// picture, since the focus is cleared meanwhile.
std::string GridImageView::CaptureGrid() {
  QWidget* const focused = form_.focusWidget();
  form_.setFocus(Qt::OtherFocusReason);
  WaitForTheScreen();
  const QRect area = GridArea();

  // Relative to the window, whose corner may lie between two device-independent pixels of the screen.
  const Frame& grid = controls_.FrameAt("frameContent", kGridScreen);
  const QPoint corner = grid.mapTo(&form_, area.topLeft());
  QPixmap copy = form_.screen()->grabWindow(form_.winId(), corner.x(), corner.y(), area.width(), area.height());
  if (copy.isNull()) copy = controls_.FrameAt("frameContent", kGridScreen).grab(area);
  if (focused != nullptr) focused->setFocus(Qt::ActiveWindowFocusReason);

  QBuffer file;
  file.open(QIODevice::WriteOnly);
  copy.toImage().convertToFormat(QImage::Format_RGB32).save(&file, "BMP");
  return file.data().toStdString();
}

}  // namespace quillon
