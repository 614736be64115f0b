#include "study/figure_svg.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>
#include <utility>
#include <variant>

#include "support/joined_text.h"
#include "support/markup_text.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

std::string Number(double pixels) {
  return NumberText(RoundTo(pixels, 1));
}

std::string Attribute(std::string_view name, std::string_view value) {
  return value.empty() ? "" : Joined({" ", name, "=\"", value, "\""});
}

std::string Dashes(const FigurePen& pen) {
  return Attribute("stroke-dasharray", pen.Dashes);
}

std::string_view AnchorText(FigureAnchor anchor) {
  constexpr std::array<std::string_view, 3> kTexts = {"", "middle", "end"};  // the first is the default
  return kTexts.at(static_cast<std::size_t>(anchor));
}

class Markup {
 public:
  void operator()(const FigureRule& rule) {
    Add({"<line", Ends(rule.From, rule.To), Attribute("class", rule.Name), Attribute("stroke", rule.Pen.Color),
         rule.Pen.Width == 1 ? "" : Attribute("stroke-width", Number(rule.Pen.Width)), Dashes(rule.Pen), "/>\n"});
  }

  void operator()(const FigureSample& sample) {
    Add({"<line", Ends(sample.From, {sample.From.X + sample.Length, sample.From.Y}),
         Attribute("stroke-width", Number(sample.Pen.Width)), Attribute("stroke", sample.Pen.Color), Dashes(sample.Pen),
         "/>\n"});
  }

  void operator()(const FigureText& text) {
    const std::string x = Number(text.At.X);
    const std::string y = Number(text.At.Y);
    Add({"<text",
         text.Turned ? Attribute("transform", Joined({"translate(", x, " ", y, ") rotate(-90)"}))
                     : Attribute("x", x) + Attribute("y", y),
         Attribute("text-anchor", AnchorText(text.Anchor)),
         text.Font.Size > 0 ? Attribute("font-size", Number(text.Font.Size)) : "",
         text.Font.Bold ? R"( font-weight="bold")" : "", Attribute("fill", text.Font.Color),
         text.Font.Halo ? R"( paint-order="stroke" stroke="#fff" stroke-width="4")" : "", ">", MarkupText(text.Text),
         "</text>\n"});
  }

  void operator()(const FigureCurve& curve) {
    std::string points;
    std::string dots;
    for (const FigureSpot& spot : curve.Spots) {
      const std::string x = Number(spot.X);
      const std::string y = Number(spot.Y);
      points += Joined({points.empty() ? "" : " ", x, ",", y});
      if (!curve.Dotted) continue;
      dots += Joined({"<circle cx=\"", x, "\" cy=\"", y, "\" r=\"", Number(kFigureDotRadius), "\" fill=\"",
                      curve.Pen.Color, "\"/>\n"});
    }
    Add({"<polyline fill=\"none\"", Attribute("stroke", curve.Pen.Color),
         Attribute("stroke-width", Number(curve.Pen.Width)), R"( stroke-linejoin="round")", Dashes(curve.Pen),
         " points=\"", points, "\"/>\n", dots});
  }

  void operator()(const FigureRing& ring) {
    Add({R"(<circle class="limit" cx=")", Number(ring.At.X), "\" cy=\"", Number(ring.At.Y), "\" r=\"",
         Number(kFigureRingRadius), R"(" fill="#fff")", Attribute("stroke", ring.Pen.Color),
         Attribute("stroke-width", Number(ring.Pen.Width)), "/>\n"});
  }

  void Add(std::initializer_list<std::string_view> texts) { text_ += Joined(texts); }

  [[nodiscard]] std::string Take() { return std::move(text_); }

 private:
  static std::string Ends(FigureSpot from, FigureSpot to) {
    return Joined({" x1=\"", Number(from.X), "\" y1=\"", Number(from.Y), "\" x2=\"", Number(to.X), "\" y2=\"",
                   Number(to.Y), "\""});
  }

  std::string text_;
};

}  // namespace

std::string FigureSvg(std::span<const Figure> figures) {
  FigureSize whole;
  for (const Figure& figure : figures) {
    const FigureSize size = FigureLayout::NaturalSize(figure);
    whole = {std::max(whole.Width, size.Width), whole.Height + size.Height};
  }
  const std::string width = Number(whole.Width);
  const std::string height = Number(whole.Height);
  Markup markup;
  markup.Add({R"(<svg xmlns="http://www.w3.org/2000/svg" width=")",
              width,
              "\" height=\"",
              height,
              "\" viewBox=\"0 0 ",
              width,
              " ",
              height,
              R"(" role="img" font-family="Arial, Helvetica, sans-serif" )",
              "font-size=\"",
              Number(kFigureTextSize),
              "\" fill=\"",
              kFigureTextColor,
              "\">\n<title>",
              MarkupText(figures.front().Title),
              "</title>\n<rect width=\"",
              width,
              "\" height=\"",
              height,
              "\" fill=\"#fff\"/>\n"});
  double top = 0;
  for (const Figure& figure : figures) {
    const FigureLayout layout(figure, FigureLayout::NaturalSize(figure));
    if (top > 0) markup.Add({"<g transform=\"translate(0 ", Number(top), ")\">\n"});
    for (const FigurePart& part : layout.Parts())
      std::visit(markup, part);
    if (top > 0) markup.Add({"</g>\n"});
    top += layout.Size().Height;
  }
  markup.Add({"</svg>\n"});
  return markup.Take();
}

std::string FigureSvg(const Figure& figure) {
  return FigureSvg(std::span(&figure, 1));
}

}  // namespace quillon
