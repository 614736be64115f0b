#include "shell/screens/grid_image_view.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileDialog>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QUrl>

#include "shell/screens/main_layout.h"
#include "support/run_time_error.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

// How long a window that has closed may still be seen.
constexpr int kSettleMilliseconds = 250;

// The dialog's "what it says | the files it lists" in Qt's form, the list in brackets.
QString NameFilter(std::string_view filter) {
  const auto bar = filter.find('|');
  if (bar == std::string_view::npos) return ToQt(filter);
  return ToQt(filter.substr(0, bar)).trimmed() + QStringLiteral(" (%1)").arg(ToQt(filter.substr(bar + 1)).trimmed());
}

// The save dialog has just closed; what lay under it is drawn again before the screen is copied.
void WaitForTheScreen() {
  QEventLoop loop;
  QTimer timer;
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
  timer.start(kSettleMilliseconds);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

TwipRect GridImageView::GridContainer() const {
  return TwipsOf(controls_.ShapeAt("GridContainer").geometry());
}

std::string GridImageView::AskSaveName(const SaveDialog& dialog) {
  QFileDialog box(&form_, ToQt(dialog.Title), ToQt(dialog.StartFolder.string()), NameFilter(dialog.Filter));
  box.setAcceptMode(QFileDialog::AcceptSave);
  box.setFileMode(QFileDialog::AnyFile);
  box.setOption(QFileDialog::DontConfirmOverwrite);
  box.setOption(QFileDialog::HideNameFilterDetails);
  if (!dialog.FileName.empty()) box.selectFile(ToQt(dialog.FileName));
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return {};
  return FromQt(box.selectedFiles().constFirst());
}

std::string GridImageView::CaptureRegion(const CaptureRect& rect) {
  WaitForTheScreen();
  const Frame& grid = controls_.FrameAt("frameContent", kGridScreen);
  constexpr auto kPixel = static_cast<double>(kTwipsPerPixel);
  const PixelRect place = PixelsOf(rect, kPixel, kPixel);
  const QRect area(place.Left, place.Top, place.Width, place.Height);

  // Counted from the window, whose corner can stand between two device-independent pixels of the screen.
  const QPoint corner = grid.mapTo(&form_, area.topLeft());
  QPixmap copy = form_.screen()->grabWindow(form_.winId(), corner.x(), corner.y(), area.width(), area.height());
  if (copy.isNull()) copy = controls_.FrameAt("frameContent", kGridScreen).grab(area);

  QBuffer file;
  file.open(QIODevice::WriteOnly);
  copy.toImage().convertToFormat(QImage::Format_RGB32).save(&file, "BMP");
  return file.data().toStdString();
}

void GridImageView::OpenImage(const std::string& fileName) {
  if (QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(fileName)))) return;
  throw RunTimeError(RunTimeFault::kFileNotFound, "no program opens " + fileName);
}

}  // namespace quillon
