#include "shell/screens/main_layout.h"

#include <array>
#include <iterator>
#include <set>
#include <sstream>
#include <string>

#include "results/web_addresses.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

struct ContainerCase {
  std::string_view Container;  // empty: the window
  std::string_view Controls;
};

// All controls by name, in the container that holds them.
const auto kContainers = std::to_array<ContainerCase>({
    {"",
     "frameContent(0) frameContent(1) frameContent(2) frameContent(3) frameContent(4) frameContent(5) frameContent(6) "
     "frameControls picLogo imgBackground lblRangeManager Label(48) lblNav(0) lblNav(1) lblNav(2) lblNav(3) lblNav(4) "
     "Label(46) lblNoResults Label(16) shapeRangeManager aRectangle(2) aLine(0) shapeBack imgBack"},
    {"frameContent(0)",
     "cmdPreflopEV(0) cmboRanges(0) txtNumber(1) txtNumber(0) lblWhatsThis(7) lblWhatsThis(6) lblWhatsThis(5) aLine(2) "
     "lblOr(0) lblEditRange(0) lblNewRange(0) Label(21) Label(20) Label(19) Label(18) Label(17) Label(4) "
     "ShapeBorder(1) ShapeBorder(0) Label(2) Label(1) Label(0)"},
    {"frameContent(4)",
     "cmdPreflopEV(1) cmboRanges(2) cmboRanges(1) txtNumber(4) txtNumber(3) txtNumber(2) lblHisBEP Label(47) "
     "lblHisOdds Label(59) Label(36) aRectangle(4) lblWhatsThis(4) lblWhatsThis(3) lblWhatsThis(2) lblWhatsThis(1) "
     "lblWhatsThis(0) aLine(3) Label(23) lblOr(2) lblEditRange(2) lblOr(1) lblEditRange(1) Label(30) lblNewRange(2) "
     "Label(29) lblNewRange(1) Label(28) Label(27) Label(26) Label(25) Label(24) Label(22) ShapeBorder(4) "
     "ShapeBorder(3) ShapeBorder(2) Label(8) Label(7) Label(6) Label(5) Label(3)"},
    {"frameContent(6)",
     "cmdPreflopEV(2) cmboRanges(3) lblNewRange(3) Label(63) lblEditRange(3) lblOr(3) Label(62) Label(61) Label(60) "
     "aLine(5)"},
    {"frameContent(1)",
     "frameLegend frameHover txtHandInfo imgGridBack imgSaveAsRange aShape(1) lblLink(0) Label(14) Label(11) imgSave "
     "lblGridTitle GridContainer shapeCardBack(0) lblCards(0) Label(9) shapeBlue lblResults"},
    {"frameLegend", "Picture1 Picture2 Label(12) Label(13) Label(15) Shape1"},
    {"frameHover",
     "lblHov_Advice aRectangle(1) lblHov_FoldPerc lblHovDesc_FoldPerc lblHov_ROI lblHov_EV lblHov_Eq lblHovDesc_ROI "
     "lblHovDesc_EV lblHovDesc_Eq lblHov_Cards rectHov imgHover"},
    {"frameContent(2)", "cmbo169 cmboOutputType rtfSummary lblSpecificHand Label(65) Label(32) aShape(5) Label(31)"},
    {"frameContent(3)",
     "picProgBar Shape3 lblStopCalc Shape2 Label(49) aLine(6) Label(50) Label(10) lblProgressMsg lblProgressPerc "
     "aImage(2)"},
    {"frameContent(5)", "frameAboutContent"},
    {"frameAboutContent",
     "chkUpgrade cmdSendFeedback txtFeedback lblLink(3) lblCurrentVersion Label(58) Label(57) Label(56) Label(55) "
     "Label(54) lblVersion Label(52) Label(42) lblNumRanges Label(51) Label(33) aImage(0) aRectangle(3) aLine(4) "
     "Label(34)"},
    {"frameControls", "fileList backBlue backRed backGreen lblLastEdit"},
});

// One row of the design, with its place in twips and its font in pixels (4/3 of its points, to the nearest).
struct LabelCase {
  MainControls::Key<Label> Name;
  std::int16_t Index;
  std::string_view Caption;  // empty: it is looked at elsewhere
  TwipRect Place;
  std::string_view Fore;
  std::string_view Family;
  int Pixels;
  bool Bold;
  bool Underlined;
};

// One row stays one row.
// clang-format off
const auto kLabels = std::to_array<LabelCase>({
    {"lblRangeManager", -1, "Range Manager", {855, 6550, 1545, 240}, "#000000", "Arial", 13, true, true},
    {"Label", 48, "Tools:", {180, 6060, 1845, 285}, "#ffffc0", "Arial", 12, true, false},
    {"lblNav", 2, "Equity Only", {480, 3240, 1320, 285}, "#ffffff", "Arial", 16, true, false},
    {"Label", 46, "What do you want to do?", {180, 1800, 2415, 210}, "#ffffc0", "Tahoma", 12, true, false},
    {"lblNav", 4, "Details", {420, 4680, 780, 285}, "#ffffc0", "Arial", 16, true, false},
    {"lblNav", 3, "ALL IN Grid", {420, 4200, 1305, 285}, "#ffffc0", "Arial", 16, true, false},
    {"lblNoResults", -1, "There are no results to display at this time.", {420, 4140, 2535, 555},
     "#ffffc0", "Tahoma", 12, false, false},
    {"Label", 16, "Results:", {180, 3720, 1845, 285}, "#ffffc0", "Tahoma", 12, true, false},
    {"lblNav", 0, "Preflop Call", {480, 2160, 1320, 285}, "#ffffff", "Arial", 16, true, false},
    {"lblNav", 1, "Preflop Raise", {480, 2700, 1530, 285}, "#ffffff", "Arial", 16, true, false},
    {"lblWhatsThis", 7, "What's this?", {4680, 4140, 975, 255}, "#336699", "Arial", 11, false, false},
    {"lblWhatsThis", 6, "What's this?", {5160, 2940, 975, 255}, "#336699", "Arial", 11, false, false},
    {"lblWhatsThis", 5, "What's this?", {4860, 1680, 975, 255}, "#336699", "Arial", 11, false, false},
    {"lblOr", 0, "or", {3060, 5160, 195, 255}, "#000000", "Arial", 15, false, false},
    {"lblEditRange", 0, "Edit this Range...", {3360, 5160, 1665, 255}, "#004040", "Arial", 15, false, true},
    {"lblNewRange", 0, "Create a New Range...", {3360, 4800, 2220, 255}, "#c04000", "Arial", 15, false, true},
    {"Label", 21, "3.", {540, 4020, 360, 270}, "#ffffff", "Arial", 15, true, false},
    {"Label", 20, "2.", {540, 2820, 360, 270}, "#ffffff", "Arial", 15, true, false},
    {"Label", 19, "1. ", {540, 1560, 360, 270}, "#ffffff", "Arial", 15, true, false},
    {"Label", 18, "You're facing a decision for all your chips. It's your move...", {5760, 540, 5025, 240},
     "#000000", "Verdana", 11, false, false},
    {"Label", 17, "Preflop Calling ALL IN", {540, 360, 4395, 480}, "#336699", "Arial", 27, true, false},
    {"Label", 4, "or", {3060, 4800, 195, 255}, "#000000", "Arial", 15, false, false},
    {"Label", 2, "How much do you have to call?", {1140, 2820, 3900, 330}, "#000000", "Arial", 19, false, false},
    {"Label", 1, "How much is the current pot?", {1080, 1560, 3660, 330}, "#000000", "Arial", 19, false, false},
    {"Label", 0, "What is his current range?", {1200, 4020, 3285, 330}, "#000000", "Arial", 19, false, false},
    {"lblHisBEP", -1, "0%", {2940, 8040, 285, 240}, "#404040", "Arial", 13, false, false},
    {"Label", 47, "His BEP:", {840, 8040, 810, 240}, "#404040", "Arial", 13, false, false},
    {"lblHisOdds", -1, "X:1", {2940, 7740, 270, 240}, "#404040", "Arial", 13, false, false},
    {"Label", 59, "His Calling Odds:", {840, 7740, 1515, 240}, "#404040", "Arial", 13, false, false},
    {"Label", 36, "Opponent's Perspective:", {660, 7380, 2100, 240}, "#404040", "Arial", 13, false, false},
    {"lblWhatsThis", 4, "What's this?", {10440, 5040, 1515, 255}, "#336699", "Arial", 11, false, false},
    {"lblWhatsThis", 3, "What's this?", {4560, 5040, 1515, 255}, "#336699", "Arial", 11, false, false},
    {"lblWhatsThis", 2, "What's this?", {8820, 3840, 1515, 255}, "#336699", "Arial", 11, false, false},
    {"lblWhatsThis", 1, "What's this?", {5220, 2580, 1515, 255}, "#336699", "Arial", 11, false, false},
    {"lblWhatsThis", 0, "What's this?", {4980, 1380, 975, 255}, "#336699", "Arial", 11, false, false},
    {"Label", 23, "Preflop Raise ALL IN", {540, 360, 4095, 480}, "#336699", "Arial", 27, true, false},
    {"lblOr", 2, "or", {8760, 6180, 195, 255}, "#000000", "Arial", 15, false, false},
    {"lblEditRange", 2, "Edit this Range...", {9060, 6180, 1665, 255}, "#004040", "Arial", 15, false, true},
    {"lblOr", 1, "or", {3060, 6180, 195, 255}, "#000000", "Arial", 15, false, false},
    {"lblEditRange", 1, "Edit this Range...", {3360, 6180, 1665, 255}, "#004040", "Arial", 15, false, true},
    {"Label", 30, "or", {8760, 5820, 195, 255}, "#000000", "Arial", 15, false, false},
    {"lblNewRange", 2, "Create a New Range...", {9060, 5820, 2220, 255}, "#c04000", "Arial", 15, false, true},
    {"Label", 29, "or", {3060, 5820, 195, 255}, "#000000", "Arial", 15, false, false},
    {"lblNewRange", 1, "Create a New Range...", {3360, 5820, 2220, 255}, "#c04000", "Arial", 15, false, true},
    {"Label", 28, "5.", {6240, 4980, 360, 270}, "#ffffff", "Arial", 15, true, false},
    {"Label", 27, "4.", {540, 4980, 360, 270}, "#ffffff", "Arial", 15, true, false},
    {"Label", 26, "3.", {540, 3780, 360, 270}, "#ffffff", "Arial", 15, true, false},
    {"Label", 25, "2.", {540, 2460, 360, 270}, "#ffffff", "Arial", 15, true, false},
    {"Label", 24, "1. ", {540, 1260, 360, 270}, "#ffffff", "Arial", 15, true, false},
    {"Label", 22, "Fold? Go ALL IN? Let's find out...", {8340, 540, 2760, 240}, "#000000", "Verdana", 11, false, false},
    {"Label", 8, "What range will he call with?", {6780, 4920, 4335, 375}, "#000000", "Arial", 19, false, false},
    {"Label", 7, "What is his current range?", {1200, 4920, 3285, 330}, "#000000", "Arial", 19, false, false},
    {"Label", 6, "How much will your opponent have to call if you go ALL IN?", {1200, 3720, 7695, 315},
     "#000000", "Arial", 19, false, false},
    {"Label", 5, "How much do you have to call?", {1200, 2460, 3900, 330}, "#000000", "Arial", 19, false, false},
    {"Label", 3, "How much is the current pot?", {1200, 1260, 3750, 360}, "#000000", "Arial", 19, false, false},
    {"lblNewRange", 3, "Create a New Range...", {2820, 2820, 2220, 255}, "#c04000", "Arial", 15, false, true},
    {"Label", 63, "or", {2520, 2820, 195, 255}, "#000000", "Arial", 15, false, false},
    {"lblEditRange", 3, "Edit this Range...", {2820, 3180, 1665, 255}, "#004040", "Arial", 15, false, true},
    {"lblOr", 3, "or", {2520, 3180, 195, 255}, "#000000", "Arial", 15, false, false},
    {"Label", 62, "Select a Range:", {540, 1920, 2025, 330}, "#000000", "Arial", 19, false, false},
    {"Label", 61, "Show me the equity!", {9000, 540, 2145, 255}, "#000000", "Arial", 15, false, false},
    {"Label", 60, "Equity Only", {540, 360, 2295, 480}, "#336699", "Arial", 27, true, false},
    {"lblLink", 0, "Check out our online tutorials", {8460, 7740, 2505, 240}, "#33789c", "Tahoma", 13, false, true},
    {"Label", 14, "Want to learn more?", {6600, 7740, 1770, 240}, "#000000", "MS Sans Serif", 11, false, false},
    {"Label", 11, "Results", {6540, 420, 4455, 315}, "#000000", "Tahoma", 21, false, false},
    {"lblGridTitle", -1, "ALL IN Grid", {360, 420, 5595, 375}, "#008000", "Arial", 21, false, false},
    {"Label", 9, "", {4200, 7680, 2055, 255}, "#808080", "Arial", 11, false, false},
    {"lblResults", -1, "No analysis has been performed.", {6600, 1020, 3840, 4410},
     "#000000", "Tahoma", 15, false, false},
    {"Label", 12, "Legend", {300, 320, 930, 345}, "#000000", "Tahoma", 19, false, false},
    {"Label", 13, "Fold", {900, 1380, 390, 270}, "#000000", "Tahoma", 15, false, false},
    {"Label", 15, "Go ALL IN", {900, 855, 1005, 270}, "#000000", "Tahoma", 15, false, false},
    {"lblHov_Advice", -1, "You should go ALLIN", {60, 3000, 3735, 315}, "#ffffff", "Arial", 13, true, false},
    {"lblHov_FoldPerc", -1, "50%", {2400, 2040, 390, 240}, "#000000", "Arial", 13, false, false},
    {"lblHovDesc_FoldPerc", -1, "Opponent Fold %:", {120, 2040, 1575, 240}, "#000000", "Arial", 13, false, false},
    {"lblHov_ROI", -1, "20%", {2400, 1560, 390, 240}, "#000000", "Arial", 13, false, false},
    {"lblHov_EV", -1, "+200", {2400, 1260, 435, 240}, "#000000", "Arial", 13, false, false},
    {"lblHov_Eq", -1, "0.50", {2400, 960, 375, 240}, "#000000", "Arial", 13, true, false},
    {"lblHovDesc_ROI", -1, "ROI:", {180, 1560, 390, 240}, "#000000", "Arial", 13, false, false},
    {"lblHovDesc_EV", -1, "EV:", {180, 1260, 330, 240}, "#000000", "Arial", 13, false, false},
    {"lblHovDesc_Eq", -1, "Equity (Win %):", {180, 960, 1380, 240}, "#000000", "Arial", 13, false, false},
    {"lblHov_Cards", -1, "", {180, 240, 690, 600}, "#000000", "Arial", 35, false, false},
    {"lblSpecificHand", -1, "Add Specific Hand:", {240, 7860, 1860, 255}, "#000000", "MS Sans Serif", 11, false, false},
    {"Label", 65, "Type of output:", {7380, 7860, 1440, 255}, "#000000", "MS Sans Serif", 11, false, false},
    {"Label", 32, "Analysis Details", {540, 540, 2385, 360}, "#336699", "Arial", 21, true, false},
    {"Label", 31, "For the mathematically inclined...", {8505, 660, 2850, 240},
     "#000000", "MS Sans Serif", 11, false, false},
    {"lblStopCalc", -1, "< Back", {195, 360, 720, 240}, "#800000", "MS Sans Serif", 13, false, false},
    {"Label", 49, "", {5760, 6060, 5775, 855}, "#808080", "MS Sans Serif", 13, false, false},
    {"Label", 50, "=735+220-178", {360, 6840, 4035, 315}, "#808080", "MS Sans Serif", 13, false, false},
    {"Label", 10,
     "Did you know that you can perform addition and subtraction in the text boxes? For example next time try typing:",
     {360, 6060, 4035, 735}, "#808080", "MS Sans Serif", 13, false, false},
    {"lblProgressMsg", -1, "Quillon...", {1920, 1440, 7860, 1575}, "#000000", "Arial", 24, true, false},
    {"lblProgressPerc", -1, "%...", {1980, 3960, 7920, 255}, "#000000", "Arial", 13, false, false},
    {"lblLink", 3, "Download Upgrade", {5940, 3660, 4275, 240}, "#336699", "Tahoma", 13, true, true},
    {"lblCurrentVersion", -1, "N/A", {7500, 3120, 2805, 300}, "#000000", "Arial", 13, false, false},
    {"Label", 58, "Latest Version:", {5940, 3120, 1485, 300}, "#000000", "Arial", 13, false, false},
    {"Label", 57, "Good luck at the tables.", {420, 3060, 3675, 315}, "#000000", "Arial", 13, false, false},
    {"Label", 56, "", {420, 1680, 4695, 1335}, "#000000", "Arial", 13, false, false},
    {"Label", 55, "Howdy.", {420, 1260, 3675, 315}, "#000000", "Arial", 13, false, false},
    {"Label", 54, "Your Version:", {5940, 2820, 1485, 300}, "#000000", "Arial", 13, false, false},
    {"lblVersion", -1, "0.9", {7500, 2820, 1485, 300}, "#000000", "Arial", 13, false, false},
    {"Label", 52, "Throw in your 2¢. Let us know what you'd like to see next:", {420, 5700, 5865, 300}, "#000000",
     "Arial", 13, false, false},
    {"Label", 42, "Send us Feedback", {420, 5220, 4140, 405}, "#000000", "Tahoma", 24, false, false},
    {"lblNumRanges", -1, "0", {7560, 2220, 1485, 300}, "#000000", "Arial", 13, false, false},
    {"Label", 51, "# Ranges:", {5940, 2220, 1485, 300}, "#000000", "Arial", 13, false, false},
    {"Label", 33, "Quick Info", {5820, 1560, 1635, 435}, "#000000", "Tahoma", 24, false, false},
    {"Label", 34, "Welcome to Quillon!", {420, 0, 5295, 480}, "#336699", "Arial", 27, true, false},
});
// clang-format on

struct PlaceCase {
  MainControls::Key<> Name;
  std::int16_t Index;
  TwipRect Place;
};

const auto kPlaces = std::to_array<PlaceCase>({
    {"picLogo", -1, {240, 120, 2895, 1380}},
    {"imgBackground", -1, {480, 11280, 2730, 435}},
    {"shapeRangeManager", -1, {300, 6480, 2895, 435}},
    {"aRectangle", 2, {-180, -60, 3555, 1575}},
    {"shapeBack", -1, {0, 10440, 3255, 555}},
    {"imgBack", -1, {0, 1440, 3300, 9000}},
    {"cmdPreflopEV", 0, {7680, 7020, 3015, 795}},
    {"cmboRanges", 0, {1320, 4380, 4395, 375}},
    {"txtNumber", 1, {1440, 3240, 2475, 315}},
    {"txtNumber", 0, {1440, 1980, 2535, 315}},
    {"ShapeBorder", 1, {1380, 3180, 2595, 435}},
    {"ShapeBorder", 0, {1380, 1920, 2655, 435}},
    {"cmdPreflopEV", 1, {8220, 7320, 3015, 795}},
    {"cmboRanges", 2, {6960, 5340, 4395, 390}},
    {"cmboRanges", 1, {1320, 5340, 4395, 390}},
    {"txtNumber", 4, {1380, 4260, 2895, 315}},
    {"txtNumber", 3, {1380, 3000, 2895, 315}},
    {"txtNumber", 2, {1380, 1800, 2895, 315}},
    {"aRectangle", 4, {540, 7260, 4935, 1215}},
    {"ShapeBorder", 4, {1320, 4200, 3015, 435}},
    {"ShapeBorder", 3, {1320, 2940, 3015, 435}},
    {"ShapeBorder", 2, {1320, 1740, 3015, 435}},
    {"cmdPreflopEV", 2, {7920, 3240, 3015, 795}},
    {"cmboRanges", 3, {660, 2340, 4395, 390}},
    {"frameLegend", -1, {6420, 5220, 4995, 2235}},
    {"txtHandInfo", -1, {540, 6660, 5535, 1035}},
    {"imgGridBack", -1, {525, 945, 5565, 5565}},
    {"imgSaveAsRange", -1, {5820, 8040, 540, 540}},
    {"imgSave", -1, {240, 8100, 480, 480}},
    {"GridContainer", -1, {240, 180, 6135, 7815}},
    {"shapeCardBack", 0, {520, 940, 405, 405}},
    {"shapeBlue", -1, {420, 840, 5765, 5765}},
    {"Picture1", -1, {420, 840, 315, 315}},
    {"Picture2", -1, {420, 1320, 315, 315}},
    {"Shape1", -1, {180, 480, 4095, 1575}},
    {"aRectangle", 1, {0, 2940, 3795, 375}},
    {"rectHov", -1, {10, 10, 3780, 3315}},
    {"imgHover", -1, {0, 0, 4200, 3750}},
    {"cmbo169", -1, {2460, 7800, 1275, 360}},
    {"cmboOutputType", -1, {9000, 7800, 2655, 360}},
    {"rtfSummary", -1, {540, 1140, 11055, 6495}},
    {"picProgBar", -1, {1980, 3180, 7815, 495}},
    {"Shape3", -1, {120, 300, 855, 375}},
    {"Shape2", -1, {1920, 3120, 7935, 615}},
    {"aImage", 2, {10860, 7140, 420, 330}},
    {"chkUpgrade", -1, {6000, 4140, 3615, 315}},
    {"cmdSendFeedback", -1, {6600, 7020, 1335, 375}},
    {"txtFeedback", -1, {420, 6060, 6015, 1395}},
    {"aImage", 0, {5640, 1320, 4785, 900}},
    {"aRectangle", 3, {5640, 2040, 4755, 2775}},
    {"fileList", -1, {300, 6300, 2535, 1845}},
    {"backBlue", -1, {300, 4320, 2535, 1875}},
    {"backRed", -1, {300, 2340, 2535, 1875}},
    {"backGreen", -1, {300, 420, 2535, 1875}},
    {"shapeCardBack", 168, {5680, 6100, 405, 405}},
});

struct ShapeCase {
  MainControls::Key<Shape> Name;
  std::int16_t Index;
  std::string_view Fill;  // empty: none
  std::string_view Line;
  LineStyle Style;
  int Width;
};

const auto kShapes = std::to_array<ShapeCase>({
    {"shapeRangeManager", -1, "#c0c0c0", "#404040", LineStyle::kSolid, 1},
    {"aRectangle", 2, "#ffffff", "#000000", LineStyle::kNone, 1},
    {"aLine", 0, "", "#ffffff", LineStyle::kSolid, 1},
    {"shapeBack", -1, "#c5e3bf", "#c5e3bf", LineStyle::kSolid, 1},
    {"aLine", 2, "", "#336699", LineStyle::kSolid, 1},
    {"ShapeBorder", 1, "#ffffff", "#336699", LineStyle::kSolid, 1},
    {"ShapeBorder", 0, "#ffffff", "#336699", LineStyle::kSolid, 1},
    {"aRectangle", 4, "#fafafa", "#e0e0e0", LineStyle::kSolid, 1},
    {"aLine", 3, "", "#336699", LineStyle::kSolid, 1},
    {"ShapeBorder", 4, "#ffffff", "#336699", LineStyle::kSolid, 1},
    {"ShapeBorder", 3, "#ffffff", "#336699", LineStyle::kSolid, 1},
    {"ShapeBorder", 2, "#ffffff", "#336699", LineStyle::kSolid, 1},
    {"aLine", 5, "", "#336699", LineStyle::kSolid, 1},
    {"aShape", 1, "", "#c0c0c0", LineStyle::kSolid, 1},
    {"GridContainer", -1, "", "#808080", LineStyle::kSolid, 1},
    {"shapeBlue", -1, "#e0e0e0", "#33789c", LineStyle::kSolid, 1},
    {"Shape1", -1, "", "#c0c0c0", LineStyle::kDotted, 1},
    {"aRectangle", 1, "#404040", "#000000", LineStyle::kSolid, 1},
    {"rectHov", -1, "", "#404040", LineStyle::kSolid, 2},
    {"aShape", 5, "", "#336699", LineStyle::kSolid, 1},
    {"picProgBar", -1, "#1b56ba", "#000000", LineStyle::kNone, 1},
    {"Shape3", -1, "", "#800000", LineStyle::kSolid, 1},
    {"Shape2", -1, "", "#000000", LineStyle::kSolid, 1},
    {"aLine", 6, "", "#c0c0c0", LineStyle::kSolid, 1},
    {"aRectangle", 3, "", "#e0e0e0", LineStyle::kSolid, 1},
    {"aLine", 4, "", "#336699", LineStyle::kSolid, 1},
});

std::set<std::string> WordsOf(std::string_view text) {
  std::istringstream words{std::string(text)};
  return {std::istream_iterator<std::string>(words), {}};
}

/// One window for all of these tests, which only look.
class MainLayoutTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    stage = new MainStage;
    stage->Start();
  }
  static void TearDownTestSuite() { delete stage; }

  static MainStage& Stage() { return *stage; }
  static QWidget& Get(MainControls::Key<> name, std::int16_t index) { return stage->Get(name, index); }

 private:
  static inline MainStage* stage = nullptr;
};

TEST_F(MainLayoutTest, EveryControlStandsInItsContainerUnderItsName) {
  for (const ContainerCase& row : kContainers) {
    std::set<std::string> built;
    for (const ControlTable& table : main_layout::kTables) {
      if (table.Container != row.Container) continue;
      for (const ControlRow& control : table.Rows)
        built.insert(ObjectName(control.Name, control.Index));
    }
    const std::set<std::string> expected = WordsOf(row.Controls);
    EXPECT_EQ(built, expected) << row.Container;
    for (const std::string& name : expected) {
      QWidget* control = Stage().Form.Controls().Find(name);
      ASSERT_NE(control, nullptr) << name;
      EXPECT_EQ(FromQt(control->objectName()), name);
      const QWidget* container =
          row.Container.empty() ? &Stage().Form : Stage().Form.Controls().Find(std::string(row.Container));
      EXPECT_EQ(control->parentWidget(), container) << name;
    }
  }
}

TEST_F(MainLayoutTest, LabelsReadAsDesigned) {
  for (const LabelCase& row : kLabels) {
    SCOPED_TRACE(ObjectName(row.Name.Name(), row.Index));
    const Label& label = Stage().LabelAt(row.Name, row.Index);
    if (!row.Caption.empty()) {
      EXPECT_EQ(FromQt(label.Text()), row.Caption);
    }
    const QRect place = PixelPlace(row.Place);
    EXPECT_TRUE(label.geometry().contains(place)) << "a label may grow, and never shrinks";
    EXPECT_EQ(label.y(), place.y());
    EXPECT_EQ(ColorName(label.TextColor()), row.Fore);
    EXPECT_EQ(FromQt(label.font().families().constFirst()), row.Family);
    EXPECT_EQ(label.font().pixelSize(), row.Pixels);
    EXPECT_EQ(label.font().bold(), row.Bold);
    EXPECT_EQ(label.font().underline(), row.Underlined);
  }
}

TEST_F(MainLayoutTest, EverythingElseHasItsPlace) {
  for (const PlaceCase& row : kPlaces)
    EXPECT_EQ(Get(row.Name, row.Index).geometry(), PixelPlace(row.Place)) << ObjectName(row.Name.Name(), row.Index);
}

TEST_F(MainLayoutTest, ShapesLookAsDesigned) {
  for (const ShapeCase& row : kShapes) {
    SCOPED_TRACE(ObjectName(row.Name.Name(), row.Index));
    const auto& shape = Stage().Get<Shape>(row.Name, row.Index);
    EXPECT_EQ(shape.Fill().alpha() == 0 ? "" : ColorName(shape.Fill()), row.Fill);
    EXPECT_EQ(ColorName(shape.LineColor()), row.Line);
    EXPECT_EQ(shape.Style(), row.Style);
    EXPECT_EQ(shape.LineWidth(), row.Width);
  }
}

TEST_F(MainLayoutTest, LinesAreAPixelThick) {
  EXPECT_EQ(Get("aLine", 2).geometry(), QRect(32, 60, 728, 1));
  EXPECT_EQ(Get("aLine", 6).geometry(), QRect(360, 408, 1, 84));
  EXPECT_EQ(Get("aShape", 1).geometry(), QRect(436, 56, 284, 1));
}

TEST_F(MainLayoutTest, NumbersStandWhiteOnBlue) {
  for (const std::int16_t index : std::to_array<std::int16_t>({19, 20, 21, 24, 25, 26, 27, 28})) {
    const Label& label = Stage().LabelAt("Label", index);
    EXPECT_EQ(ColorName(label.BackColor()), "#336699") << index;
  }
}

TEST_F(MainLayoutTest, TheLegendAndTheUpgradeBoxStandOnWhite) {
  EXPECT_EQ(ColorName(Stage().LabelAt("Label", 12).BackColor()), "#ffffff");
  for (const auto name : std::to_array<MainControls::Key<>>({"frameLegend", "chkUpgrade"})) {
    QWidget& control = Get(name, kNoIndex);
    const QImage picture = control.parentWidget()->grab(control.geometry()).toImage();
    EXPECT_EQ(ColorName(picture.pixelColor(picture.width() - 1, 0)), "#ffffff") << name.Name();
  }
}

TEST_F(MainLayoutTest, ListsAndBoxesHaveTheirFonts) {
  const auto expectFont = [](const QWidget& control, const char* family, int pixels) {
    EXPECT_EQ(control.font().families().constFirst(), QLatin1String(family)) << control.objectName().toStdString();
    EXPECT_EQ(control.font().pixelSize(), pixels) << control.objectName().toStdString();
  };
  expectFont(Get("cmboRanges", 0), "Arial", 15);
  for (const std::int16_t i : {std::int16_t{1}, std::int16_t{2}, std::int16_t{3}})
    expectFont(Get("cmboRanges", i), "Verdana", 15);
  for (std::int16_t i = 0; i < 5; ++i)
    expectFont(Get("txtNumber", i), "Arial", 15);
  expectFont(Get("txtHandInfo", kNoIndex), "Arial", 12);
  EXPECT_EQ(ColorName(Get("txtHandInfo", kNoIndex).palette().color(QPalette::Text)), "#404040");
  expectFont(Get("txtFeedback", kNoIndex), "Arial", 12);
  expectFont(Get("cmdSendFeedback", kNoIndex), "Tahoma", 12);
  expectFont(Get("rtfSummary", kNoIndex), "Verdana", 13);
  expectFont(Get("cmbo169", kNoIndex), "MS Sans Serif", 11);
}

TEST_F(MainLayoutTest, TheProductsAddressesStandInTheTexts) {
  const std::string host(WebHost());
  EXPECT_EQ(Stage().Caption("Label", 9), " " + host);
  EXPECT_EQ(Stage().Caption("Label", 49),
            "Want to learn more? Check out the 'Resources' section on " + host +
                " for examples, tutorials, and a easy to understand explanations for all the behind the math used in "
                "this software.");
  const std::string sentence = Stage().Caption("Label", 56);
  EXPECT_TRUE(
      sentence.starts_with("If you're confused about anything, chances are it is covered under the "
                           "\"Resources\" section of our website. Check it out. If you're still confused, "
                           "don't hesitate to send an email to "));
  EXPECT_TRUE(sentence.ends_with(" and and I'll get back to you as soon as possible."));
  EXPECT_NE(sentence.find('@'), std::string::npos);
}

TEST_F(MainLayoutTest, HiddenControlsAreHidden) {
  for (const auto name : std::to_array<MainControls::Key<>>(
           {"frameControls", "shapeBlue", "cmbo169", "lblSpecificHand", "frameHover", "lblLastEdit", "fileList"})) {
    EXPECT_TRUE(Get(name, kNoIndex).isHidden()) << name.Name();
  }
  EXPECT_TRUE(Get("lblLink", 3).isHidden());
}

TEST_F(MainLayoutTest, NoTextIsCutOff) {
  for (const Label* label : Stage().Form.findChildren<Label*>()) {
    const QSize needed = label->TextSize();
    EXPECT_LE(needed.width(), label->width()) << label->objectName().toStdString();
    EXPECT_LE(needed.height(), label->height()) << label->objectName().toStdString();
  }
}

TEST_F(MainLayoutTest, EverythingStaysWithinItsScreen) {
  for (const ContainerCase& row : kContainers) {
    if (row.Container.empty() || row.Container == "frameControls") continue;
    const QWidget& container = *Stage().Form.Controls().Find(std::string(row.Container));
    for (const std::string& name : WordsOf(row.Controls)) {
      if (name == "imgHover" || name == "frameAboutContent") continue;  // cut off at their edges, as designed
      if (name == "aRectangle(1)" || name == "lblHov_Advice" || name == "rectHov") continue;  // at the panel's edge
      const QRect place = Stage().Form.Controls().Find(name)->geometry();
      EXPECT_TRUE(container.rect().contains(place)) << name << " in " << row.Container;
    }
  }
}

// Text must not run into a neighbour: what does not overlap in the design does not on the screen.
TEST_F(MainLayoutTest, NoLabelRunsIntoItsNeighbours) {
  for (const ControlTable& table : main_layout::kTables) {
    for (const ControlRow& row : table.Rows) {
      if (row.Kind != ControlKind::kLabel || row.Hidden) continue;
      const QRect grown = Stage().Form.Controls().At(row).geometry();
      for (const ControlRow& other : table.Rows) {
        const bool plain = other.Kind == ControlKind::kShape || other.Kind == ControlKind::kRoundedShape ||
                           other.Kind == ControlKind::kLine;
        if (&other == &row || plain || other.Hidden) continue;
        if (PixelPlace(row.Place).intersects(PixelPlace(other.Place))) continue;
        EXPECT_FALSE(grown.intersects(Stage().Form.Controls().At(other).geometry()))
            << ObjectName(row.Name, row.Index) << " and " << ObjectName(other.Name, other.Index);
      }
    }
  }
}

TEST_F(MainLayoutTest, EveryPictureIsThere) {
  for (const ControlTable& table : main_layout::kTables) {
    for (const ControlRow& row : table.Rows) {
      if (row.Picture.empty()) continue;
      const auto& picture = dynamic_cast<const Picture&>(Stage().Form.Controls().At(row));
      EXPECT_FALSE(ArtworkPixmap(picture.Artwork(), picture.size(), 1).isNull()) << ObjectName(row.Name, row.Index);
    }
  }
}

}  // namespace
}  // namespace quillon
