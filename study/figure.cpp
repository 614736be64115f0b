#include "study/figure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "support/number_text.h"
#include "support/rounding.h"
#include "support/utf8.h"

namespace quillon {
namespace {

// Source: M. Okabe and K. Ito, "Color Universal Design", 2008, without the yellow, which is too pale on white, and with
// a dark purple. After the last colour they repeat with another dash.
constexpr std::array<std::string_view, 8> kLineColors = {"#0072b2", "#d55e00", "#009e73", "#cc79a7",
                                                         "#56b4e9", "#e69f00", "#6a3d9a", "#000000"};
constexpr std::array<std::string_view, 4> kDashes = {"", "7 4", "2 4", "10 4 2 4"};
constexpr double kLineWidth = 2.2;

constexpr FigurePen kGridPen = {.Color = "#e4e7eb"};
constexpr FigurePen kAxisPen = {.Color = "#7b8794"};
constexpr FigurePen kZeroPen = {.Color = "#1f2933", .Width = 1.5};
constexpr FigurePen kMarkPen = {.Color = "#1f2933", .Width = 1.5, .Dashes = "5 4"};
constexpr FigureFont kTitleFont = {.Color = "#336699", .Size = 17, .Bold = true};
constexpr FigureFont kNameFont = {.Color = "#1f2933", .Bold = true};
constexpr FigureFont kMarkFont = {.Color = "#1f2933", .Bold = true, .Halo = true};

constexpr double kPlotWidth = 640;
constexpr double kLeastPlotHeight = 380;
constexpr double kTop = 52;
constexpr double kTopUntitled = 20;
constexpr double kPotsHeight = 24;  // for the numbers above the plot
constexpr double kBelow = 62;
constexpr double kBelowUntitled = 30;
constexpr double kNameHeight = 18;
constexpr double kNoteHeight = 16;
constexpr double kNameWidth = 76;
constexpr double kNameStart = 28;  // after the sample
constexpr double kGap = 8;
constexpr double kTick = 5;
constexpr double kLetter = 7;  // the width of a digit in the ticks
constexpr double kBold = 1.15;  // times as wide
constexpr double kHalfCapital = 4.5;
constexpr int kMostUpTicks = 8;
constexpr int kDecimals = 4;

double WidthOf(std::string_view text) {
  return kLetter * static_cast<double>(text.size());
}

// 0 at `low`, 1 at `high`. A span may overflow, and half a span underflow.
double ShareOf(double value, double low, double high) {
  const double span = high - low;
  if (!(span > 0)) return 0.5;
  return std::isfinite(span) ? (value - low) / span : (value / 2 - low / 2) / (high / 2 - low / 2);
}

// As many as fit.
std::vector<double> UpTicks(const FigureScale& up, double height = kLeastPlotHeight) {
  return RoundTicks(up.Low, up.High, std::clamp(static_cast<int>(height / kNameHeight), 2, kMostUpTicks));
}

FigureScale InPots(const FigureScale& scale) {
  return {.Title = {}, .Low = scale.Low / scale.Pot, .High = scale.High / scale.Pot};
}

double WidestOf(const std::vector<double>& numbers) {
  double widest = 0;
  for (const double number : numbers)
    widest = std::max(widest, WidthOf(NumberText(number)));
  return widest;
}

// As many as fit; long numbers need more room.
std::vector<double> AcrossTicks(const FigureScale& across, double width) {
  const double each = WidestOf({across.Low, across.High}) + 4 * kLetter;
  return RoundTicks(across.Low, across.High, std::clamp(static_cast<int>(width / each), 2, 10));
}

bool HasNotes(const Figure& figure) {
  return std::ranges::any_of(figure.Lines, [](const FigureLine& line) { return !line.Note.empty(); });
}

double NaturalNameHeight(const Figure& figure) {
  return HasNotes(figure) ? kNameHeight + kNoteHeight : kNameHeight;
}

double LeftOf(const Figure& figure) {
  return std::max(figure.LeastLeft, 44 + WidestOf(UpTicks(figure.Up)));
}

double PotsWidthOf(const Figure& figure) {
  return figure.Up.Pot > 0 ? kGap + WidestOf(UpTicks(InPots(figure.Up))) : 0;
}

double RightOf(const Figure& figure) {
  constexpr double kBeside = kGap + kNameStart + kGap;
  double names = kNameWidth;
  for (const FigureLine& line : figure.Lines)
    names = std::max({names, WidthOf(line.Name) * kBold + kBeside, WidthOf(line.Note) + kBeside});
  return std::max(figure.LeastRight, PotsWidthOf(figure) + names);
}

double TopOf(const Figure& figure) {
  const double top = figure.Title.empty() ? kTopUntitled : kTop;
  return figure.Across.Pot > 0 ? top + kPotsHeight : top;
}

double BelowOf(const Figure& figure) {
  return figure.Across.Title.empty() ? kBelowUntitled : kBelow;
}

// A number with its unit: "1 chip", "2.5 chips" or "50%".
std::string Counted(std::string number, std::string_view unit) {
  if (unit == "%") return number + "%";
  const bool one = number == "1";
  return std::move(number) + " " + std::string(unit) + (one ? "" : "s");
}

// In the plot, where the axis shows the unit.
std::string MarkLabel(const FigureMark& mark, const FigureScale& across) {
  const std::string number = NumberText(RoundTo(mark.At, kDecimals));
  return mark.Text + " " + (across.Unit == "%" ? number + "%" : number);
}

// Cut to this width, with an ellipsis.
std::string CutTo(std::string text, double width) {
  if (WidthOf(text) <= width) return text;
  const auto length = static_cast<std::size_t>(std::max(0.0, width / kLetter - 1));
  return std::string(WholeCharacters(text, length)) + "\u2026";
}

std::string Told(double value) {
  return NumberText(RoundTo(value, kDecimals));
}

// Also in pots, if the scale counts them.
std::string Counted(const FigureScale& scale, std::string number, double value) {
  std::string text = Counted(std::move(number), scale.Unit);
  if (scale.Pot > 0) text += ", " + Counted(Told(value / scale.Pot), "pot");
  return text;
}

}  // namespace

void AlignFigures(std::span<Figure> figures) {
  double left = 0;
  double right = 0;
  for (const Figure& figure : figures) {
    left = std::max(left, LeftOf(figure));
    right = std::max(right, RightOf(figure));
  }
  for (Figure& figure : figures) {
    figure.LeastLeft = left;
    figure.LeastRight = right;
  }
}

std::string PointWords(const Figure& figure, FigurePoint point) {
  const FigureLine& line = figure.Lines.at(point.Line);
  const std::string& place = figure.Places.at(point.Place);
  const double at = LeadingNumber(place);
  const double value = line.Values.at(point.Place);
  std::string words = line.Name + " at " + Counted(figure.Across, place, at);
  for (const FigureMark& mark : figure.Marks) {
    if (mark.At == at) words += ", " + mark.Text;
  }
  return words + ": " + Counted(figure.Up, Told(value), value);
}

std::string FigureWords(const Figure& figure) {
  std::string words = figure.Title.empty() ? figure.Up.Title : figure.Title;
  if (!figure.Subtitle.empty()) words += ". " + figure.Subtitle;
  for (const FigureMark& mark : figure.Marks)
    words += ". " + mark.Text + " " + Counted(figure.Across, NumberText(mark.At), mark.At);
  for (const FigureLine& line : figure.Lines)
    words += ". " + line.Name + (line.Note.empty() ? "" : ", " + line.Note);
  return words;
}

FigureSize FigureLayout::NaturalSize(const Figure& figure) {
  const double height =
      std::max(kLeastPlotHeight, NaturalNameHeight(figure) * static_cast<double>(figure.Lines.size()));
  return {LeftOf(figure) + kPlotWidth + RightOf(figure), TopOf(figure) + height + BelowOf(figure)};
}

FigureLayout::FigureLayout(const Figure& figure, FigureSize size)
    : figure_(&figure),
      size_(size),
      left_(LeftOf(figure)),
      right_(std::max(left_ + 1, size.Width - RightOf(figure))),
      top_(TopOf(figure)),
      bottom_(std::max(top_ + 1, size.Height - BelowOf(figure))) {
  places_.reserve(figure.Places.size());
  for (const std::string& place : figure.Places)
    places_.push_back(LeadingNumber(place));
}

std::vector<FigurePart> FigureLayout::Parts() const {
  std::vector<FigurePart> parts;
  parts.emplace_back(FigureText{.At = {left_, 26}, .Text = figure_->Title, .Font = kTitleFont});
  if (!figure_->Subtitle.empty()) {
    parts.emplace_back(FigureText{.At = {left_, 44}, .Text = CutTo(figure_->Subtitle, right_ - left_)});
  }
  AddAxes(parts);
  AddNames(parts);
  for (std::size_t line = 0; line < figure_->Lines.size(); ++line)
    parts.emplace_back(CurveOf(line));
  AddMarks(parts);
  return parts;
}

FigurePen FigureLayout::PenOf(std::size_t line) {
  return {.Color = kLineColors.at(line % kLineColors.size()),
          .Width = kLineWidth,
          .Dashes = kDashes.at(line / kLineColors.size() % kDashes.size())};
}

FigureSpot FigureLayout::SpotOf(FigurePoint point) const {
  return {X(places_.at(point.Place)), Y(figure_->Lines.at(point.Line).Values.at(point.Place))};
}

FigurePoint FigureLayout::Nearest(FigureSpot spot) const {
  const double across =
      figure_->Across.Low + (figure_->Across.High - figure_->Across.Low) * ((spot.X - left_) / (right_ - left_));
  const auto above = std::ranges::lower_bound(places_, across);
  auto place = static_cast<std::size_t>(above - places_.begin());
  if (place == places_.size() || (place > 0 && across - places_[place - 1] <= places_[place] - across)) --place;
  FigurePoint nearest{.Line = 0, .Place = place};
  const auto distance = [&](std::size_t line) { return std::abs(SpotOf({line, place}).Y - spot.Y); };
  for (std::size_t line = 1; line < figure_->Lines.size(); ++line) {
    if (distance(line) < distance(nearest.Line)) nearest.Line = line;
  }
  return nearest;
}

double FigureLayout::X(double across) const {
  return left_ + (right_ - left_) * ShareOf(across, figure_->Across.Low, figure_->Across.High);
}

double FigureLayout::Y(double value) const {
  return top_ + (bottom_ - top_) * (1 - ShareOf(value, figure_->Up.Low, figure_->Up.High));
}

void FigureLayout::AddAxes(std::vector<FigurePart>& parts) const {
  for (const double tick : UpTicks(figure_->Up, bottom_ - top_)) {
    const double y = Y(tick);
    parts.emplace_back(FigureRule{{left_, y}, {right_, y}, kGridPen});
    parts.emplace_back(
        FigureText{.At = {left_ - kGap, y + kHalfCapital}, .Text = NumberText(tick), .Anchor = FigureAnchor::kEnd});
  }
  AddAcrossAxis(parts);
  parts.emplace_back(FigureRule{{left_, top_}, {left_, bottom_}, kAxisPen});
  parts.emplace_back(FigureRule{{left_, bottom_}, {right_, bottom_}, kAxisPen});
  AddPots(parts);
  parts.emplace_back(FigureRule{{left_, Y(0)}, {right_, Y(0)}, kZeroPen, "zero"});
  parts.emplace_back(FigureText{.At = {left_ + (right_ - left_) / 2, bottom_ + 46},
                                .Text = figure_->Across.Title,
                                .Anchor = FigureAnchor::kMiddle});
  parts.emplace_back(FigureText{.At = {18, top_ + (bottom_ - top_) / 2},
                                .Text = figure_->Up.Title,
                                .Anchor = FigureAnchor::kMiddle,
                                .Turned = true});
}

void FigureLayout::AddAcrossAxis(std::vector<FigurePart>& parts) const {
  for (const double tick : AcrossTicks(figure_->Across, right_ - left_)) {
    const double x = X(tick);
    parts.emplace_back(FigureRule{{x, top_}, {x, bottom_ + kTick}, kGridPen});
    parts.emplace_back(FigureText{.At = {x, bottom_ + 20}, .Text = NumberText(tick), .Anchor = FigureAnchor::kMiddle});
  }
}

// Above and to the right; the corner between names the unit of both.
void FigureLayout::AddPots(std::vector<FigurePart>& parts) const {
  const FigureScale& across = figure_->Across;
  const FigureScale& up = figure_->Up;
  if (across.Pot > 0) {
    parts.emplace_back(FigureRule{{left_, top_}, {right_, top_}, kAxisPen});
    for (const double tick : AcrossTicks(InPots(across), right_ - left_)) {
      const double x = X(tick * across.Pot);
      parts.emplace_back(FigureRule{{x, top_ - kTick}, {x, top_}, kAxisPen});
      parts.emplace_back(
          FigureText{.At = {x, top_ - kTick - 5}, .Text = NumberText(tick), .Anchor = FigureAnchor::kMiddle});
    }
  }
  if (up.Pot > 0) {
    parts.emplace_back(FigureRule{{right_, top_}, {right_, bottom_}, kAxisPen});
    for (const double tick : UpTicks(InPots(up), bottom_ - top_)) {
      const double y = Y(tick * up.Pot);
      parts.emplace_back(FigureRule{{right_, y}, {right_ + kTick, y}, kAxisPen});
      parts.emplace_back(FigureText{.At = {right_ + kTick + 4, y + kHalfCapital}, .Text = NumberText(tick)});
    }
    const double above = across.Pot > 0 ? kPotsHeight + 2 : 10;
    parts.emplace_back(FigureText{.At = {right_ + kTick + 4, top_ - above}, .Text = "in pots"});
  }
}

void FigureLayout::AddMarks(std::vector<FigurePart>& parts) const {
  const FigureScale& across = figure_->Across;
  const auto isShown = [&across](double at) { return at >= across.Low && at <= across.High; };
  for (std::size_t line = 0; line < figure_->Lines.size(); ++line) {
    const std::optional<double>& limit = figure_->Lines[line].Limit;
    if (limit && isShown(*limit)) parts.emplace_back(FigureRing{{X(*limit), Y(0)}, PenOf(line)});
  }
  for (const FigureMark& mark : figure_->Marks) {
    if (!isShown(mark.At)) continue;
    const double x = X(mark.At);
    const std::string label = MarkLabel(mark, across);
    const double width = kBold * WidthOf(label);
    const bool fitsRight = x + kGap + width < right_;
    const double start = fitsRight ? x + kGap : x - kGap - width;
    const double y = IsCrossed({start, top_}, {start + width, top_ + kNameHeight + 4}) ? bottom_ - 7 : top_ + 16;
    parts.emplace_back(FigureRule{{x, top_}, {x, bottom_}, kMarkPen, "mark"});
    parts.emplace_back(FigureText{.At = {fitsRight ? x + kGap : x - kGap, y},
                                  .Text = label,
                                  .Anchor = fitsRight ? FigureAnchor::kStart : FigureAnchor::kEnd,
                                  .Font = kMarkFont});
  }
}

bool FigureLayout::IsCrossed(FigureSpot start, FigureSpot end) const {
  for (std::size_t place = 0; place < places_.size(); ++place) {
    const double x = X(places_[place]);
    if (x < start.X || x > end.X) continue;
    for (const FigureLine& line : figure_->Lines) {
      const double y = Y(line.Values[place]);
      if (y >= start.Y && y <= end.Y) return true;
    }
  }
  return false;
}

// From the highest line end to the lowest, each name as close to its line as possible. Notes are dropped if necessary.
void FigureLayout::AddNames(std::vector<FigurePart>& parts) const {
  const std::vector<FigureLine>& lines = figure_->Lines;
  const double room = (bottom_ - top_) / static_cast<double>(lines.size());
  const bool notes = HasNotes(*figure_) && NaturalNameHeight(*figure_) <= room;
  const double each = notes ? NaturalNameHeight(*figure_) : std::min(kNameHeight, room);
  std::vector<std::pair<double, std::size_t>> places;
  for (std::size_t i = 0; i < lines.size(); ++i)
    places.emplace_back(Y(lines[i].Values.back()), i);
  std::ranges::sort(places);
  double next = top_ + kNameHeight / 2;
  for (auto& [y, line] : places) {
    y = std::max(y, next);
    next = y + each;
  }
  double lowest = bottom_ - (std::max(each, kNameHeight) - kNameHeight / 2);
  for (std::size_t i = places.size(); i-- > 0;) {
    places[i].first = std::min(places[i].first, lowest);
    lowest = places[i].first - each;
  }
  const double left = right_ + PotsWidthOf(*figure_) + kGap;
  for (const auto& [y, line] : places) {
    if (lines[line].Name.empty()) continue;
    parts.emplace_back(FigureSample{{left, y}, 22, PenOf(line)});
    parts.emplace_back(
        FigureText{.At = {left + kNameStart, y + kHalfCapital}, .Text = lines[line].Name, .Font = kNameFont});
    if (!notes || lines[line].Note.empty()) continue;
    parts.emplace_back(FigureText{.At = {left + kNameStart, y + kHalfCapital + kNoteHeight}, .Text = lines[line].Note});
  }
}

FigureCurve FigureLayout::CurveOf(std::size_t line) const {
  constexpr std::size_t kMostDots = 25;
  const std::size_t count = places_.size();
  FigureCurve curve{.Spots = {}, .Pen = PenOf(line), .Dotted = count <= kMostDots};
  std::optional<double> last;
  for (std::size_t place = 0; place < count; ++place) {
    const FigureSpot spot = SpotOf({line, place});
    const double x = RoundTo(spot.X, 1);
    if (x == last && place + 1 < count) continue;
    last = x;
    curve.Spots.push_back(spot);
  }
  return curve;
}

std::vector<double> RoundTicks(double low, double high, int wanted) {
  // The smallest step; `low` and `high` may be further apart than the largest double.
  const double least = high / wanted - low / wanted;
  constexpr double kLeastStep = 1e-300;  // its powers of ten are still normal
  if (!(least > kLeastStep)) return {low};
  const double power = std::floor(std::log10(least));
  const double unit = least / std::pow(10.0, power);
  const double leading = unit <= 1 ? 1 : unit <= 2 ? 2 : unit <= 5 ? 5 : 10;
  // Dividing by an integer power of ten is exact enough to give 0.3 for 0.3.
  const double scale = std::pow(10.0, std::abs(power));
  const auto tick = [&](double count) { return power < 0 ? count * leading / scale : count * leading * scale; };
  std::vector<double> ticks;
  // Where doubles are too coarse for a step, adding 1 repeatedly would get nowhere.
  const double first = std::ceil(low / tick(1));
  for (int i = 0; i <= wanted && first + i <= std::floor(high / tick(1)); ++i)
    ticks.push_back(tick(first + i));
  return ticks;
}

}  // namespace quillon
