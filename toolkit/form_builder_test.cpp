#include "toolkit/form_builder.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QWheelEvent>
#include <array>
#include <gtest/gtest.h>
#include <stdexcept>

#include "toolkit/colors.h"
#include "toolkit/text_box.h"

namespace quillon {
namespace {

constexpr TwipRect kPlace = {150, 300, 1500, 600};
constexpr FontSpec kFont = {.Family = "Arial", .Points = 8.25F};

template <const auto& kRows>
constexpr std::array kOneTable = {ControlTable{.Container = "", .Font = kFont, .Rows = kRows}};

template <const auto& kRows>
using OneTable = LayoutControls<kOneTable<kRows>>;

TEST(FormBuilder, PutsTheFirstOfTwoRowsInFront) {
  static constexpr std::array kRows = {
      ControlRow{.Name = "front", .Place = kPlace},
      ControlRow{.Name = "middle", .Place = kPlace},
      ControlRow{.Name = "back", .Place = kPlace},
  };
  QWidget form;
  const OneTable<kRows> controls(form);

  EXPECT_EQ(form.childAt(20, 30), controls.Find("front"));
  controls.LabelAt("front").hide();
  EXPECT_EQ(form.childAt(20, 30), controls.Find("middle"));
}

TEST(FormBuilder, FindsControlsByNameAndIndex) {
  static constexpr std::array kRows = {
      ControlRow{.Name = "txtNumber", .Index = 0, .Kind = ControlKind::kTextBox, .Text = "zero", .Place = kPlace},
      ControlRow{.Name = "txtNumber", .Index = 1, .Kind = ControlKind::kTextBox, .Text = "one", .Place = kPlace},
      ControlRow{.Name = "txtNumber", .Index = 3, .Kind = ControlKind::kTextBox, .Text = "three", .Place = kPlace},
      ControlRow{.Name = "picLogo", .Kind = ControlKind::kPicture, .Place = kPlace},
  };
  QWidget form;
  const OneTable<kRows> controls(form);

  EXPECT_EQ(controls.Get<TextBox>("txtNumber", 1).text(), QStringLiteral("one"));
  EXPECT_EQ(controls.Get<TextBox>("txtNumber", 1).objectName(), QStringLiteral("txtNumber(1)"));
  EXPECT_EQ(form.findChild<Picture*>(QStringLiteral("picLogo")), &controls.PictureAt("picLogo"));
  EXPECT_EQ(controls.CountOf("txtNumber"), 2);
  EXPECT_EQ(controls.CountOf("picLogo"), 0);
  EXPECT_EQ(controls.Find("txtNumber(2)"), nullptr);
}

TEST(FormBuilder, PutsEachTableIntoItsContainer) {
  static constexpr std::array kFormRows = {ControlRow{.Name = "frameContent",
                                                      .Index = 0,
                                                      .Kind = ControlKind::kFrame,
                                                      .Text = "Progress",
                                                      .Place = {3300, 0, 12000, 9045}}};
  static constexpr std::array kScreenRows = {
      ControlRow{.Name = "pane", .Kind = ControlKind::kFrame, .Place = {1500, 1500, 3000, 3000}}};
  static constexpr std::array kPaneRows = {ControlRow{.Name = "lblPot", .Place = kPlace}};
  static constexpr std::array kTables = {
      ControlTable{.Container = "", .Font = kFont, .Rows = kFormRows},
      ControlTable{.Container = "frameContent(0)", .Font = kFont, .Rows = kScreenRows},
      ControlTable{.Container = "pane", .Font = {.Family = "Verdana", .Points = 12}, .Rows = kPaneRows},
  };
  QWidget form;
  const LayoutControls<kTables> controls(form);

  const Label& label = controls.LabelAt("lblPot");
  EXPECT_EQ(controls.FrameAt("frameContent", 0).accessibleName(), QStringLiteral("Progress"));
  EXPECT_EQ(label.mapTo(&form, QPoint(0, 0)), QPoint(220 + 100 + 10, 100 + 20));
  EXPECT_EQ(label.font().pixelSize(), 16);
}

TEST(FormBuilder, FailsAtWhatIsNotThere) {
  static constexpr std::array kRows = {ControlRow{.Name = "lblPot", .Place = kPlace}};
  constexpr std::array kNoContainer = {ControlTable{.Container = "frameContent(0)", .Font = kFont, .Rows = {}}};
  QWidget form;
  const OneTable<kRows> controls(form);
  EXPECT_THROW(std::ignore = controls.LabelAt("lblPot", 0), std::logic_error);
  EXPECT_THROW(FormControls(form, kNoContainer), std::logic_error);
}

TEST(FormBuilder, DressesControlsAsTheirRowsSay) {
  static constexpr std::array kRows = {
      ControlRow{.Name = "lblLink",
                 .Text = "First\r\nSecond",
                 .Place = kPlace,
                 .Back = 0xC0C0C0,
                 .Fore = 0x336699,
                 .Font = {.Family = "Arial", .Points = 9.75F, .Bold = true, .Underlined = true},
                 .Use = ControlUse::kLink,
                 .ToolTip = "Pot Size",
                 .Spoken = "Help for the pot size"},
      ControlRow{.Name = "hidden", .Place = kPlace, .Hidden = true},
      ControlRow{.Name = "plain", .Place = kPlace},
      ControlRow{.Name = "shape",
                 .Kind = ControlKind::kShape,
                 .Place = kPlace,
                 .Back = 0xFF0000,
                 .Fore = 0x00FF00,
                 .Style = LineStyle::kDotted,
                 .LineWidth = 2},
  };
  QWidget form;
  const OneTable<kRows> controls(form);

  const Label& label = controls.LabelAt("lblLink");
  EXPECT_EQ(label.Text(), QStringLiteral("First\nSecond"));
  EXPECT_EQ(label.BackColor(), QColor(0xC0, 0xC0, 0xC0));
  EXPECT_EQ(label.TextColor(), QColor(0x33, 0x66, 0x99));
  EXPECT_EQ(label.font().pixelSize(), 13);
  EXPECT_TRUE(label.font().bold());
  EXPECT_TRUE(label.HasUnderline());
  EXPECT_EQ(label.Use(), ControlUse::kLink);
  EXPECT_EQ(label.toolTip(), QStringLiteral("Pot Size"));
  EXPECT_EQ(label.accessibleName(), QStringLiteral("Help for the pot size"));
  EXPECT_FALSE(label.isHidden());
  EXPECT_TRUE(controls.LabelAt("hidden").isHidden());
  EXPECT_EQ(controls.LabelAt("plain").TextColor(), QColor(Qt::black));
  EXPECT_EQ(controls.LabelAt("plain").BackColor().alpha(), 0);
  EXPECT_EQ(controls.LabelAt("plain").font().pixelSize(), 11);
  EXPECT_EQ(controls.ShapeAt("shape").Fill(), QColor(Qt::red));
  EXPECT_EQ(controls.ShapeAt("shape").LineColor(), QColor(Qt::green));
  EXPECT_EQ(controls.ShapeAt("shape").Style(), LineStyle::kDotted);
  EXPECT_EQ(controls.ShapeAt("shape").LineWidth(), 2);
}

TEST(FormBuilder, GivesALineOfNoHeightAPixelToBeSeenBy) {
  static constexpr std::array kRows = {
      ControlRow{.Name = "across", .Kind = ControlKind::kLine, .Place = {150, 300, 1500, 0}},
      ControlRow{.Name = "down", .Kind = ControlKind::kLine, .Place = {150, 300, 0, 1500}},
  };
  QWidget form;
  const OneTable<kRows> controls(form);

  EXPECT_EQ(controls.ShapeAt("across").geometry(), QRect(10, 20, 100, 1));
  EXPECT_EQ(controls.ShapeAt("down").geometry(), QRect(10, 20, 1, 100));
}

TEST(FormBuilder, LeavesTheWheelToTheWindowAndToWhatHasTheFocus) {
  static constexpr std::array kRows = {
      ControlRow{.Name = "list", .Kind = ControlKind::kChooser, .Place = {0, 0, 3000, 300}},
      ControlRow{.Name = "text", .Kind = ControlKind::kReadOnlyMemo, .Text = "22+", .Place = {0, 600, 3000, 600}}};
  QWidget form;
  const OneTable<kRows> controls(form);
  auto& list = controls.Get<QComboBox>("list");
  auto& text = controls.Get<QPlainTextEdit>("text");
  list.addItems({QStringLiteral("One"), QStringLiteral("Two")});
  const QFont font = text.font();
  for (QWidget* target : {static_cast<QWidget*>(&list), text.viewport()}) {
    QWheelEvent wheel(QPointF(5, 5), target->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &wheel);
  }
  EXPECT_EQ(list.currentIndex(), 0);
  EXPECT_EQ(text.font(), font) << "its size is the window's zoom";
}

}  // namespace
}  // namespace quillon
