#include <QLineEdit>
#include <array>
#include <gtest/gtest.h>

#include "testing/expected_boxes.h"
#include "testing/temporary_folder.h"
#include "toolkit/save_dialog.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

// As it is, or with another name typed. More is tested where pictures and tables are saved.
TEST(SaveDialog, GivesThePathThatItOffers) {
  const TemporaryFolder temporary;
  for (const char* name : {"mine", "other", "K\xE4se"})
    std::filesystem::create_directory(temporary.Path() / name);
  struct Row {
    const char* Folder;
    const char* Offered;
    const char* Typed;
    const char* Path;
  };
  constexpr std::array kRows = {
      Row{"mine", "mine/grid.bmp", "", "mine/grid.bmp"},
      Row{"mine", "other/grid.bmp", "", "other/grid.bmp"},
      Row{"mine", "other/grid.bmp", "best.bmp", "other/best.bmp"},
      Row{"K\xE4se", "K\xE4se/grid.bmp", "", "K\xE4se/grid.bmp"},  // no UTF-8
      Row{"K\xE4se", "K\xE4se/grid.bmp", "best.bmp", "K\xE4se/best.bmp"},
  };
  for (const Row& row : kRows) {
    ExpectDialog([&row](QDialog& dialog) {
      auto* line = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      EXPECT_EQ(line->text(), QStringLiteral("grid.bmp"));
      if (*row.Typed != '\0') line->setText(QString::fromLatin1(row.Typed));
      dialog.accept();
    });
    QWidget parent;
    EXPECT_EQ(AskFileName(parent, {.Title = "Save",
                                   .Filter = "Picture | *.bmp",
                                   .Folder = (temporary.Path() / row.Folder).string(),
                                   .Offered = (temporary.Path() / row.Offered).string()}),
              temporary.Path() / row.Path);
    VerifyExpectedBoxes();
  }
}

}  // namespace
}  // namespace quillon
