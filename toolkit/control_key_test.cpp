#include "toolkit/control_key.h"

#include <array>
#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr std::array kScreenRows = {
    ControlRow{.Name = "lblPot"},
    ControlRow{.Name = "lblNav", .Index = 0},
    ControlRow{.Name = "shapeBorder", .Kind = ControlKind::kRoundedShape},
};
constexpr std::array kPanelRows = {ControlRow{.Name = "txtNotes", .Kind = ControlKind::kReadOnlyMemo}};
constexpr std::array kLayout = {ControlTable{.Container = "", .Font = {}, .Rows = kScreenRows},
                                ControlTable{.Container = "", .Font = {}, .Rows = kPanelRows}};

// The check that stops a wrong key at compile time.
static_assert(HasControl<Label>(kLayout, "lblPot"));
static_assert(HasControl<Label>(kLayout, "lblNav"));
static_assert(HasControl<Control>(kLayout, "lblPot"));
static_assert(HasControl<Shape>(kLayout, "shapeBorder"));
static_assert(HasControl<QPlainTextEdit>(kLayout, "txtNotes"));
static_assert(HasControl<QWidget>(kLayout, "txtNotes"));
static_assert(!HasControl<Label>(kLayout, "lblpot"));
static_assert(!HasControl<QWidget>(kLayout, "lblPo"));
static_assert(!HasControl<QWidget>(kLayout, ""));
static_assert(!HasControl<Picture>(kLayout, "lblPot"));
static_assert(!HasControl<Control>(kLayout, "shapeBorder"));

constexpr ControlKey<kLayout, Label> KeyOf(std::string_view name) {
  return name == "lblPot" ? ControlKey<kLayout, Label>("lblPot") : ControlKey<kLayout, Label>("lblNav");
}

TEST(ControlKey, KeepsTheName) {
  EXPECT_EQ(KeyOf("lblPot").Name(), "lblPot");
  EXPECT_EQ(KeyOf("other").Name(), "lblNav");
}

}  // namespace
}  // namespace quillon
