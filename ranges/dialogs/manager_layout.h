#pragma once

// The Range Manager as a table: the list on the left, the grid in the middle, the five actions on the right. The texts
// are verbatim, odd ones too.

#include <array>
#include <string_view>

#include "support/rgb.h"
#include "support/twips.h"
#include "toolkit/control_row.h"
#include "toolkit/form_builder.h"

namespace quillon {

inline constexpr std::string_view kManagerTitle = "Range Manager";

/// The inner size, which is fixed.
inline constexpr TwipSize kManagerSize = {13665, 8880};

namespace manager_layout {

using enum ControlKind;
using enum ControlUse;

constexpr std::int32_t kHeading = RgbNumber(kBrandBlue);
constexpr std::string_view kActionTip = "Delete current range";  // of all actions but Delete

// One line per row.
// clang-format off

inline constexpr auto kRows = std::to_array<ControlRow>({
    {.Name = "Image1", .Kind = kPicture, .Place = {105, 180, 960, 960}, .Picture = "manager_image"},
    {.Name = "Label", .Index = 0, .Text = "Select a Range:", .Place = {1140, 360, 2235, 315}, .Fore = kHeading,
     .Font = Bold(Arial(14.25))},
    {.Name = "lstRanges", .Kind = kListBox, .Place = {1200, 720, 3495, 7020}, .Spoken = "Select a Range:"},
    {.Name = "lblRangeName", .Text = "Title", .Place = {4800, 300, 5835, 375}, .Font = Bold(Arial(14.25)), .Cut = true},
    {.Name = "shapeCardBack", .Index = 0, .Kind = kShape, .Place = {4960, 820, 405, 405}, .Fore = 0x404040,
     .Hidden = true},
    {.Name = "lblCards", .Index = 0, .Text = "AA", .Place = {4970, 920, 385, 305}, .Font = Tahoma(8.25), .Hidden = true,
     .Use = kLink, .Alignment = TextAlignment::kCentered},
    {.Name = "shapeBlue", .Kind = kShape, .Place = {4860, 720, 5760, 5760}, .Back = 0xE0E0E0, .Fore = 0x33789C,
     .Hidden = true},
    {.Name = "lblRangeInfo", .Text = "0% selected", .Place = {9240, 6480, 1395, 195}, .Font = Arial(8.25),
     .Alignment = TextAlignment::kRight},
    {.Name = "txtRangeAbbr", .Kind = kReadOnlyMemo, .Text = "None\r\n", .Place = {4920, 7020, 5775, 885},
     .Spoken = "Abbreviated Format:"},
    {.Name = "Label", .Index = 1, .Text = "Abbreviated Format:", .Place = {4920, 6780, 3660, 300},
     .Font = Bold(Arial(9.75))},
    {.Name = "Label", .Index = 2, .Text = "Tip: Hold Shift while clicking to select similar groups of hands.",
     .Place = {4860, 8280, 5580, 360}},
    {.Name = "imgNew", .Kind = kPicture, .Place = {10920, 660, 720, 720}, .Use = kLink, .Picture = "range_new",
     .Spoken = "New range"},
    {.Name = "lblAction", .Index = 0, .Text = "New", .Place = {10800, 1440, 960, 240},
     .Alignment = TextAlignment::kCentered, .ToolTip = kActionTip},
    {.Name = "imgSave", .Kind = kPicture, .Place = {12285, 660, 720, 720}, .Use = kLink, .Picture = "range_save",
     .Spoken = "Save range"},
    {.Name = "lblAction", .Index = 2, .Text = "Save", .Place = {12225, 1440, 840, 240},
     .Alignment = TextAlignment::kCentered, .ToolTip = kActionTip},
    {.Name = "imgRename", .Kind = kPicture, .Place = {10920, 1890, 720, 720}, .Use = kLink, .Picture = "range_rename",
     .Spoken = "Rename range"},
    {.Name = "lblRename", .Text = "Rename", .Place = {10905, 2700, 750, 240}, .Alignment = TextAlignment::kCentered,
     .ToolTip = kActionTip},
    {.Name = "imgSaveAs", .Kind = kPicture, .Place = {12285, 1890, 720, 720}, .Use = kLink, .Picture = "range_save_as",
     .Spoken = "Save range as"},
    {.Name = "lblSaveAs", .Text = "Save As", .Place = {12225, 2640, 840, 240}, .Alignment = TextAlignment::kCentered,
     .ToolTip = kActionTip},
    {.Name = "imgDelete", .Kind = kPicture, .Place = {10920, 3180, 720, 720}, .Use = kLink, .Picture = "range_delete",
     .Spoken = "Delete range"},
    {.Name = "lblDelete", .Text = "Delete", .Place = {10905, 3960, 750, 240}, .Alignment = TextAlignment::kCentered},
    {.Name = "chkHalf", .Kind = kCheckBox, .Place = {10860, 5640, 255, 255},
     .Spoken = "Make next selection \"Maybe\" (half as likely)"},
    {.Name = "Label", .Index = 3, .Text = "Make next selection \"Maybe\" (half as likely)",
     .Place = {11220, 5640, 1815, 555}, .Font = Arial(8.25)},
    {.Name = "cmdOK", .Kind = kButton, .Text = "OK", .Place = {11400, 8160, 1815, 495}},
});

// clang-format on

inline constexpr auto kTables = std::to_array<ControlTable>({{.Container = {}, .Font = Arial(9.75), .Rows = kRows}});

/// The tab order by name; "lblCards" is every cell of the grid.
inline constexpr auto kTabOrder =
    std::to_array<ControlKey<kTables>>({"lstRanges", "lblCards", "txtRangeAbbr", "imgNew", "imgSave", "imgRename",
                                        "imgSaveAs", "imgDelete", "chkHalf", "cmdOK"});

}  // namespace manager_layout

using ManagerControls = LayoutControls<manager_layout::kTables>;

}  // namespace quillon
