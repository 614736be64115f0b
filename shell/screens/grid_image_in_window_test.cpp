#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QImageReader>
#include <QPushButton>
#include <QScreen>
#include <QWheelEvent>
#include <set>

#include "testing/main_stage.h"
#include "testing/opened_files.h"
#include "toolkit/focus_mark.h"
#include "toolkit/placement.h"

namespace quillon {
namespace {

const Message kSaved = {.title = "Open Now?",
                        .text = "Screen shot saved successfully.\r\n\r\nDo you want to open the screen shot now?",
                        .icon = MessageIcon::kQuestion,
                        .buttons = MessageButtons::kYesNo};

class GridImageInWindow : public MainFormTest {
 protected:
  void SetUp() override {
    MainFormTest::SetUp();
    Form.move(0, 0);  // so that the whole region is on the screen
    RunEquity("Tight");
  }

  /// Saves under a name and declines to open the picture.
  void SaveAs(const std::string& typed) {
    ExpectFileName(typed);
    ExpectSaving();
  }
  void ExpectSaving(MessageAnswer open = MessageAnswer::kNo) {
    ExpectMessageBox(kSaved, open);
    Click("imgSave");
    VerifyExpectedBoxes();
    ComeToFront();
  }

  [[nodiscard]] static std::filesystem::path Home() { return FromQt(QDir::homePath()); }
  /// All files except the program's.
  [[nodiscard]] std::set<std::filesystem::path> FilesAtHome() const {
    std::set<std::filesystem::path> files;
    for (auto entry = std::filesystem::recursive_directory_iterator(Home()); entry != end(entry); ++entry) {
      if (entry->path() == Program.Folder().Path) {
        entry.disable_recursion_pending();
      } else {
        files.insert(entry->path());
      }
    }
    return files;
  }

  [[nodiscard]] static QImage ImageOf(const std::filesystem::path& file) {
    QImageReader reader(ToQt(file.string()));
    reader.setFormat("BMP");
    reader.setDecideFormatFromContent(false);
    return reader.read();
  }
};

TEST_F(GridImageInWindow, IsABitmapOfTheRegionUnderTheNameTyped) {
  const auto before = FilesAtHome();
  SaveAs("Shove grid");

  EXPECT_EQ(FilesAtHome(), before) << "nothing is left outside the program's folder";
  EXPECT_FALSE(std::filesystem::exists(SavedGrids() / "Shove grid.bmp")) << "no extension is added";
  const QImage image = ImageOf(SavedGrids() / "Shove grid");
  EXPECT_EQ(image.size(), QSize(409, 521));
  const QImage shown = Get("frameContent", kGridScreen).grab(QRect(16, 12, 409, 521)).toImage();
  EXPECT_EQ(image.convertToFormat(QImage::Format_RGB32), shown.convertToFormat(QImage::Format_RGB32));
}

TEST_F(GridImageInWindow, HasNoPanelOfTheKeyboardsInIt) {
  Get("lblCards", 0).setFocus(Qt::TabFocusReason);
  Press(Qt::Key_Right);
  ASSERT_TRUE(Shows("frameHover"));
  ASSERT_TRUE(Form.findChild<FocusMark*>()->isVisible());
  SaveAs("grid");

  EXPECT_FALSE(Shows("frameHover")) << "nor does it return with the window";
  const QImage saved = ImageOf(SavedGrids() / "grid").convertToFormat(QImage::Format_RGB32);
  const QImage shown = Get("frameContent", kGridScreen).grab(saved.rect().translated(16, 12)).toImage();
  EXPECT_EQ(saved, shown.convertToFormat(QImage::Format_RGB32)) << "nor is the cell's focus mark in it";
  EXPECT_EQ(Form.focusWidget(), &Get("lblCards", 1));
}

TEST_F(GridImageInWindow, TheDialogIsAsDesigned) {
  std::filesystem::remove_all(SavedGrids());
  ExpectDialog([this](QDialog& dialog) {
    const auto& box = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_TRUE(std::filesystem::is_directory(SavedGrids())) << "recreated";
    EXPECT_EQ(FromQt(box.windowTitle()), "Save Expected Value Grid");
    EXPECT_EQ(FromQt(box.directory().absolutePath()), SavedGrids().string());
    EXPECT_EQ(box.nameFilters().join(QLatin1Char(';')), QStringLiteral("24-bit Bitmap (*.bmp)"));
    EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_TRUE(box.testOption(QFileDialog::DontUseNativeDialog));
    EXPECT_EQ(box.defaultSuffix(), QString());
    EXPECT_EQ(NameLineOf(dialog).text(), QString());
    dialog.reject();
  });
  Click("imgSave");
}

TEST_F(GridImageInWindow, ACancelAfterASaveSavesNothing) {
  SaveAs("grid.bmp");
  std::ofstream(SavedGrids() / "grid.bmp") << "gone";

  ComeToFront();
  ExpectDialog([](QDialog& dialog) {
    EXPECT_EQ(NameLineOf(dialog).text(), QStringLiteral("grid.bmp"));
    dialog.reject();
  });
  Click("imgSave");
  EXPECT_EQ(BytesOf(SavedGrids() / "grid.bmp"), "gone");
}

// Typed and saved by keyboard or button, as a user would. Each text names a single file.
TEST_F(GridImageInWindow, ANameIsTakenAsTyped) {
  bool byKey = false;
  for (const std::string typed :
       {"my \"best\" grid.bmp", "\"\"", "~grid", " grid ", "%1 & 100%;.bmp", "one\tline.bmp\r\nsecond"}) {
    const std::string name = typed.starts_with("one") ? "one line.bmp" : typed;
    byKey = !byKey;
    ExpectDialog([&](QDialog& dialog) {
      NameLineOf(dialog).setText(ToQt(typed));
      QPushButton* save = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save);
      EXPECT_TRUE(save->isEnabled());
      if (byKey) {
        QTest::keyClick(&NameLineOf(dialog), Qt::Key_Return);
      } else {
        save->click();
      }
    });
    ExpectSaving();
    EXPECT_EQ(ImageOf(SavedGrids() / name).size(), QSize(409, 521)) << name;
    std::filesystem::remove(SavedGrids() / name);
    EXPECT_TRUE(std::filesystem::is_empty(SavedGrids())) << "nothing else was written";
  }
}

TEST_F(GridImageInWindow, ANameThatNoFileCanHaveLeavesTheDialogOpen) {
  ExpectDialog([](QDialog& dialog) {
    for (const std::string& name : {std::string(), std::string("new/"), std::string(256, 'x'), std::string(".")}) {
      NameLineOf(dialog).setText(ToQt(name));
      dialog.accept();
      EXPECT_TRUE(dialog.isVisible()) << name;
    }
    dialog.reject();
  });
  Click("imgSave");
  EXPECT_TRUE(std::filesystem::is_empty(SavedGrids()));
}

TEST_F(GridImageInWindow, AFolderIsEnteredAndATildeIsTheHome) {
  std::filesystem::create_directory(SavedGrids() / "mine");
  ExpectDialog([](QDialog& dialog) {
    NameLineOf(dialog).setText(QStringLiteral("mine"));
    dialog.accept();
    EXPECT_EQ(NameLineOf(dialog).text(), QString());
    NameLineOf(dialog).setText(QStringLiteral("grid.bmp"));
    dialog.accept();
  });
  ExpectSaving();
  EXPECT_TRUE(std::filesystem::exists(SavedGrids() / "mine" / "grid.bmp"));

  ComeToFront();
  SaveAs("~/at home.bmp");
  EXPECT_TRUE(std::filesystem::remove(Home() / "at home.bmp"));
}

TEST_F(GridImageInWindow, TheWheelOverTheListOfFoldersLeavesTheFolder) {
  ExpectDialog([this](QDialog& dialog) {
    for (QComboBox* list : dialog.findChildren<QComboBox*>()) {
      list->showPopup();  // it only lists the current folder until then
      list->hidePopup();
      NameLineOf(dialog).setFocus();
      const QPointF spot = QRectF(list->rect()).center();
      for (const int turn : {120, -120}) {
        QWheelEvent wheel(spot, list->mapToGlobal(spot), {}, {0, turn}, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(list, &wheel);
        EXPECT_EQ(FromQt(dynamic_cast<QFileDialog&>(dialog).directory().absolutePath()), SavedGrids().string());
      }
    }
    dialog.reject();
  });
  Click("imgSave");
}

TEST_F(GridImageInWindow, TheDialogGrowsWithTheWindow) {
  std::vector<QSize> sizes;
  for (const double scale : {1.0, 2.0}) {
    ShowAtScale(scale);
    ExpectDialog([&sizes](QDialog& dialog) {
      sizes.push_back(dialog.size());
      dialog.reject();
    });
    Click("imgSave");
  }
  ShowAtScale(1);
  EXPECT_EQ(sizes[1], 2 * sizes[0]);
}

TEST_F(GridImageInWindow, OnlyYesOpensItInTheDesktopsProgram) {
  OpenedFiles desktop;
  ExpectFileName("grid.bmp");
  ExpectMessageBoxClosed(kSaved);
  Click("imgSave");
  VerifyExpectedBoxes();
  EXPECT_TRUE(desktop.Opened.empty());

  ComeToFront();
  ExpectFileName("My best grid (2).bmp");
  ExpectMessageBox(kSaved, MessageAnswer::kYes);
  Click("imgSave");
  ASSERT_EQ(desktop.Opened.size(), 1U);
  EXPECT_EQ(FromQt(QUrl(ToQt(desktop.Opened[0])).toLocalFile()), (SavedGrids() / "My best grid (2).bmp").string());
}

TEST_F(GridImageInWindow, WhatLiesOverTheGridIsInIt) {
  MoveOver("lblCards", HandIndex("AA"));
  ASSERT_TRUE(Shows("frameHover"));
  const QImage shown = Get("frameContent", kGridScreen).grab(QRect(16, 12, 409, 521)).toImage();
  SaveAs("grid.bmp");
  EXPECT_TRUE(Shows("frameHover"));
  EXPECT_EQ(ImageOf(SavedGrids() / "grid.bmp").convertToFormat(QImage::Format_RGB32),
            shown.convertToFormat(QImage::Format_RGB32));
}

TEST_F(GridImageInWindow, AFileThatCannotBeWrittenEndsTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto save = [this] {
    ExpectFileName((Program.Folder().Path / "missing" / "grid.bmp").string());
    Click("imgSave");
  };
  EXPECT_EXIT(save(), testing::ExitedWithCode(EXIT_FAILURE), "Run-time error '76': Path not found .*missing/grid.bmp");
}

}  // namespace
}  // namespace quillon
