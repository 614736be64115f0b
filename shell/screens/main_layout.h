#pragma once

// The main window as tables: the side panel, the seven screens, the two frames on the grid screen, and an invisible
// frame that stores things. The texts are verbatim, odd ones too. The web host and feedback address come from the
// build.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "analysis/analysis_driver.h"
#include "analysis/input_screens.h"
#include "results/hover_panel.h"
#include "results/results_grid.h"
#include "shell/field_help.h"
#include "shell/navigation.h"
#include "toolkit/control_row.h"
#include "toolkit/form_builder.h"

namespace quillon {

/// The screen "ALL IN Grid" among the frames frameContent.
inline constexpr std::int16_t kGridScreen = 1;

namespace main_layout {

using enum ControlKind;
using enum ControlUse;
constexpr TextAlignment kMiddle = TextAlignment::kCentered;

// Beside the side panel.
constexpr TwipRect kScreenPlace = {3300, 0, 12000, kScreenHeight};

constexpr std::int32_t kHeading = RgbNumber(kPaleYellow);
constexpr std::int32_t kInk = RgbNumber(kBrandBlue);

constexpr std::string_view kCall = ScenarioOf(AnalysisMode::kPreflopCall).Name;
constexpr std::string_view kRaise = ScenarioOf(AnalysisMode::kPreflopRaise).Name;
constexpr std::string_view kEquity = ScenarioOf(AnalysisMode::kEquityOnly).Name;
constexpr std::string_view kDetailsScreen = "Details";

// One line per row.
// clang-format off

constexpr ControlRow WhatsThis(std::int16_t index, TwipRect place, std::string_view spoken) {
  return {.Name = "lblWhatsThis", .Index = index, .Text = "What's this?", .Place = place, .Fore = kInk,
          .Font = Arial(8.25), .Use = kLink, .ToolTip = kFieldHelp.at(static_cast<std::size_t>(index)).Key,
          .Spoken = spoken};
}

constexpr ControlRow StepNumber(std::int16_t index, std::string_view text, float left, float top) {
  return {.Name = "Label", .Index = index, .Text = text, .Place = {left, top, 360, 270}, .Back = kInk,
          .Fore = 0xFFFFFF, .Font = Bold(Arial(11.25)), .Alignment = kMiddle};
}

// The screens. Each is placed and sized again when it is shown.
inline constexpr auto kScreens = std::to_array<ControlRow>({
    {.Name = "frameContent", .Index = 0, .Kind = kFrame, .Text = kCall, .Place = kScreenPlace, .Hidden = true},
    {.Name = "frameContent", .Index = 1, .Kind = kFrame, .Text = kGridTitle, .Place = kScreenPlace, .Hidden = true},
    {.Name = "frameContent", .Index = 2, .Kind = kFrame, .Text = kDetailsScreen, .Place = kScreenPlace, .Hidden = true},
    {.Name = "frameContent", .Index = 3, .Kind = kFrame, .Text = kProgressScreen, .Place = kScreenPlace, .Hidden = true},
    {.Name = "frameContent", .Index = 4, .Kind = kFrame, .Text = kRaise, .Place = kScreenPlace, .Hidden = true},
    {.Name = "frameContent", .Index = 5, .Kind = kFrame, .Text = kAboutScreen, .Place = kScreenPlace, .Hidden = true},
    {.Name = "frameContent", .Index = 6, .Kind = kFrame, .Text = kEquity, .Place = kScreenPlace, .Hidden = true},
    {.Name = "frameControls", .Kind = kFrame, .Place = kScreenPlace, .Hidden = true},
});

// The side panel, always visible.
inline constexpr auto kSidePanel = std::to_array<ControlRow>({
    {.Name = "picLogo", .Kind = kPicture, .Place = {240, 120, 2895, 1380}, .Back = kWindowColor, .Fore = 0xFFFFFF,
     .Font = Arial(12), .Use = kLink, .Picture = "logo", .Spoken = "About Quillon"},
    {.Name = "imgBackground", .Kind = kPicture, .Place = {480, 11280, 2730, 435}, .Picture = "panel_footer"},
    {.Name = "lblRangeManager", .Text = "Range Manager", .Place = {855, 6550, 1545, 240}, .Fore = 0x000000,
     .Font = Underlined(Bold(Arial(9.75))), .Use = kLink},
    {.Name = "Label", .Index = 48, .Text = "Tools:", .Place = {180, 6060, 1845, 285}, .Fore = kHeading,
     .Font = Bold(Arial(9))},
    {.Name = "lblNav", .Index = 2, .Text = kEquity, .Place = {480, 3240, 1320, 285}, .Fore = 0xFFFFFF,
     .Font = Bold(Arial(12)), .Use = kLink},
    {.Name = "Label", .Index = 46, .Text = "What do you want to do?", .Place = {180, 1800, 2415, 210},
     .Fore = kHeading, .Font = Bold(Tahoma(9))},
    {.Name = "lblNav", .Index = 4, .Text = kDetailsScreen, .Place = {420, 4680, 780, 285}, .Fore = 0xFFFFFF,
     .Font = Bold(Arial(12)), .Use = kLink},
    {.Name = "lblNav", .Index = 3, .Text = kGridTitle, .Place = {420, 4200, 1305, 285}, .Fore = 0xFFFFFF,
     .Font = Bold(Arial(12)), .Use = kLink},
    {.Name = "lblNoResults", .Text = kNoResultsCaption, .Place = {420, 4140, 2535, 555},
     .Fore = kHeading, .Font = Tahoma(9)},
    {.Name = "Label", .Index = 16, .Text = "Results:", .Place = {180, 3720, 1845, 285}, .Fore = kHeading,
     .Font = Bold(Tahoma(9))},
    {.Name = "lblNav", .Index = 0, .Text = kCall, .Place = {480, 2160, 1320, 285}, .Fore = 0xFFFFFF,
     .Font = Bold(Arial(12)), .Use = kLink},
    {.Name = "lblNav", .Index = 1, .Text = kRaise, .Place = {480, 2700, 1530, 285}, .Fore = 0xFFFFFF,
     .Font = Bold(Arial(12)), .Use = kLink},
    {.Name = "shapeRangeManager", .Kind = kRoundedShape, .Place = {300, 6480, 2895, 435}, .Back = 0xC0C0C0,
     .Fore = 0x404040},
    {.Name = "aRectangle", .Index = 2, .Kind = kShape, .Place = {-180, -60, 3555, 1575}, .Back = 0xFFFFFF,
     .Fore = 0x000000, .Style = LineStyle::kNone},
    {.Name = "aLine", .Index = 0, .Kind = kLine, .Place = {420, 780, 2160, 0}, .Fore = 0xFFFFFF},
    {.Name = "shapeBack", .Kind = kShape, .Place = {0, 10440, 3255, 555}, .Back = 0xC5E3BF, .Fore = 0xC5E3BF},
    {.Name = "imgBack", .Kind = kPicture, .Place = {0, 1440, 3300, 9000}, .Picture = "side_panel"},
});

inline constexpr auto kPreflopCall = std::to_array<ControlRow>({
    {.Name = "cmdPreflopEV", .Index = 0, .Kind = kPicture, .Place = {7680, 7020, 3015, 795}, .Back = 0xFFFFFF,
     .Font = Arial(12), .Use = kFocusLink, .Picture = "analyze", .Spoken = "Analyze"},
    {.Name = "cmboRanges", .Index = 0, .Kind = kChooser, .Place = {1320, 4380, 4395, 375}, .Font = Arial(11.25),
     .Spoken = "What is his current range?"},
    {.Name = "txtNumber", .Index = 1, .Kind = kTextBox, .Place = {1440, 3240, 2475, 315}, .Font = Arial(11.25),
     .Alignment = kMiddle, .Spoken = "How much do you have to call?"},
    {.Name = "txtNumber", .Index = 0, .Kind = kTextBox, .Place = {1440, 1980, 2535, 315}, .Font = Arial(11.25),
     .Alignment = kMiddle, .Spoken = "How much is the current pot?"},
    WhatsThis(7, {4680, 4140, 975, 255}, "What's this? Call ALL IN - Current Range"),
    WhatsThis(6, {5160, 2940, 975, 255}, "What's this? Call ALL IN - Amount To Call"),
    WhatsThis(5, {4860, 1680, 975, 255}, "What's this? Call ALL IN - Pot Size"),
    {.Name = "aLine", .Index = 2, .Kind = kLine, .Place = {480, 900, 10920, 0}, .Fore = kInk},
    {.Name = "lblOr", .Index = 0, .Text = "or", .Place = {3060, 5160, 195, 255}, .Font = Arial(11.25)},
    {.Name = "lblEditRange", .Index = 0, .Text = "Edit this Range...", .Place = {3360, 5160, 1665, 255},
     .Fore = 0x004040, .Font = Underlined(Arial(11.25)), .Use = kLink},
    {.Name = "lblNewRange", .Index = 0, .Text = "Create a New Range...", .Place = {3360, 4800, 2220, 255},
     .Fore = 0xC04000, .Font = Underlined(Arial(11.25)), .Use = kLink},
    StepNumber(21, "3.", 540, 4020),
    StepNumber(20, "2.", 540, 2820),
    StepNumber(19, "1. ", 540, 1560),
    {.Name = "Label", .Index = 18, .Text = "You're facing a decision for all your chips. It's your move...",
     .Place = {5760, 540, 5025, 240}},
    {.Name = "Label", .Index = 17, .Text = "Preflop Calling ALL IN", .Place = {540, 360, 4395, 480}, .Fore = kInk,
     .Font = Bold(Arial(20.25))},
    {.Name = "Label", .Index = 4, .Text = "or", .Place = {3060, 4800, 195, 255}, .Font = Arial(11.25)},
    {.Name = "ShapeBorder", .Index = 1, .Kind = kRoundedShape, .Place = {1380, 3180, 2595, 435}, .Back = 0xFFFFFF,
     .Fore = kInk},
    {.Name = "ShapeBorder", .Index = 0, .Kind = kRoundedShape, .Place = {1380, 1920, 2655, 435}, .Back = 0xFFFFFF,
     .Fore = kInk},
    {.Name = "Label", .Index = 2, .Text = "How much do you have to call?", .Place = {1140, 2820, 3900, 330},
     .Font = Arial(14.25)},
    {.Name = "Label", .Index = 1, .Text = "How much is the current pot?", .Place = {1080, 1560, 3660, 330},
     .Font = Arial(14.25)},
    {.Name = "Label", .Index = 0, .Text = "What is his current range?", .Place = {1200, 4020, 3285, 330},
     .Font = Arial(14.25)},
});

inline constexpr auto kPreflopRaise = std::to_array<ControlRow>({
    {.Name = "cmdPreflopEV", .Index = 1, .Kind = kPicture, .Place = {8220, 7320, 3015, 795}, .Back = 0xFFFFFF,
     .Font = Arial(12), .Use = kFocusLink, .Picture = "analyze", .Spoken = "Analyze"},
    {.Name = "cmboRanges", .Index = 2, .Kind = kChooser, .Place = {6960, 5340, 4395, 390}, .Font = Verdana(11.25),
     .Spoken = "What range will he call with?"},
    {.Name = "cmboRanges", .Index = 1, .Kind = kChooser, .Place = {1320, 5340, 4395, 390}, .Font = Verdana(11.25),
     .Spoken = "What is his current range?"},
    {.Name = "txtNumber", .Index = 4, .Kind = kTextBox, .Place = {1380, 4260, 2895, 315}, .Font = Arial(11.25),
     .Alignment = kMiddle, .Spoken = "How much will your opponent have to call if you go ALL IN?"},
    {.Name = "txtNumber", .Index = 3, .Kind = kTextBox, .Place = {1380, 3000, 2895, 315}, .Font = Arial(11.25),
     .Alignment = kMiddle, .Spoken = "How much do you have to call?"},
    {.Name = "txtNumber", .Index = 2, .Kind = kTextBox, .Place = {1380, 1800, 2895, 315}, .Font = Arial(11.25),
     .Alignment = kMiddle, .Spoken = "How much is the current pot?"},
    {.Name = "lblHisBEP", .Text = "0%", .Place = {2940, 8040, 285, 240}, .Fore = 0x404040, .Font = Arial(9.75)},
    {.Name = "Label", .Index = 47, .Text = "His BEP:", .Place = {840, 8040, 810, 240}, .Fore = 0x404040,
     .Font = Arial(9.75)},
    {.Name = "lblHisOdds", .Text = "X:1", .Place = {2940, 7740, 270, 240}, .Fore = 0x404040, .Font = Arial(9.75)},
    {.Name = "Label", .Index = 59, .Text = "His Calling Odds:", .Place = {840, 7740, 1515, 240}, .Fore = 0x404040,
     .Font = Arial(9.75)},
    {.Name = "Label", .Index = 36, .Text = "Opponent's Perspective:", .Place = {660, 7380, 2100, 240},
     .Fore = 0x404040, .Font = Arial(9.75)},
    {.Name = "aRectangle", .Index = 4, .Kind = kShape, .Place = {540, 7260, 4935, 1215}, .Back = 0xFAFAFA,
     .Fore = 0xE0E0E0},
    WhatsThis(4, {10440, 5040, 1515, 255}, "What's this? Calling Range"),
    WhatsThis(3, {4560, 5040, 1515, 255}, "What's this? Current Range"),
    WhatsThis(2, {8820, 3840, 1515, 255}, "What's this? Hypothetical Call Amount"),
    WhatsThis(1, {5220, 2580, 1515, 255}, "What's this? Amount To Call"),
    WhatsThis(0, {4980, 1380, 975, 255}, "What's this? Pot Size"),
    {.Name = "aLine", .Index = 3, .Kind = kLine, .Place = {540, 900, 10920, 0}, .Fore = kInk},
    {.Name = "Label", .Index = 23, .Text = "Preflop Raise ALL IN", .Place = {540, 360, 4095, 480}, .Fore = kInk,
     .Font = Bold(Arial(20.25))},
    {.Name = "lblOr", .Index = 2, .Text = "or", .Place = {8760, 6180, 195, 255}, .Font = Arial(11.25)},
    {.Name = "lblEditRange", .Index = 2, .Text = "Edit this Range...", .Place = {9060, 6180, 1665, 255},
     .Fore = 0x004040, .Font = Underlined(Arial(11.25)), .Use = kLink,
     .Spoken = "Edit this Range... Calling Range"},
    {.Name = "lblOr", .Index = 1, .Text = "or", .Place = {3060, 6180, 195, 255}, .Font = Arial(11.25)},
    {.Name = "lblEditRange", .Index = 1, .Text = "Edit this Range...", .Place = {3360, 6180, 1665, 255},
     .Fore = 0x004040, .Font = Underlined(Arial(11.25)), .Use = kLink,
     .Spoken = "Edit this Range... Current Range"},
    {.Name = "Label", .Index = 30, .Text = "or", .Place = {8760, 5820, 195, 255}, .Font = Arial(11.25)},
    {.Name = "lblNewRange", .Index = 2, .Text = "Create a New Range...", .Place = {9060, 5820, 2220, 255},
     .Fore = 0xC04000, .Font = Underlined(Arial(11.25)), .Use = kLink,
     .Spoken = "Create a New Range... Calling Range"},
    {.Name = "Label", .Index = 29, .Text = "or", .Place = {3060, 5820, 195, 255}, .Font = Arial(11.25)},
    {.Name = "lblNewRange", .Index = 1, .Text = "Create a New Range...", .Place = {3360, 5820, 2220, 255},
     .Fore = 0xC04000, .Font = Underlined(Arial(11.25)), .Use = kLink,
     .Spoken = "Create a New Range... Current Range"},
    StepNumber(28, "5.", 6240, 4980),
    StepNumber(27, "4.", 540, 4980),
    StepNumber(26, "3.", 540, 3780),
    StepNumber(25, "2.", 540, 2460),
    StepNumber(24, "1. ", 540, 1260),
    {.Name = "Label", .Index = 22, .Text = "Fold? Go ALL IN? Let's find out...", .Place = {8340, 540, 2760, 240}},
    {.Name = "ShapeBorder", .Index = 4, .Kind = kRoundedShape, .Place = {1320, 4200, 3015, 435}, .Back = 0xFFFFFF,
     .Fore = kInk},
    {.Name = "ShapeBorder", .Index = 3, .Kind = kRoundedShape, .Place = {1320, 2940, 3015, 435}, .Back = 0xFFFFFF,
     .Fore = kInk},
    {.Name = "ShapeBorder", .Index = 2, .Kind = kRoundedShape, .Place = {1320, 1740, 3015, 435}, .Back = 0xFFFFFF,
     .Fore = kInk},
    {.Name = "Label", .Index = 8, .Text = "What range will he call with?", .Place = {6780, 4920, 4335, 375},
     .Font = Arial(14.25)},
    {.Name = "Label", .Index = 7, .Text = "What is his current range?", .Place = {1200, 4920, 3285, 330},
     .Font = Arial(14.25)},
    {.Name = "Label", .Index = 6, .Text = "How much will your opponent have to call if you go ALL IN?",
     .Place = {1200, 3720, 7695, 315}, .Font = Arial(14.25)},
    {.Name = "Label", .Index = 5, .Text = "How much do you have to call?", .Place = {1200, 2460, 3900, 330},
     .Font = Arial(14.25)},
    {.Name = "Label", .Index = 3, .Text = "How much is the current pot?", .Place = {1200, 1260, 3750, 360},
     .Font = Arial(14.25)},
});

inline constexpr auto kEquityOnly = std::to_array<ControlRow>({
    {.Name = "cmdPreflopEV", .Index = 2, .Kind = kPicture, .Place = {7920, 3240, 3015, 795}, .Back = 0xFFFFFF,
     .Font = Arial(12), .Use = kFocusLink, .Picture = "analyze", .Spoken = "Analyze"},
    {.Name = "cmboRanges", .Index = 3, .Kind = kChooser, .Place = {660, 2340, 4395, 390}, .Font = Verdana(11.25),
     .Spoken = "Select a Range:"},
    {.Name = "lblNewRange", .Index = 3, .Text = "Create a New Range...", .Place = {2820, 2820, 2220, 255},
     .Fore = 0xC04000, .Font = Underlined(Arial(11.25)), .Use = kLink},
    {.Name = "Label", .Index = 63, .Text = "or", .Place = {2520, 2820, 195, 255}, .Font = Arial(11.25)},
    {.Name = "lblEditRange", .Index = 3, .Text = "Edit this Range...", .Place = {2820, 3180, 1665, 255},
     .Fore = 0x004040, .Font = Underlined(Arial(11.25)), .Use = kLink},
    {.Name = "lblOr", .Index = 3, .Text = "or", .Place = {2520, 3180, 195, 255}, .Font = Arial(11.25)},
    {.Name = "Label", .Index = 62, .Text = "Select a Range:", .Place = {540, 1920, 2025, 330}, .Font = Arial(14.25)},
    {.Name = "Label", .Index = 61, .Text = "Show me the equity!", .Place = {9000, 540, 2145, 255},
     .Font = Arial(11.25)},
    {.Name = "Label", .Index = 60, .Text = kEquity, .Place = {540, 360, 2295, 480}, .Fore = kInk,
     .Font = Bold(Arial(20.25))},
    {.Name = "aLine", .Index = 5, .Kind = kLine, .Place = {540, 900, 10920, 0}, .Fore = kInk},
});

// With its two frames.
inline constexpr auto kAllInGrid = std::to_array<ControlRow>({
    {.Name = "frameLegend", .Kind = kFrame, .Place = {6420, 5220, 4995, 2235}, .Back = 0xFFFFFF, .Font = Arial(12)},
    {.Name = "frameHover", .Kind = kFrame, .Place = {7620, 1740, 3855, 4035}, .Back = 0xE0E0E0,
     .Fore = kWindowTextColor, .Font = Arial(12), .Hidden = true},
    {.Name = "txtHandInfo", .Kind = kReadOnlyMemo, .Text = "-\r\n", .Place = {540, 6660, 5535, 1035},
     .Fore = 0x404040, .Font = Arial(9), .Spoken = "Situation"},
    {.Name = "imgGridBack", .Kind = kPicture, .Place = {525, 945, 5565, 5565}, .Picture = "grid_back"},
    {.Name = "imgSaveAsRange", .Kind = kPicture, .Place = {5820, 8040, 540, 540}, .Use = kLink,
     .Picture = "save_as_range", .ToolTip = "Save this grid!", .Spoken = "Make a range of the profitable hands"},
    {.Name = "aShape", .Index = 1, .Kind = kLine, .Place = {6540, 840, 4260, 0}, .Fore = 0xC0C0C0},
    {.Name = "lblLink", .Index = 0, .Text = "Check out our online tutorials", .Place = {8460, 7740, 2505, 240},
     .Fore = 0x33789C, .Font = Underlined(Tahoma(9.75)), .Use = kLink},
    {.Name = "Label", .Index = 14, .Text = "Want to learn more?", .Place = {6600, 7740, 1770, 240}, .Fore = 0x000000},
    {.Name = "Label", .Index = 11, .Text = "Results", .Place = {6540, 420, 4455, 315}, .Fore = 0x000000,
     .Font = Tahoma(15.75)},
    {.Name = "imgSave", .Kind = kPicture, .Place = {240, 8100, 480, 480}, .Use = kLink, .Picture = "save_image",
     .ToolTip = "Save this grid!", .Spoken = "Save the grid as a picture"},
    {.Name = "lblGridTitle", .Text = kGridTitle, .Place = {360, 420, 5595, 375}, .Fore = 0x008000,
     .Font = Arial(15.75)},
    {.Name = "GridContainer", .Kind = kShape, .Place = {240, 180, 6135, 7815}, .Fore = 0x808080},
    {.Name = "shapeCardBack", .Index = 0, .Kind = kShape, .Place = {900, 1020, 405, 405}, .Back = 0xFFFF80,
     .Fore = 0x404040, .Hidden = true},
    {.Name = "lblCards", .Index = 0, .Text = "AA", .Place = {480, 1080, 435, 315}, .Font = Tahoma(8.25),
     .Hidden = true},
    {.Name = "Label", .Index = 9, .Text = " " QUILLON_WEB_HOST, .Place = {4200, 7680, 2055, 255}, .Fore = 0x808080,
     .Font = Arial(8.25)},
    {.Name = "shapeBlue", .Kind = kShape, .Place = {420, 840, 5760, 5700}, .Back = 0xE0E0E0, .Fore = 0x33789C,
     .Hidden = true},
    {.Name = "lblResults", .Text = kNoAnalysisText, .Place = {6600, 1020, 3840, 4410},
     .Font = Tahoma(11.25)},
});

inline constexpr auto kLegend = std::to_array<ControlRow>({
    {.Name = "Picture1", .Kind = kPicture, .Place = {420, 840, 315, 315}, .Back = kWindowColor,
     .Fore = kWindowTextColor, .Font = Arial(12), .Picture = "legend_green", .Spoken = "Green"},
    {.Name = "Picture2", .Kind = kPicture, .Place = {420, 1320, 315, 315}, .Back = kWindowColor,
     .Fore = kWindowTextColor, .Font = Arial(12), .Picture = "legend_red", .Spoken = "Red"},
    {.Name = "Label", .Index = 12, .Text = "Legend", .Place = {300, 320, 930, 345}, .Back = 0xFFFFFF,
     .Fore = 0x000000, .Font = Tahoma(14.25)},
    {.Name = "Label", .Index = 13, .Text = kBadLegend, .Place = {900, 1380, 390, 270}, .Font = Tahoma(11.25)},
    {.Name = "Label", .Index = 15, .Text = kGoodLegend, .Place = {900, 855, 1005, 270}, .Font = Tahoma(11.25)},
    {.Name = "Shape1", .Kind = kShape, .Place = {180, 480, 4095, 1575}, .Fore = 0xC0C0C0,
     .Style = LineStyle::kDotted},
});

inline constexpr auto kHoverPanel = std::to_array<ControlRow>({
    {.Name = "lblHov_Advice", .Text = "You should go ALLIN", .Place = {60, 3000, 3735, 315}, .Fore = 0xFFFFFF,
     .Font = Bold(Arial(9.75)), .Alignment = kMiddle},
    {.Name = "aRectangle", .Index = 1, .Kind = kShape, .Place = {0, 2940, 3795, 375}, .Back = 0x404040},
    {.Name = "lblHov_FoldPerc", .Text = "50%", .Place = {2400, 2040, 390, 240}, .Font = Arial(9.75)},
    {.Name = "lblHovDesc_FoldPerc", .Text = kFoldShareTitle, .Place = {120, 2040, 1575, 240}, .Font = Arial(9.75)},
    {.Name = "lblHov_ROI", .Text = "20%", .Place = {2400, 1560, 390, 240}, .Font = Arial(9.75)},
    {.Name = "lblHov_EV", .Text = "+200", .Place = {2400, 1260, 435, 240}, .Font = Arial(9.75)},
    {.Name = "lblHov_Eq", .Text = "0.50", .Place = {2400, 960, 375, 240}, .Font = Bold(Arial(9.75))},
    {.Name = "lblHovDesc_ROI", .Text = kReturnTitle, .Place = {180, 1560, 390, 240}, .Font = Arial(9.75)},
    {.Name = "lblHovDesc_EV", .Text = kValueTitle, .Place = {180, 1260, 330, 240}, .Font = Arial(9.75)},
    {.Name = "lblHovDesc_Eq", .Text = "Equity (Win %):", .Place = {180, 960, 1380, 240}, .Font = Arial(9.75)},
    {.Name = "lblHov_Cards", .Text = "AA", .Place = {180, 240, 690, 600}, .Font = Arial(26.25)},
    {.Name = "rectHov", .Kind = kShape, .Place = {10, 10, 3780, 3315}, .Fore = 0x404040, .LineWidth = 2},
    {.Name = "imgHover", .Kind = kPicture, .Place = {0, 0, 4200, 3750}, .Picture = "hover_green"},
});

inline constexpr auto kDetails = std::to_array<ControlRow>({
    {.Name = "cmbo169", .Kind = kChooser, .Place = {2460, 7800, 1275, 360}, .Hidden = true,
     .Spoken = "Add Specific Hand:"},
    {.Name = "cmboOutputType", .Kind = kChooser, .Place = {9000, 7800, 2655, 360}, .Spoken = "Type of output:"},
    {.Name = "rtfSummary", .Kind = kRichTextBox, .Place = {540, 1140, 11055, 6495}, .Font = Verdana(9.75), .Spoken = "Analysis details"},
    {.Name = "lblSpecificHand", .Text = "Add Specific Hand:", .Place = {240, 7860, 1860, 255}, .Hidden = true},
    {.Name = "Label", .Index = 65, .Text = "Type of output:", .Place = {7380, 7860, 1440, 255}},
    {.Name = "Label", .Index = 32, .Text = "Analysis Details", .Place = {540, 540, 2385, 360}, .Fore = kInk,
     .Font = Bold(Arial(15.75))},
    {.Name = "aShape", .Index = 5, .Kind = kLine, .Place = {540, 1020, 11040, 0}, .Fore = kInk},
    {.Name = "Label", .Index = 31, .Text = "For the mathematically inclined...", .Place = {8505, 660, 2850, 240}},
});

inline constexpr auto kProgress = std::to_array<ControlRow>({
    {.Name = "picProgBar", .Kind = kShape, .Place = {1980, 3180, static_cast<float>(kProgressBarWidth), 495}, .Back = 0x1B56BA, .Font = Arial(12),
     .Style = LineStyle::kNone},
    {.Name = "Shape3", .Kind = kShape, .Place = {120, 300, 855, 375}, .Fore = 0x800000},
    {.Name = "lblStopCalc", .Text = "< Back", .Place = {195, 360, 720, 240}, .Fore = 0x800000, .Use = kLink},
    {.Name = "Shape2", .Kind = kShape, .Place = {1920, 3120, 7935, 615}},
    {.Name = "Label", .Index = 49,
     .Text =
         "Want to learn more? Check out the 'Resources' section on "
         QUILLON_WEB_HOST
         " for examples, tutorials, and a easy to understand explanations for all the behind the math "
         "used in this software.",
     .Place = {5760, 6060, 5775, 855}, .Fore = 0x808080},
    {.Name = "aLine", .Index = 6, .Kind = kLine, .Place = {5400, 6120, 0, 1260}, .Fore = 0xC0C0C0},
    {.Name = "Label", .Index = 50, .Text = "=735+220-178", .Place = {360, 6840, 4035, 315}, .Fore = 0x808080},
    {.Name = "Label", .Index = 10,
     .Text =
         "Did you know that you can perform addition and subtraction in the text boxes? For example next "
         "time try typing:",
     .Place = {360, 6060, 4035, 735}, .Fore = 0x808080},
    {.Name = "lblProgressMsg", .Text = "Quillon...", .Place = {1920, 1440, 7860, 1575}, .Font = Bold(Arial(18)),
     .Alignment = kMiddle},
    {.Name = "lblProgressPerc", .Text = "%...", .Place = {1980, 3960, 7920, 255}, .Font = Arial(9.75),
     .Alignment = kMiddle},
    {.Name = "aImage", .Index = 2, .Kind = kPicture, .Place = {10860, 7140, 420, 330}, .Picture = "progress_mark"},
});

inline constexpr auto kAboutFrame = std::to_array<ControlRow>({
    {.Name = "frameAboutContent", .Kind = kFrame, .Place = kScreenPlace, .Hidden = true},
});

inline constexpr auto kAbout = std::to_array<ControlRow>({
    {.Name = "chkUpgrade", .Kind = kCheckBox, .Text = "Automatically check for upgrades",
     .Place = {6000, 4140, 3615, 315}, .Back = 0xFFFFFF},
    {.Name = "cmdSendFeedback", .Kind = kButton, .Text = "Send", .Place = {6600, 7020, 1335, 375}, .Font = Tahoma(9)},
    {.Name = "txtFeedback", .Kind = kMemo, .Place = {420, 6060, 6015, 1395}, .Font = Arial(9), .Spoken = "Feedback"},
    {.Name = "lblLink", .Index = 3, .Text = "Download Upgrade", .Place = {5940, 3660, 4275, 240}, .Fore = kInk,
     .Font = Underlined(Bold(Tahoma(9.75))), .Hidden = true, .Use = kLink},
    {.Name = "lblCurrentVersion", .Text = "0.5", .Place = {7500, 3120, 2805, 300}, .Fore = 0x000000},
    {.Name = "Label", .Index = 58, .Text = "Latest Version:", .Place = {5940, 3120, 1485, 300}, .Fore = 0x000000},
    {.Name = "Label", .Index = 57, .Text = "Good luck at the tables.", .Place = {420, 3060, 3675, 315}},
    {.Name = "Label", .Index = 56,
     .Text =
         "If you're confused about anything, chances are it is covered under the \"Resources\" section of "
         "our website. Check it out. If you're still confused, don't hesitate to send an email to "
         QUILLON_CONTACT_ADDRESS
         " and and I'll get back to you as soon as possible.",
     .Place = {420, 1680, 4695, 1335}},
    {.Name = "Label", .Index = 55, .Text = "Howdy.", .Place = {420, 1260, 3675, 315}},
    {.Name = "Label", .Index = 54, .Text = "Your Version:", .Place = {5940, 2820, 1485, 300}, .Fore = 0x000000},
    {.Name = "lblVersion", .Text = "0.5", .Place = {7500, 2820, 1485, 300}, .Fore = 0x000000},
    {.Name = "Label", .Index = 52, .Text = "Throw in your 2¢. Let us know what you'd like to see next:",
     .Place = {420, 5700, 5865, 300}, .Fore = 0x000000},
    {.Name = "Label", .Index = 42, .Text = "Send us Feedback", .Place = {420, 5220, 4140, 405}, .Fore = 0x000000,
     .Font = Tahoma(18)},
    {.Name = "lblNumRanges", .Text = "0", .Place = {7560, 2220, 1485, 300}, .Fore = 0x000000},
    {.Name = "Label", .Index = 51, .Text = "# Ranges:", .Place = {5940, 2220, 1485, 300}, .Fore = 0x000000},
    {.Name = "Label", .Index = 33, .Text = "Quick Info", .Place = {5820, 1560, 1635, 435}, .Fore = 0x000000,
     .Font = Tahoma(18)},
    {.Name = "aImage", .Index = 0, .Kind = kPicture, .Place = {5640, 1320, 4785, 900}, .Picture = "about_header"},
    {.Name = "aRectangle", .Index = 3, .Kind = kShape, .Place = {5640, 2040, 4755, 2775}, .Fore = 0xE0E0E0},
    {.Name = "aLine", .Index = 4, .Kind = kLine, .Place = {480, 660, 10920, 0}, .Fore = kInk},
    {.Name = "Label", .Index = 34, .Text = "Welcome to Quillon!", .Place = {420, 0, 5295, 480}, .Fore = kInk,
     .Font = Bold(Arial(20.25))},
});

// The store: pictures for the hover panel, the list of range files, and the chooser that a new range is for.
inline constexpr auto kStore = std::to_array<ControlRow>({
    {.Name = "fileList", .Kind = kListBox, .Place = {300, 6300, 2535, 1845}, .Font = MsSansSerif(8.25),
     .Hidden = true},
    {.Name = "backBlue", .Kind = kPicture, .Place = {300, 4320, 2535, 1875}, .Font = Arial(12),
     .Picture = "hover_blue"},
    {.Name = "backRed", .Kind = kPicture, .Place = {300, 2340, 2535, 1875}, .Font = Arial(12), .Picture = "hover_red"},
    {.Name = "backGreen", .Kind = kPicture, .Place = {300, 420, 2535, 1875}, .Font = Arial(12),
     .Picture = "hover_green"},
    {.Name = "lblLastEdit", .Text = "0", .Place = {300, 8220, 2535, 315}, .Back = kWindowColor,
     .Fore = kWindowTextColor, .Font = Verdana(8.25), .Hidden = true},
});

/// Each table comes after the one that holds its container.
inline constexpr auto kTables = std::to_array<ControlTable>({
    {.Container = "", .Font = Verdana(8.25), .Rows = kScreens},
    {.Container = "", .Font = Verdana(8.25), .Rows = kSidePanel},
    {.Container = "frameContent(0)", .Font = Verdana(8.25), .Rows = kPreflopCall},
    {.Container = "frameContent(4)", .Font = Verdana(8.25), .Rows = kPreflopRaise},
    {.Container = "frameContent(6)", .Font = Arial(12), .Rows = kEquityOnly},
    {.Container = "frameContent(1)", .Font = MsSansSerif(8.25), .Rows = kAllInGrid},
    {.Container = "frameLegend", .Font = Arial(12), .Rows = kLegend},
    {.Container = "frameHover", .Font = Arial(12), .Rows = kHoverPanel},
    {.Container = "frameContent(2)", .Font = MsSansSerif(8.25), .Rows = kDetails},
    {.Container = "frameContent(3)", .Font = MsSansSerif(9.75), .Rows = kProgress},
    {.Container = "frameContent(5)", .Font = MsSansSerif(8.25), .Rows = kAboutFrame},
    // At 12 points, Label(56) would run into Label(57), and Label(58) into lblCurrentVersion.
    {.Container = "frameAboutContent", .Font = Arial(9.75), .Rows = kAbout},
    {.Container = "frameControls", .Font = Arial(12), .Rows = kStore},
});

// clang-format on

constexpr bool HasRow(std::string_view name, std::int16_t index, std::string_view text = {}) {
  for (const ControlTable& table : kTables) {
    for (const ControlRow& row : table.Rows) {
      if (row.Name == name && row.Index == index && (text.empty() || row.Text == text)) return true;
    }
  }
  return false;
}

// A link and a screen with its name, a start button, and its boxes and lists.
constexpr bool HasInputScreen(const InputScreen& screen) {
  const auto index = static_cast<std::int16_t>(&screen - kInputScreens.data());
  const std::string_view name = ScenarioOf(screen.Mode).Name;
  const auto has = [](std::string_view control) {
    return [control](std::int16_t place) { return place == kNoControl || HasRow(control, place); };
  };
  return HasRow("lblNav", index, name) && HasRow("cmdPreflopEV", index) &&
         std::ranges::find(kScreens, name, &ControlRow::Text) != kScreens.end() &&
         std::ranges::all_of(screen.AmountBoxes, has("txtNumber")) &&
         std::ranges::all_of(screen.RangeLists, has("cmboRanges")) &&
         std::ranges::all_of(screen.RangeLists, has("lblOr")) &&
         std::ranges::all_of(screen.RangeLists, has("lblEditRange")) &&
         std::ranges::all_of(screen.RangeLists, has("lblNewRange"));
}
static_assert(std::ranges::all_of(kInputScreens, HasInputScreen));
static_assert(HasRow("lblNav", kGridNav, kGridTitle) && HasRow("lblNav", kDetailsNav, kDetailsScreen));

}  // namespace main_layout

using MainControls = LayoutControls<main_layout::kTables>;

}  // namespace quillon
