#include "study/sweep_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <utility>

#include "hand/hand_classes.h"
#include "support/joined_text.h"
#include "support/markup_text.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

constexpr double kMostNumber = std::numeric_limits<double>::max();

// Source: M. Okabe and K. Ito, "Color Universal Design", 2008, less the yellow, which is too pale for a line on white,
// and with a dark purple. Lines beyond the last colour begin again with another dash.
constexpr std::array<std::string_view, 8> kLineColors = {"#0072b2", "#d55e00", "#009e73", "#cc79a7",
                                                         "#56b4e9", "#e69f00", "#6a3d9a", "#000000"};
constexpr std::array<std::string_view, 4> kDashes = {"", "7 4", "2 4", "10 4 2 4"};

// All lengths are pixels at the picture's own size.
constexpr double kPlotWidth = 640;
constexpr double kLeastPlotHeight = 380;
constexpr double kTop = 52;
constexpr double kBelow = 62;
constexpr double kNameHeight = 18;
constexpr double kNameWidth = 76;
constexpr double kLetter = 7;  // as wide as a digit of the ticks

struct Line {
  std::string Name;
  std::vector<double> Values;
};

struct Plot {
  std::string AcrossTitle;
  std::string UpTitle;
  std::vector<double> Across;
  std::vector<Line> Lines;
  double Low = 0;
  double High = 0;
};

std::string Number(double pixels) {
  return NumberText(RoundTo(pixels, 1));
}

// From 0 at `low` to 1 at `high`. A span may be beyond all numbers, and half a span below all but 0.
double PlaceOf(double value, double low, double high) {
  const double span = high - low;
  if (!(span > 0)) return 0.5;
  return std::isfinite(span) ? (value - low) / span : (value / 2 - low / 2) / (high / 2 - low / 2);
}

double Finite(double value) {
  return std::clamp(value, -kMostNumber, kMostNumber);
}

// Room above and below the lines, so that none lies on the frame.
void Widen(Plot& plot, double part) {
  const double room = plot.High > plot.Low ? plot.High * part - plot.Low * part : 1;
  plot.Low = Finite(plot.Low - room);
  plot.High = Finite(plot.High + room);
}

Plot PlotOf(const SweepLabels& labels, std::span<const SweepRow> rows) {
  Plot plot{.AcrossTitle = labels.Across, .UpTitle = {}, .Across = {}, .Lines = {}};
  for (const SweepRow& row : rows)
    plot.Across.push_back(LeadingNumber(row.At));
  if (labels.Hands.empty()) {
    plot.UpTitle = "Profitable hands, in percent of all";
    plot.High = 100;
    Line& line = plot.Lines.emplace_back();
    for (const SweepRow& row : rows)
      line.Values.push_back(PercentOf(row.ProfitableCombos, kConcreteHandCount, 2));
    return plot;
  }
  plot.UpTitle = "Expected value, in the unit of the amounts";
  for (std::size_t i = 0; i < labels.Hands.size(); ++i) {
    Line& line = plot.Lines.emplace_back(Line{labels.Hands[i], {}});
    for (const SweepRow& row : rows) {
      const double value = row.ExpectedValues.at(i);
      line.Values.push_back(value);
      plot.Low = std::min(plot.Low, value);
      plot.High = std::max(plot.High, value);
    }
  }
  Widen(plot, 0.05);
  return plot;
}

// Draws a plot from its left edge, which depends on how wide the numbers beside it are.
class Drawing {
 public:
  Drawing(const Plot& plot, std::string_view title)
      : plot_(plot),
        title_(title),
        height_(std::max(kLeastPlotHeight, kNameHeight * static_cast<double>(plot.Lines.size()))) {
    for (const double tick : UpTicks())
      left_ = std::max(left_, 44 + kLetter * static_cast<double>(NumberText(tick).size()));
  }

  [[nodiscard]] std::string Markup() {
    const std::string width = Number(left_ + kPlotWidth + kNameWidth);
    const std::string height = Number(kTop + height_ + kBelow);
    Add({R"(<svg xmlns="http://www.w3.org/2000/svg" width=")", width, "\" height=\"", height, "\" viewBox=\"0 0 ",
         width, " ", height, R"(" role="img" font-family="Arial, Helvetica, sans-serif" font-size="13" )",
         "fill=\"#3e4c59\">\n<title>", MarkupText(title_), "</title>\n<rect width=\"", width, "\" height=\"", height,
         "\" fill=\"#fff\"/>\n"});
    TextAt(left_, 26, R"(font-size="17" font-weight="bold" fill="#336699")", title_);
    Axes();
    Names();
    for (std::size_t i = 0; i < plot_.Lines.size(); ++i)
      Curve(plot_.Lines[i], i);
    return std::move(markup_) + "</svg>\n";
  }

 private:
  static std::string_view ColorOf(std::size_t line) { return kLineColors.at(line % kLineColors.size()); }
  static std::string_view DashOf(std::size_t line) { return kDashes.at(line / kLineColors.size() % kDashes.size()); }

  [[nodiscard]] double X(double across) const {
    return left_ + kPlotWidth * PlaceOf(across, plot_.Across.front(), plot_.Across.back());
  }
  [[nodiscard]] double Y(double value) const { return kTop + height_ * (1 - PlaceOf(value, plot_.Low, plot_.High)); }
  [[nodiscard]] std::vector<double> UpTicks() const { return RoundTicks(plot_.Low, plot_.High, 8); }

  void Add(std::initializer_list<std::string_view> parts) { markup_ += Joined(parts); }

  void TextAt(double x, double y, std::string_view attributes, std::string_view text) {
    Add({"<text x=\"", Number(x), "\" y=\"", Number(y), "\" ", attributes, ">", MarkupText(text), "</text>\n"});
  }

  void Rule(double x1, double y1, double x2, double y2, std::string_view stroke) {
    Add({"<line x1=\"", Number(x1), "\" y1=\"", Number(y1), "\" x2=\"", Number(x2), "\" y2=\"", Number(y2), "\" ",
         stroke, "/>\n"});
  }

  void Axes() {
    const double right = left_ + kPlotWidth;
    const double bottom = kTop + height_;
    for (const double tick : UpTicks()) {
      Rule(left_, Y(tick), right, Y(tick), "stroke=\"#e4e7eb\"");
      TextAt(left_ - 8, Y(tick) + 4.5, "text-anchor=\"end\"", NumberText(tick));
    }
    // Long numbers need more room than short ones.
    const auto widest = static_cast<double>(
        std::max(NumberText(plot_.Across.front()).size(), NumberText(plot_.Across.back()).size()) + 4);
    const int wanted = std::clamp(static_cast<int>(kPlotWidth / (kLetter * widest)), 2, 10);
    for (const double tick : RoundTicks(plot_.Across.front(), plot_.Across.back(), wanted)) {
      Rule(X(tick), kTop, X(tick), bottom + 5, "stroke=\"#e4e7eb\"");
      TextAt(X(tick), bottom + 20, "text-anchor=\"middle\"", NumberText(tick));
    }
    Rule(left_, kTop, left_, bottom, "stroke=\"#7b8794\"");
    Rule(left_, bottom, right, bottom, "stroke=\"#7b8794\"");
    Rule(left_, Y(0), right, Y(0), R"(class="zero" stroke="#1f2933" stroke-width="1.5")");
    TextAt(left_ + kPlotWidth / 2, bottom + 46, "text-anchor=\"middle\"", plot_.AcrossTitle);
    const std::string middle = Number(kTop + height_ / 2);
    Add({"<text transform=\"translate(18 ", middle, ") rotate(-90)\" text-anchor=\"middle\">",
         MarkupText(plot_.UpTitle), "</text>\n"});
  }

  // A step narrower than a tenth of a pixel is not drawn.
  void Curve(const Line& line, std::size_t number) {
    constexpr std::size_t kMostDots = 25;
    std::string points;
    std::string dots;
    std::string last;
    for (std::size_t i = 0; i < line.Values.size(); ++i) {
      const std::string x = Number(X(plot_.Across[i]));
      if (x == last && i + 1 < line.Values.size()) continue;
      last = x;
      const std::string y = Number(Y(line.Values[i]));
      points += Joined({points.empty() ? "" : " ", x, ",", y});
      dots += Joined({"<circle cx=\"", x, "\" cy=\"", y, R"(" r="3" fill=")", ColorOf(number), "\"/>\n"});
    }
    Add({R"(<polyline fill="none" stroke=")", ColorOf(number), R"(" stroke-width="2.2" stroke-linejoin="round")",
         Dashes(number), " points=\"", points, "\"/>\n"});
    if (line.Values.size() <= kMostDots) markup_ += dots;
  }

  static std::string Dashes(std::size_t number) {
    const std::string_view dash = DashOf(number);
    return dash.empty() ? "" : Joined({" stroke-dasharray=\"", dash, "\""});
  }

  // From the highest end of a line to the lowest, each as near to it as those above and below leave room.
  void Names() {
    std::vector<std::pair<double, std::size_t>> places;
    for (std::size_t i = 0; i < plot_.Lines.size(); ++i)
      places.emplace_back(Y(plot_.Lines[i].Values.back()), i);
    std::ranges::sort(places);
    double next = kTop + kNameHeight / 2;
    for (auto& [y, line] : places) {
      y = std::max(y, next);
      next = y + kNameHeight;
    }
    double lowest = kTop + height_ - kNameHeight / 2;
    for (std::size_t i = places.size(); i-- > 0;) {
      places[i].first = std::min(places[i].first, lowest);
      lowest = places[i].first - kNameHeight;
    }
    const double left = left_ + kPlotWidth + 8;
    for (const auto& [y, line] : places) {
      if (plot_.Lines[line].Name.empty()) continue;
      Rule(left, y, left + 22, y, Joined({R"(stroke-width="2.2" stroke=")", ColorOf(line), "\"", Dashes(line)}));
      TextAt(left + 28, y + 4.5, R"(font-weight="bold" fill="#1f2933")", plot_.Lines[line].Name);
    }
  }

  const Plot& plot_;
  std::string_view title_;
  double height_;
  double left_ = 0;
  std::string markup_;
};

}  // namespace

std::vector<double> RoundTicks(double low, double high, int wanted) {
  // A step is at least this; `low` and `high` may lie further apart than the largest number.
  const double least = high / wanted - low / wanted;
  constexpr double kLeastStep = 1e-300;  // its powers of ten are still numbers
  if (!(least > kLeastStep)) return {low};
  const double power = std::floor(std::log10(least));
  const double unit = least / std::pow(10.0, power);
  const double leading = unit <= 1 ? 1 : unit <= 2 ? 2 : unit <= 5 ? 5 : 10;
  // Dividing by a whole power of ten is exact enough that 0.3 is told as 0.3.
  const double scale = std::pow(10.0, std::abs(power));
  const auto tick = [&](double count) { return power < 0 ? count * leading / scale : count * leading * scale; };
  std::vector<double> ticks;
  // Where numbers have no digits left for a step, adding 1 again and again would not get anywhere.
  const double first = std::ceil(low / tick(1));
  for (int i = 0; i <= wanted && first + i <= std::floor(high / tick(1)); ++i)
    ticks.push_back(tick(first + i));
  return ticks;
}

std::string SweepPicture(const SweepLabels& labels, std::span<const SweepRow> rows) {
  const Plot plot = PlotOf(labels, rows);
  return Drawing(plot, labels.Title).Markup();
}

}  // namespace quillon
