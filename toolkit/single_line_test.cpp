#include "toolkit/single_line.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <array>
#include <gtest/gtest.h>

#include "toolkit/text.h"

namespace quillon {
namespace {

// A way to put text into a box, at the caret, replacing the selection.
struct Way {
  const char* Name;
  void (*Bring)(QLineEdit& box, const QString& text);
};

void PasteByKey(QLineEdit& box, const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
}

void PasteByMenu(QLineEdit& box, const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  box.paste();
}

void Compose(QLineEdit& box, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QGuiApplication::sendEvent(&box, &event);
}

struct TextCase {
  const char* Rule;
  const char* Brought;
  const char* Box;  // with the text inserted into "12|34" at the bar
  int Caret;
};

TEST(SingleLine, TakesWhatStandsBeforeTheFirstLineEndWhateverWayItComes) {
  constexpr std::array kWays = {Way{"by key", PasteByKey}, Way{"by menu", PasteByMenu},
                                Way{"by input method", Compose}};
  constexpr std::array kCases = {
      TextCase{"a plain text", "ab", "12ab34", 4},
      TextCase{"CR LF at its end", "ab\r\n", "12ab34", 4},
      TextCase{"LF within", "ab\ncd", "12ab34", 4},
      TextCase{"CR within", "ab\rcd\n", "12ab34", 4},
      TextCase{"a line separator", "ab\u2028cd", "12ab34", 4},
      TextCase{"a paragraph separator", "ab\u2029cd", "12ab34", 4},
      TextCase{"a line end first", "\nab", "1234", 2},
      TextCase{"a line end alone", "\r\n", "1234", 2},
      TextCase{"a tab before it", "\t", "12 34", 3},
      TextCase{"tabs are spaces, each", "a\tb\t\t", "12a b  34", 7},
      TextCase{"a tab after the line end is gone", "ab\n\tc", "12ab34", 4},
  };
  for (const Way& way : kWays) {
    for (const TextCase& c : kCases) {
      QLineEdit box;
      KeepToOneLine(box);
      box.setText(QStringLiteral("12xx34"));
      box.setSelection(2, 2);
      way.Bring(box, QString::fromUtf8(c.Brought));
      EXPECT_EQ(FromQt(box.text()), c.Box) << c.Rule << " " << way.Name;
      EXPECT_EQ(box.cursorPosition(), c.Caret) << c.Rule << " " << way.Name;
    }
  }
}

TEST(SingleLine, HoldsForADropAndForATextThatIsSet) {
  QLineEdit box;
  KeepToOneLine(box);
  QMimeData data;
  data.setText(QStringLiteral("100\t\r\n200"));
  QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QGuiApplication::sendEvent(&box, &enter);
  QDropEvent drop({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QGuiApplication::sendEvent(&box, &drop);
  EXPECT_EQ(FromQt(box.text()), "100 ");

  box.setText(QStringLiteral("7\t8\n9"));
  EXPECT_EQ(FromQt(box.text()), "7 8");
}

}  // namespace
}  // namespace quillon
