#pragma once

// The New Range dialog as a table: the grid with its summary on the left; instructions, colour key and name on the
// right. The texts are verbatim.

#include <array>
#include <string_view>

#include "ranges/card_grid.h"
#include "support/rgb.h"
#include "support/twips.h"
#include "toolkit/control_row.h"
#include "toolkit/form_builder.h"

namespace quillon {

inline constexpr std::string_view kNewRangeTitle = "Create a New Range for your Opponent";

/// The inner size, which is fixed.
inline constexpr TwipSize kNewRangeSize = {12195, 9105};

namespace new_range_layout {

using enum ControlKind;
using enum ControlUse;

constexpr std::int32_t kHeading = RgbNumber(kBrandBlue);
constexpr std::int32_t kKeyLine = 0x404040;

// One line per row.
// clang-format off

inline constexpr auto kRows = std::to_array<ControlRow>({
    {.Name = "Image1", .Kind = kPicture, .Place = {165, 240, 960, 960}, .Picture = "new_range_image"},
    {.Name = "Label", .Index = 0, .Text = "Create a Range:", .Place = {1260, 420, 2220, 330}, .Fore = kHeading,
     .Font = Bold(Arial(14.25))},
    {.Name = "shapeCardBack", .Index = 0, .Kind = kShape, .Place = {1360, 940, 405, 405}, .Fore = 0x404040,
     .Hidden = true},
    {.Name = "lblCards", .Index = 0, .Text = "AA", .Place = {1370, 1040, 385, 305}, .Font = Tahoma(8.25), .Hidden = true,
     .Use = kPlainLink, .Alignment = TextAlignment::kCentered},
    {.Name = "shapeBlue", .Kind = kShape, .Place = {1260, 840, 5760, 5760}, .Back = 0xE0E0E0, .Fore = 0x33789C,
     .Hidden = true},
    {.Name = "lblPercSelected", .Text = "0% Selected", .Place = {5640, 6600, 1395, 195}, .Font = Arial(8.25),
     .Alignment = TextAlignment::kRight},
    {.Name = "Label", .Index = 1, .Text = "Abbreviated Format:", .Place = {1320, 6900, 3660, 240},
     .Font = Bold(Arial(9.75))},
    {.Name = "txtRangeAbbr", .Kind = kReadOnlyMemo, .Text = "None\r\n", .Place = {1320, 7140, 5775, 885},
     .Spoken = "Abbreviated Format:"},
    {.Name = "Label", .Index = 2, .Text = "Tip: Hold Shift while clicking to select similar groups of hands.",
     .Place = {1320, 8100, 5580, 360}},
    {.Name = "Label", .Index = 3, .Text = "Instructions", .Place = {7560, 840, 1410, 285}, .Fore = kHeading,
     .Font = Bold(Arial(12))},
    {.Name = "Label", .Index = 4,
     .Text = "A range is a group of hands you believe your opponent can have in some situation.",
     .Place = {7620, 1200, 4380, 480}},
    {.Name = "Label", .Index = 5,
     .Text = "From the grid, select the hands you want to belong in your opponent's range by clicking on them.",
     .Place = {7620, 1830, 4380, 480}},
    {.Name = "Label", .Index = 6,
     .Text = "When you're done, pick a short descriptive name for the range, then click OK.",
     .Place = {7620, 2460, 4380, 780}},
    {.Name = "chkHalf", .Kind = kCheckBox, .Place = {7620, 3300, 255, 255},
     .Spoken = "Make next selection \"Maybe\" (half as likely)"},
    {.Name = "Label", .Index = 7, .Text = "Make next selection \"Maybe\" (half as likely)",
     .Place = {7980, 3300, 2115, 615}},
    {.Name = "Label", .Index = 8, .Text = "Key", .Place = {7560, 4140, 450, 285}, .Fore = kHeading,
     .Font = Bold(Arial(12))},
    {.Name = "shapeKey", .Index = 0, .Kind = kShape, .Place = {7620, 4620, 285, 285},
     .Back = RgbNumber(kUnselectedSuitedColor), .Fore = kKeyLine},
    {.Name = "Label", .Index = 9, .Text = "Suited Hands", .Place = {8040, 4650, 2055, 240}},
    {.Name = "shapeKey", .Index = 2, .Kind = kShape, .Place = {7620, 4980, 285, 285},
     .Back = RgbNumber(kUnselectedOffsuitColor), .Fore = kKeyLine},
    {.Name = "Label", .Index = 10, .Text = "Offsuit Hands", .Place = {8040, 5010, 2055, 240}},
    {.Name = "shapeKey", .Index = 3, .Kind = kShape, .Place = {7620, 5340, 285, 285},
     .Back = RgbNumber(kUnselectedPairColor), .Fore = kKeyLine},
    {.Name = "Label", .Index = 11, .Text = "Paired Hands", .Place = {8040, 5370, 2055, 240}},
    {.Name = "shapeKey", .Index = 1, .Kind = kShape, .Place = {7620, 5700, 285, 285}, .Back = RgbNumber(kFullColor),
     .Fore = kKeyLine},
    {.Name = "Label", .Index = 12, .Text = "Selected Hands", .Place = {8040, 5730, 2055, 240}},
    {.Name = "shapeKey", .Index = 4, .Kind = kShape, .Place = {7620, 6060, 285, 285}, .Back = RgbNumber(kHalfColor),
     .Fore = kKeyLine},
    {.Name = "Label", .Index = 13, .Text = "Half as Likely", .Place = {8040, 6090, 2055, 240}},
    {.Name = "Label", .Index = 14, .Text = "Range Name:", .Place = {7560, 6600, 1560, 285}, .Fore = kHeading,
     .Font = Bold(Arial(12))},
    {.Name = "txtRangeName", .Kind = kTextBox, .Place = {7620, 6945, 4380, 375}, .Font = Arial(11.25),
     .Spoken = "Range Name:"},
    {.Name = "chkSaveRange", .Kind = kCheckBox, .Text = "Save this range for future use",
     .Place = {7740, 7380, 3735, 375}},
    {.Name = "cmdCancel", .Kind = kButton, .Text = "Cancel", .Place = {8805, 8460, 1575, 495}},
    {.Name = "cmdOK", .Kind = kButton, .Text = "OK", .Place = {10500, 8460, 1575, 495}},
});

// clang-format on

inline constexpr auto kTables = std::to_array<ControlTable>({{.Container = {}, .Font = Arial(9.75), .Rows = kRows}});

/// The tab order by name; "lblCards" is every cell of the grid.
inline constexpr auto kTabOrder = std::to_array<ControlKey<kTables>>(
    {"lblCards", "txtRangeAbbr", "chkHalf", "txtRangeName", "chkSaveRange", "cmdCancel", "cmdOK"});

}  // namespace new_range_layout

using NewRangeControls = LayoutControls<new_range_layout::kTables>;

}  // namespace quillon
