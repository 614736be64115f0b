#pragma once

// A line chart as data: two scales, lines, marks and texts, and the words for each point, for somebody who cannot see
// it. Laid out for a size it is a list of rules, samples, texts, curves and rings for a painter: one writes SVG
// ("study/figure_svg.h"), another draws in a window ("study/window/figure_view.h").
//
// Lengths are design pixels, measured from the upper left corner to the right and down.

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillon {

struct FigureScale {
  std::string Title;  // the axis title, with its unit
  double Low = 0;
  double High = 0;
  std::string Unit{};  // the unit in words: "chip" makes "2 chips", and "%" makes "2%"
  double Pot = 0;  // in that unit; if above 0, the opposite axis counts in pots
};

struct FigureLine {
  std::string Name{};
  std::vector<double> Values{};  // one for each place across
  std::string Note{};  // below its name, such as "up to 23.07"
  std::optional<double> Limit{};  // the place across where it crosses zero
};

/// A place across that is marked by a vertical line, such as the current amount.
struct FigureMark {
  double At = 0;
  std::string Text;  // such as "now"
};

struct Figure {
  std::string Title;  // empty in a figure below another with the same places
  std::string Subtitle{};  // UTF-8; cut at the plot's right end
  FigureScale Across;
  FigureScale Up;
  std::vector<std::string> Places;  // across, numbers as text, not descending; at least one
  std::vector<FigureLine> Lines;  // at least one
  std::vector<FigureMark> Marks{};
  double LeastLeft = 0;  // room left of the plot, to align it with another
  double LeastRight = 0;
};

/// Aligns figures that are stacked: gives them the same room beside their plots.
void AlignFigures(std::span<Figure> figures);

/// One point of a figure, by its line and its place.
struct FigurePoint {
  std::size_t Line = 0;
  std::size_t Place = 0;

  bool operator==(const FigurePoint&) const = default;
};

/// A point in words, values rounded to four decimals.
///
///     "K9o at 9 chips, 6 pots: 0.7085 chips, 0.4723 pots"      "Profitable at 30%: 85.52%"
///
/// A marked place has the mark's text after it, as in "K9o at 9 chips, 6 pots, now: ...".
[[nodiscard]] std::string PointWords(const Figure& figure, FigurePoint point);

/// The figure in words: its titles, its marks, and its lines with their notes, such as "K9o, up to 23.07". Without a
/// title, the title of its vertical scale.
[[nodiscard]] std::string FigureWords(const Figure& figure);

struct FigureSpot {
  double X = 0;
  double Y = 0;

  bool operator==(const FigureSpot&) const = default;
};

struct FigureSize {
  double Width = 0;
  double Height = 0;

  bool operator==(const FigureSize&) const = default;
};

struct FigurePen {
  std::string_view Color;  // such as "#0072b2"
  double Width = 1;
  std::string_view Dashes{};  // alternating lengths of dashes and gaps, such as "7 4"; empty: solid
};

struct FigureFont {
  std::string_view Color{};  // empty: kFigureTextColor
  double Size = 0;  // 0: kFigureTextSize
  bool Bold = false;
  bool Halo = false;  // white edge around letters that lie over lines
};

inline constexpr std::string_view kFigureTextColor = "#3e4c59";
inline constexpr double kFigureTextSize = 13;

/// A straight line. It has a name if a style sheet may want to find it.
struct FigureRule {
  FigureSpot From;
  FigureSpot To;
  FigurePen Pen;
  std::string_view Name{};
};

/// The sample of a line before its name.
struct FigureSample {
  FigureSpot From;
  double Length = 0;
  FigurePen Pen;
};

enum class FigureAnchor { kStart, kMiddle, kEnd };

struct FigureText {
  FigureSpot At;  // on its baseline: its start, its middle or its end
  std::string Text;
  FigureAnchor Anchor = FigureAnchor::kStart;
  FigureFont Font{};
  bool Turned = false;  // reads upwards
};

/// A line through points, in order of the places, with a dot on each if there are few.
struct FigureCurve {
  std::vector<FigureSpot> Spots;
  FigurePen Pen;
  bool Dotted = false;
};

/// A circle where a line crosses zero.
struct FigureRing {
  FigureSpot At;
  FigurePen Pen;
};

inline constexpr double kFigureDotRadius = 3;
inline constexpr double kFigureRingRadius = 4.5;

/// What a painter draws.
using FigurePart = std::variant<FigureRule, FigureSample, FigureText, FigureCurve, FigureRing>;

/// A figure laid out for a size.
class FigureLayout {
 public:
  /// The size for publishing: all names fit.
  [[nodiscard]] static FigureSize NaturalSize(const Figure& figure);

  /// The figure must outlive it. If the size is too small for the texts, they overflow it.
  FigureLayout(const Figure& figure, FigureSize size);

  [[nodiscard]] const Figure& Of() const { return *figure_; }
  [[nodiscard]] FigureSize Size() const { return size_; }

  /// From back to front. Steps of a curve narrower than a tenth of a pixel are left out.
  [[nodiscard]] std::vector<FigurePart> Parts() const;

  /// The pen of a line.
  [[nodiscard]] static FigurePen PenOf(std::size_t line);

  [[nodiscard]] FigureSpot SpotOf(FigurePoint point) const;

  /// The point nearest to a spot at the place nearest across; the earlier one on a tie.
  [[nodiscard]] FigurePoint Nearest(FigureSpot spot) const;

  /// Upper left and lower right corner of the area within the axes.
  [[nodiscard]] FigureSpot PlotStart() const { return {left_, top_}; }
  [[nodiscard]] FigureSpot PlotEnd() const { return {right_, bottom_}; }

 private:
  [[nodiscard]] double X(double across) const;
  [[nodiscard]] double Y(double value) const;
  void AddAxes(std::vector<FigurePart>& parts) const;
  void AddAcrossAxis(std::vector<FigurePart>& parts) const;
  void AddPots(std::vector<FigurePart>& parts) const;
  void AddMarks(std::vector<FigurePart>& parts) const;
  void AddNames(std::vector<FigurePart>& parts) const;
  [[nodiscard]] bool IsCrossed(FigureSpot start,
                               FigureSpot end) const;  // whether a point of a line lies in that rectangle
  [[nodiscard]] FigureCurve CurveOf(std::size_t line) const;

  const Figure* figure_;
  FigureSize size_;
  std::vector<double> places_;
  double left_ = 0;
  double right_ = 0;
  double top_ = 0;
  double bottom_ = 0;
};

/// Round numbers, 1, 2 or 5 times a power of ten apart, from `low` to `high`: at most `wanted` + 1 of them, or just
/// `low` if the two are too close for steps. Both must be finite.
///
///     (0, 20, 5) -> 0, 5, 10, 15, 20      (-0.3, 1.1, 6) -> -0.2, 0, 0.2, ... 1      (7, 7, 5) -> 7
[[nodiscard]] std::vector<double> RoundTicks(double low, double high, int wanted);

}  // namespace quillon
