#include "toolkit/rich_text_box.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <gtest/gtest.h>

#include "testing/bring_to_front.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

TEST(RichTextBox, IsCopiedAsPlainText) {
  RichTextBox box(nullptr);
  box.setFontWeight(QFont::Bold);
  box.insertPlainText(QStringLiteral("AA\n"));
  box.setFontWeight(QFont::Normal);
  box.insertPlainText(QStringLiteral("KK <b>"));
  box.selectAll();
  box.copy();

  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->text(), QStringLiteral("AA\nKK <b>"));
  EXPECT_FALSE(copied->hasHtml());
}

TEST(RichTextBox, TakesPastedTextAsPlainText) {
  RichTextBox box(nullptr);
  auto* data = new QMimeData;
  data->setHtml(QStringLiteral("<b>AA</b>"));
  data->setText(QStringLiteral("AA"));
  QApplication::clipboard()->setMimeData(data);
  box.paste();

  EXPECT_EQ(box.toPlainText(), QStringLiteral("AA"));
  box.selectAll();
  EXPECT_EQ(box.fontWeight(), QFont::Normal);
}

TEST(RichTextBox, IsSetOnPaperOfTheProgramsScale) {
  const ScaledPaper paper;
  for (const double scale : {1.5, 1.0}) {
    SetPixelScale(scale);
    for (const int dots : {paper.logicalDpiX(), paper.logicalDpiY(), paper.physicalDpiX(), paper.physicalDpiY()})
      EXPECT_EQ(dots, 96 * scale);
  }
}

TEST(RichTextBox, IsLeftWithTab) {
  QWidget form;
  RichTextBox box(&form);
  RichTextBox next(&form);
  BringToFront(form);
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Tab);

  EXPECT_TRUE(next.hasFocus());
  EXPECT_EQ(box.toPlainText(), QString());
}

}  // namespace
}  // namespace quillon
