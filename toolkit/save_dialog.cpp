#include "toolkit/save_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

#include "support/file_names.h"
#include "support/files.h"
#include "support/joined_text.h"
#include "toolkit/message_dialogs.h"
#include "toolkit/single_line.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"
#include "toolkit/wheel_focus.h"

namespace quillon {
namespace {

constexpr std::size_t kLongestName = 255;  // of a file, in bytes: every system allows as many

// The dialog's "caption | the files it lists" in Qt's form, with the list in brackets.
QString NameFilter(std::string_view filter) {
  const auto bar = filter.find('|');
  return ToQt(filter.substr(0, bar)).trimmed() + QStringLiteral(" (%1)").arg(ToQt(filter.substr(bar + 1)).trimmed());
}

// Qt's own dialog, since those of the desktops keep lists of recent files. It would read quotes in a name as delimiters
// of several names; here they are part of the name.
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
    const std::string bytes = FromQt(name);
    if (bytes.empty() || bytes.size() > kLongestName) return;  // no file can have this name
    if (const std::string_view fault = NameFault(bytes); !fault.empty()) {
      MessageDialogs().Show(
          {.text = Joined({"The name ", fault, ". Please choose another one."}), .icon = MessageIcon::kExclamation});
      return;
    }
    fileName_ = file.absoluteFilePath();
    QDialog::accept();  // NOLINT(bugprone-parent-virtual-call): QFileDialog's would look for marks in the name
  }

 private:
  QLineEdit* line_ = nullptr;
  QString fileName_;
};

// A path to a folder for Qt, whose file names are Unicode. A path that is not UTF-8, which only POSIX has, is reached
// through a file descriptor of this process during the object's lifetime.
class FolderForQt {
 public:
  explicit FolderForQt(const std::string& path) : path_(path), name_(ToQt(path)) {
    if (FromQt(name_) == path) return;
    hold_ = SystemFileCalls().Open(path, OpenFor::kListing, 0);
    if (hold_ >= 0) name_ = QStringLiteral("/proc/self/fd/%1").arg(hold_);
  }
  Q_DISABLE_COPY_MOVE(FolderForQt)
  ~FolderForQt() {
    if (hold_ >= 0) SystemFileCalls().Close(hold_);
  }

  [[nodiscard]] const QString& Name() const { return name_; }
  [[nodiscard]] QString NameOf(const std::string& file) const {
    const bool within = file.starts_with(path_ + '/');
    return within ? name_ + ToQt(std::string_view(file).substr(path_.size())) : ToQt(file);
  }
  [[nodiscard]] std::string BytesOf(const QString& file) const {
    const bool within = file.startsWith(name_ + QLatin1Char('/'));
    return within ? path_ + FromQt(file.mid(name_.size())) : FromQt(file);
  }

 private:
  std::string path_;
  QString name_;
  int hold_ = -1;
};

}  // namespace

std::filesystem::path AskFileName(QWidget& parent, const SaveQuestion& question) {
  const FolderForQt folder(question.Folder);
  FileNameDialog box(&parent, ToQt(question.Title), folder.Name(), NameFilter(question.Filter));
  if (!question.Offered.empty()) box.selectFile(folder.NameOf(question.Offered));
  return box.exec() == QDialog::Accepted ? PathOf(folder.BytesOf(box.FileName())) : std::filesystem::path();
}

}  // namespace quillon
