#include "toolkit/light_style.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOption>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>

#include "toolkit/colors.h"
#include "toolkit/form_builder.h"
#include "toolkit/placement.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

constexpr std::array kScales = {0.75, 1.0, 1.5, 2.0, 3.0};

double ContrastAt(const QImage& image, const QPoint& point, const QPoint& other) {
  return ContrastRatio(FromColor(image.pixelColor(point)), FromColor(image.pixelColor(other)));
}

class LightStyleTest : public testing::Test {
 protected:
  void TearDown() override { ShowAtScale(1); }
};

TEST_F(LightStyleTest, MeasuresInTheScaleOfTheProgram) {
  const QStyle& style = *QApplication::style();
  for (const QStyle::PixelMetric metric : {QStyle::PM_IndicatorWidth, QStyle::PM_ScrollBarExtent,
                                           QStyle::PM_MessageBoxIconSize, QStyle::PM_LayoutLeftMargin}) {
    ShowAtScale(1);
    const int design = style.pixelMetric(metric);
    EXPECT_GT(design, 0);
    for (const double scale : kScales) {
      ShowAtScale(scale);
      EXPECT_EQ(style.pixelMetric(metric), std::lround(design * scale)) << metric << " " << scale;
    }
  }
}

TEST_F(LightStyleTest, EntriesOfMenusGrowWithTheScale) {
  struct Sizes {
    int BesideText;
    int Entry;
    int Line;
  };
  const auto sizes = [](double scale) {
    ShowAtScale(scale);
    QMenu menu;
    QAction* const entry = menu.addAction(QStringLiteral("Save as web page..."));
    QAction* const line = menu.addSeparator();
    menu.addAction(QStringLiteral("Clear"));
    const QRect place = menu.actionGeometry(entry);
    return Sizes{place.width() - menu.fontMetrics().horizontalAdvance(entry->text()), place.height(),
                 menu.actionGeometry(line).height()};
  };
  const Sizes design = sizes(1);
  for (const double scale : kScales) {
    const Sizes scaled = sizes(scale);
    EXPECT_NEAR(scaled.BesideText, design.BesideText * std::max(scale, 1.0), 2) << "no less than it draws with";
    EXPECT_NEAR(scaled.Entry, design.Entry * scale, 1.5) << scale;
    EXPECT_NEAR(scaled.Line, design.Line * scale, 1.5) << scale;
  }
}

TEST_F(LightStyleTest, DrawsEdgesThatStandOutFromWhite) {
  constexpr double kLeast = 3;
  const auto build = [](int kind) -> std::unique_ptr<QWidget> {
    if (kind == 0) return std::make_unique<QLineEdit>();
    if (kind == 1) return std::make_unique<QComboBox>();
    return std::make_unique<QPushButton>();
  };
  for (const double scale : kScales) {
    ShowAtScale(scale);
    for (const int kind : {0, 1, 2}) {
      const std::unique_ptr<QWidget> control = build(kind);
      control->resize(200, 80);
      const QImage image = control->grab().toImage();
      const QRgb white = qRgb(255, 255, 255);
      for (const QPoint& edge : {QPoint(0, 40), QPoint(199, 40), QPoint(100, 0), QPoint(100, 79)}) {
        EXPECT_GE(ContrastRatio(FromColor(image.pixelColor(edge)), FromColor(QColor::fromRgb(white))), kLeast)
            << kind << " at " << scale << ": " << edge.x() << ", " << edge.y();
      }
    }
  }
}

TEST_F(LightStyleTest, DrawsTabsThatStandOutFromWhite) {
  for (const double scale : kScales) {
    ShowAtScale(scale);
    QTabWidget tabs;
    tabs.addTab(new QWidget, QStringLiteral("One"));
    tabs.addTab(new QWidget, QStringLiteral("Two"));
    tabs.resize(LinePixels(300), LinePixels(200));
    tabs.show();  // lays it out
    const QImage image = tabs.grab().toImage();
    const auto contrast = [&](const QPoint& point) {
      return ContrastRatio(FromColor(image.pixelColor(point)), FromColor(QColor(Qt::white)));
    };
    const QRect chosen = tabs.tabBar()->tabRect(0).translated(tabs.tabBar()->pos());
    const QRect other = tabs.tabBar()->tabRect(1).translated(tabs.tabBar()->pos());
    EXPECT_GE(contrast({chosen.center().x(), chosen.top()}), 4.5) << scale << ": the line over the chosen one";
    EXPECT_GE(contrast({chosen.left(), chosen.center().y()}), 3) << scale;
    EXPECT_GE(contrast({other.right(), other.center().y()}), 3) << scale;
    EXPECT_LT(contrast({other.center().x(), other.top()}), 1.5) << scale << ": it is lower";
    EXPECT_GE(contrast({tabs.width() / 2, tabs.height() - 1}), 3) << scale << ": the page's edge";
  }
}

TEST_F(LightStyleTest, MarksATabUnderTheMouseUnlessItIsChosen) {
  const auto look = [](QStyle::State state) {
    QStyleOptionTab tab;
    tab.rect = {0, 0, 60, 24};
    tab.state = state;
    QImage image(tab.rect.size(), QImage::Format_RGB32);
    QPainter painter(&image);
    QApplication::style()->drawControl(QStyle::CE_TabBarTabShape, &tab, &painter);
    return image.pixelColor(image.rect().center());
  };
  EXPECT_NE(look(QStyle::State_MouseOver), look({}));
  EXPECT_EQ(look(QStyle::State_Selected | QStyle::State_MouseOver), look(QStyle::State_Selected));
}

// On each side of a control or box the focus makes a clearly visible change.
TEST_F(LightStyleTest, MarksTheFocusOnEachSide) {
  constexpr double kLeast = 3;
  for (const double scale : kScales) {
    ShowAtScale(scale);
    QDialog box;
    QPushButton other(&box);
    QPushButton push(&box);
    QLineEdit line(&box);
    QListView list(&box);
    QToolButton tool(&box);
    tool.setAutoRaise(true);
    box.resize(600, 400);
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    for (QWidget* control : std::initializer_list<QWidget*>{&push, &line, &list, &tool}) {
      control->setGeometry(100, 100, 120, 80);
      other.setFocus(Qt::TabFocusReason);
      const QImage before = control->grab().toImage();
      control->setFocus(Qt::TabFocusReason);
      ASSERT_TRUE(control->hasFocus());
      const QImage after = control->grab().toImage();
      const QPoint middle = before.rect().center();
      constexpr int kDepth = 6;
      for (const QPoint inward : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
        const QPoint edge(inward.x() == 0 ? middle.x() : (inward.x() > 0 ? 0 : before.width() - 1),
                          inward.y() == 0 ? middle.y() : (inward.y() > 0 ? 0 : before.height() - 1));
        double most = 1;
        for (int depth = 0; depth < kDepth; ++depth) {
          const QPoint point = edge + inward * depth;
          most = std::max(most, ContrastRatio(FromColor(before.pixelColor(point)), FromColor(after.pixelColor(point))));
        }
        EXPECT_GE(most, kLeast) << control->metaObject()->className() << " at " << scale << " from " << edge.x() << ", "
                                << edge.y();
      }
    }
  }
}

TEST_F(LightStyleTest, DrawsACheckMarkThatCanBeSeen) {
  for (const double scale : kScales) {
    ShowAtScale(scale);
    QCheckBox box;
    box.setTristate(true);
    box.resize(static_cast<int>(40 * scale), static_cast<int>(40 * scale));
    QImage before;
    for (const Qt::CheckState state : {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked}) {
      box.setCheckState(state);
      const QImage image = box.grab().toImage();
      EXPECT_NE(image, before) << state << " at " << scale;
      before = image;
    }
    box.setEnabled(false);
    EXPECT_NE(box.grab().toImage(), before) << "it is paler at " << scale;
  }
}

TEST_F(LightStyleTest, GivesAScrollBarAHandleDarkerThanItsGroove) {
  for (const double scale : kScales) {
    ShowAtScale(scale);
    for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
      QScrollBar bar(orientation);
      bar.setRange(0, 100);
      bar.setPageStep(50);
      bar.resize(orientation == Qt::Vertical ? QSize(bar.sizeHint().width(), 600)
                                             : QSize(600, bar.sizeHint().height()));
      const QImage image = bar.grab().toImage();
      const QPoint middle(image.width() / 2, image.height() / 2);
      const QPoint handle = orientation == Qt::Vertical ? QPoint(middle.x(), 100) : QPoint(100, middle.y());
      const QPoint groove = orientation == Qt::Vertical ? QPoint(middle.x(), 500) : QPoint(500, middle.y());
      EXPECT_LT(image.pixelColor(handle).lightness(), image.pixelColor(groove).lightness());
      EXPECT_GE(ContrastAt(image, handle, groove), 2) << scale;
    }
  }
}

TEST_F(LightStyleTest, ShowsNoHandleWhereNothingCanBeScrolled) {
  struct Row {
    int Most;
    int Page;
    bool Enabled;
    bool Handle;
  };
  for (const Row& row :
       {Row{100, 50, true, true}, {100, 50, false, false}, {0, 50, true, false}, {0, 0, true, false}}) {
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, row.Most);
    bar.setPageStep(row.Page);
    bar.setEnabled(row.Enabled);
    bar.resize(16, 200);
    const QImage image = bar.grab().toImage();
    EXPECT_EQ(image.pixelColor(8, 20) != image.pixelColor(0, 0), row.Handle) << row.Most << " " << row.Enabled;
  }
}

TEST_F(LightStyleTest, ScrollsByAPageBesideTheHandleAndByDraggingIt) {
  for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
    const bool lying = orientation == Qt::Horizontal;
    const auto at = [lying](int along) { return lying ? QPoint(along, 8) : QPoint(8, along); };
    QScrollBar bar(orientation);
    bar.setRange(0, 200);
    bar.setPageStep(50);
    bar.resize(lying ? QSize(500, 16) : QSize(16, 500));
    bar.show();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, at(480));
    EXPECT_EQ(bar.value(), 50);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, at(5));
    EXPECT_EQ(bar.value(), 0);
    const QColor resting = bar.grab().toImage().pixelColor(at(50));
    QTest::mousePress(&bar, Qt::LeftButton, {}, at(50));
    EXPECT_LT(bar.grab().toImage().pixelColor(at(50)).lightness(), resting.lightness()) << "it is held";
    QTest::mouseMove(&bar, at(250));
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, at(250));
    EXPECT_EQ(bar.value(), 100);
    QTest::mousePress(&bar, Qt::LeftButton, {}, at(250));
    QTest::mouseMove(&bar, at(900));
    EXPECT_EQ(bar.value(), 200);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, at(900));
  }
}

TEST_F(LightStyleTest, EndsANameThatIsTooLongForItsBoxWithAnEllipsis) {
  for (const double scale : kScales) {
    ShowAtScale(scale);
    const auto look = [scale](const QString& name) {
      QComboBox box;
      box.addItem(name);
      box.resize(static_cast<int>(200 * scale), static_cast<int>(25 * scale));
      return box.grab().toImage();
    };
    const QString name(92, QLatin1Char('W'));
    int letters = 1;
    while (letters < 92 && look(name) != look(name.first(letters) + QChar(0x2026)))
      ++letters;
    EXPECT_LT(letters, 92) << scale;
    EXPECT_NE(look(name.first(letters - 1)), look(name.first(letters))) << "each letter shows at " << scale;
  }
}

TEST_F(LightStyleTest, ShowsAToolTipAsItIs) {
  QToolTip::showText({}, QStringLiteral("<b>Tight</b>"));
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto tip = std::ranges::find_if(windows, [](const QWidget* window) { return window->inherits("QTipLabel"); });
  ASSERT_NE(tip, windows.end());
  EXPECT_EQ(qobject_cast<QLabel*>(*tip)->textFormat(), Qt::PlainText);
  QToolTip::hideText();
}

TEST_F(LightStyleTest, OpensAListOfTwentyRowsBeneathItsBox) {
  for (const double scale : {1.0, 2.0}) {
    ShowAtScale(scale);
    QWidget form;
    SetPlace(form, {0, 0, 6000, 3000});
    const ControlRow row = {.Name = "cmboRanges", .Kind = ControlKind::kChooser, .Place = {300, 300, 4395, 375}};
    const ControlTable table{.Container = {}, .Font = {.Family = "Arial", .Points = 9}, .Rows = {&row, 1}};
    const FormControls controls(form, {&table, 1});
    auto& box = dynamic_cast<QComboBox&>(controls.At(row));
    for (int i = 0; i < 170; ++i)
      box.addItem(QString::number(i));
    form.move(0, 0);
    form.show();
    box.showPopup();
    const QAbstractItemView& list = *box.view();
    EXPECT_GE(list.mapToGlobal(QPoint(0, 0)).y(), box.mapToGlobal(QPoint(0, box.height())).y());
    EXPECT_EQ(list.viewport()->height() / list.sizeHintForRow(0), 20) << scale;
    EXPECT_TRUE(list.verticalScrollBar()->maximum() > 0);
    EXPECT_EQ(list.window()->width(), box.width());
    box.hidePopup();
  }
}

}  // namespace
}  // namespace quillon
