#include "shell/screens/grid_image_view.h"

#include <QBuffer>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <climits>
#include <dirent.h>
#include <memory>
#include <utility>

#include "shell/grid_image.h"
#include "shell/screens/main_layout.h"
#include "shell/start_up.h"
#include "support/files.h"
#include "support/folders.h"
#include "support/run_time_error.h"
#include "support/windows_1252.h"
#include "toolkit/browser.h"
#include "toolkit/placement.h"
#include "toolkit/single_line.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"
#include "toolkit/wheel_focus.h"

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

// Qt's own dialog: those of the desktops keep lists of recent files. It would read quotes in a name as marks round
// several names; here they are part of the one name.
class FileNameDialog : public QFileDialog {
 public:
  FileNameDialog(QWidget* parent, const QString& title, const QString& folder, const QString& filter)
      : QFileDialog(parent, title, folder, filter) {
    setOption(DontUseNativeDialog);
    setOption(HideNameFilterDetails);
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    resize(LinePixels(620), LinePixels(440));
    line_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    KeepToOneLine(*line_);
    for (QComboBox* list : findChildren<QComboBox*>())
      TurnByWheelWithFocusOnly(*list);
    QPushButton* save = findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save);
    connect(line_, &QLineEdit::textChanged, save, [save](const QString& text) { save->setEnabled(!text.isEmpty()); });
  }

  /// The path chosen.
  [[nodiscard]] QString FileName() const { return fileName_; }

  void accept() override {
    QString typed = line_->text();
    if (typed.isEmpty()) return;
    if (typed.startsWith(QStringLiteral("~/"))) typed.replace(0, 1, QDir::homePath());
    const QFileInfo file(directory(), typed);
    if (file.isDir()) {
      setDirectory(file.absoluteFilePath());
      line_->clear();
      return;
    }
    const QString name = file.fileName();
    if (name.isEmpty() || QFile::encodeName(name).size() > NAME_MAX) return;  // no file can be called so
    fileName_ = file.absoluteFilePath();
    QDialog::accept();  // NOLINT(bugprone-parent-virtual-call): QFileDialog's would look for marks in the name
  }

 private:
  QLineEdit* line_ = nullptr;
  QString fileName_;
};

// A folder as Qt knows it, whose names of files are Unicode. One with a path that is not UTF-8 is reached by way of
// this process's own hold on it, as long as this lives.
class FolderForQt {
 public:
  explicit FolderForQt(const std::string& path) : path_(path), name_(ToQt(path)) {
    if (FromQt(name_) == path) return;
    hold_.reset(opendir(path.c_str()));
    if (hold_ != nullptr) name_ = QStringLiteral("/proc/self/fd/%1").arg(dirfd(hold_.get()));
  }

  [[nodiscard]] const QString& Name() const { return name_; }
  [[nodiscard]] QString NameOf(const std::string& file) const {
    const bool within = file.starts_with(path_ + '/');
    return within ? name_ + ToQt(std::string_view(file).substr(path_.size())) : ToQt(file);
  }
  [[nodiscard]] std::string PathOf(const QString& file) const {
    const bool within = file.startsWith(name_ + QLatin1Char('/'));
    return within ? path_ + FromQt(file.mid(name_.size())) : FromQt(file);
  }

 private:
  struct Closer {
    void operator()(DIR* folder) const { closedir(folder); }
  };

  std::string path_;
  QString name_;
  std::unique_ptr<DIR, Closer> hold_;
};

// The save dialog has just closed; what lay under it is drawn again before the screen is copied.
void WaitForTheScreen() {
  QEventLoop loop;
  QTimer timer;
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
  timer.start(kSettleMilliseconds);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

// In the image program of the desktop.
void OpenImage(const std::string& fileName) {
  if (QDesktopServices::openUrl(AddressOfFile(fileName))) return;
  throw RunTimeError(RunTimeFault::kFileNotFound, "no program opens " + TextOfFileName(fileName));
}

}  // namespace

GridImageView::GridImageView(QWidget& form, const MainControls& controls, MessageBoxes& messages, ProgramFolder folder)
    : form_(form), controls_(controls), messages_(messages), folder_(std::move(folder)) {}

void GridImageView::Save() {
  MakeFolderIfMissing(SavedGridsFolderPath(folder_), *folder_.Calls);
  const std::string fileName = AskName();
  if (fileName.empty()) return;

  lastName_ = fileName;
  ReplaceFile(fileName, CaptureGrid(), folder_.Path, *folder_.Calls);
  if (messages_.Show(OpenImageQuestion()) == MessageAnswer::kYes) OpenImage(fileName);
}

// As it was typed: no extension is added, quotes are part of it, and a file that is there is no reason to ask. Empty if
// the dialog is cancelled.
std::string GridImageView::AskName() {
  const FolderForQt folder(SavedGridsFolderPath(folder_).string());
  FileNameDialog box(&form_, ToQt(kSaveImageTitle), folder.Name(), NameFilter(kSaveImageFilter));
  if (!lastName_.empty()) box.selectFile(folder.NameOf(lastName_));
  return box.exec() == QDialog::Accepted ? folder.PathOf(box.FileName()) : std::string();
}

// The pixels of the screen itself, whatever lies over the window there, as the bytes of a bitmap file. A screen that
// does not let itself be copied gives the window's own drawing instead. At a higher scale these are the screen's own,
// finer pixels. The mark of the focus is not part of the picture: nobody has the focus meanwhile.
std::string GridImageView::CaptureGrid() {
  QWidget* const focused = form_.focusWidget();
  form_.setFocus(Qt::OtherFocusReason);
  WaitForTheScreen();
  const CaptureRect rect = CaptureRectOf(PlaceOf(controls_.ShapeAt("GridContainer")));
  const Frame& grid = controls_.FrameAt("frameContent", kGridScreen);
  const PixelRect place = PixelsOf(rect, TwipsPerPixel(), TwipsPerPixel());
  const QRect area(place.Left, place.Top, place.Width, place.Height);

  // Counted from the window, whose corner can stand between two device-independent pixels of the screen.
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
