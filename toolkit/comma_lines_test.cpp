#include "toolkit/comma_lines.h"

#include <QTextBlock>
#include <QTextLayout>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "toolkit/fonts.h"
#include "toolkit/placement.h"

namespace quillon {
namespace {

std::vector<std::string> LinesOf(const QPlainTextEdit& box) {
  std::vector<std::string> lines;
  for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
    static_cast<void>(box.document()->documentLayout()->blockBoundingRect(block));
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
      const QTextLine line = block.layout()->lineAt(i);
      lines.push_back(block.text().mid(line.textStart(), line.textLength()).toStdString());
    }
  }
  return lines;
}

class CommaLinesTest : public testing::Test {
 protected:
  CommaLinesTest() {
    Box.setFont(FormFont({.Family = "Courier New", .Points = 9}, {}));
    Box.document()->setDocumentMargin(4);
    new CommaLines(Box);  // owned by the document
    Box.show();
  }
  void TearDown() override { ShowAtScale(1); }

  void SetLetters(int letters) {
    const double letter = QFontMetricsF(Box.font()).horizontalAdvance(QLatin1Char('0'));
    const int frame = Box.width() - Box.viewport()->width();
    Box.resize(static_cast<int>(letters * letter + letter / 2) + 8 + frame, 100);
  }

  QPlainTextEdit Box;
};

TEST_F(CommaLinesTest, EndAfterACommaOrASpaceAndNeverWithinAHand) {
  struct Row {
    const char* Rule;
    const char* Text;
    int Letters;
    std::vector<std::string> Lines;
  };
  const std::array rows = {
      Row{"what fits is one line", "22+,A2s+", 8, {"22+,A2s+"}},
      Row{"after a comma", "22+,A2s+,KQo", 9, {"22+,A2s+,", "KQo"}},
      Row{"not after a hyphen", "AKs,AQs-A9s,QQ", 9, {"AKs,", "AQs-A9s,", "QQ"}},
      Row{"not before a plus", "AKs,JTs+,QQ", 7, {"AKs,", "JTs+,QQ"}},
      Row{"after a space, which may stick out", "Pot Size: 150", 9, {"Pot Size: ", "150"}},
      Row{"a word that never fits is broken", "AAAAAAAAAA", 4, {"AAAA", "AAAA", "AA"}},
      Row{"each line of the text for itself", "AKs,AQs\nQQ,JJ", 4, {"AKs,", "AQs", "QQ,", "JJ"}},
      Row{"an empty line is one", "\nAA", 4, {"", "AA"}},
  };
  for (const Row& row : rows) {
    SetLetters(row.Letters);
    Box.setPlainText(QString::fromLatin1(row.Text));
    EXPECT_EQ(LinesOf(Box), row.Lines) << row.Rule;
    EXPECT_EQ(Box.toPlainText().toStdString(), row.Text) << "the text is unchanged";
  }
}

TEST_F(CommaLinesTest, OfNoBlockTakeNoRoom) {
  EXPECT_TRUE(Box.document()->documentLayout()->blockBoundingRect({}).isEmpty());
}

TEST_F(CommaLinesTest, FollowTheWidthOfTheBox) {
  Box.setPlainText(QStringLiteral("AKs,AQs,AJs,ATs"));
  SetLetters(15);
  EXPECT_EQ(LinesOf(Box).size(), 1U);
  SetLetters(8);
  EXPECT_EQ(LinesOf(Box), (std::vector<std::string>{"AKs,AQs,", "AJs,ATs"}));
  SetLetters(4);
  EXPECT_EQ(LinesOf(Box).size(), 4U);
}

}  // namespace
}  // namespace quillon
