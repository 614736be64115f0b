#include "results/web_page.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "support/joined_text.h"
#include "support/markup_text.h"
#include "support/number_text.h"

namespace quillon {
namespace {

// The page may fetch nothing; it has an icon because a browser would otherwise ask the host for one.
constexpr std::string_view kHead = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline'; img-src data:">
<link rel="icon" href="data:,">
)";

constexpr std::string_view kStyle = R"(<style>
:root{color-scheme:light;--ink:#1f2933;--soft:#52606d;--line:#d9dee3;--brand:#336699}
*{box-sizing:border-box}
body{margin:0;background:#eef1f4;color:var(--ink);font:15px/1.5 Arial,Helvetica,sans-serif}
main{max-width:1120px;margin:24px auto;padding:0 16px}
header{margin-bottom:16px}
h1{margin:0;color:var(--brand);font-size:28px;line-height:1.2}
header p{margin:2px 0 0;color:var(--soft)}
h2{margin:0 0 10px;font-size:17px;color:var(--brand)}
section{background:#fff;border:1px solid var(--line);border-radius:10px;padding:18px;margin-bottom:16px}
.top{display:grid;grid-template-columns:minmax(0,1fr) 320px;gap:16px;align-items:start}
.top>div>section:last-child,.top>section{margin-bottom:0}
.top+section{margin-top:16px}
@media(max-width:900px){.top{grid-template-columns:minmax(0,1fr)}}
dl{margin:0}
dt{color:var(--soft);font-size:13px}
dd{margin:0 0 8px;overflow-wrap:anywhere}
.why p{margin:0 0 10px}
.why p:last-child{margin:0}
.key{display:flex;flex-wrap:wrap;gap:6px 18px;list-style:none;margin:14px 0 0;padding:0}
.key span,.hue{display:inline-block;width:14px;height:14px;border-radius:3px;margin-right:7px;vertical-align:-2px;border:1px solid #0003}
.grid{width:100%;border-collapse:separate;border-spacing:2px;table-layout:fixed}
.grid+h2{margin-top:22px}
.grid td{position:relative;height:40px;padding:0;border-radius:4px;text-align:center;vertical-align:middle;font-weight:bold;line-height:1.15;cursor:default;box-shadow:inset 0 0 0 1px #0000001a}
.grid small{display:block;font-weight:normal;font-size:11px}
.grid td:focus{outline:3px solid #000;outline-offset:-1px;box-shadow:inset 0 0 0 4px #fff;z-index:2}
.tip{position:absolute;z-index:3;top:calc(100% + 6px);left:0;width:224px;opacity:0;pointer-events:none;overflow:hidden;border-radius:8px;background:#fff;color:var(--ink);box-shadow:0 4px 18px #0006;text-align:left;font-size:14px;font-weight:normal;line-height:1.45}
tr:nth-child(n+8)>td>.tip{top:auto;bottom:calc(100% + 6px)}
td:nth-child(n+8)>.tip{left:auto;right:0}
td:hover>.tip,td:focus>.tip{opacity:1}
.grid:hover td:focus:not(:hover)>.tip,.quiet .tip.tip{opacity:0}
.tip>*{display:block;padding:2px 12px}
.tip>b:first-child{padding:6px 12px;font-size:20px;color:#fff;margin-bottom:5px}
.tip>span{display:flex;justify-content:space-between;gap:10px}
.tip>em{margin-top:6px;padding:6px 12px;background:#404040;color:#fff;font-style:normal;font-weight:bold;text-align:center}
.figures{width:100%;border-collapse:collapse;font-variant-numeric:tabular-nums}
.figures th{position:sticky;top:0;background:#fff;border-bottom:2px solid var(--brand);padding:0;text-align:right}
.figures th:first-child,.figures tbody th{text-align:left}
.figures tbody th{position:static;border-bottom:1px solid var(--line);padding:3px 10px;white-space:nowrap}
.figures td{border-bottom:1px solid var(--line);padding:3px 10px;text-align:right}
.figures tbody tr:hover>*{background:#f3f7fb}
button{width:100%;border:0;background:none;padding:6px 10px;font:inherit;font-weight:bold;color:inherit;text-align:inherit;cursor:pointer}
button:hover{color:var(--brand)}
button:focus-visible{outline:3px solid var(--brand);outline-offset:-3px}
button::after{content:"\2195";margin-left:6px;color:#7b8794}
[aria-sort=ascending] button::after{content:"\2191";color:inherit}
[aria-sort=descending] button::after{content:"\2193";color:inherit}
.wide{overflow-x:auto}
footer{color:var(--soft);font-size:13px;text-align:center}
@media(max-width:560px){.grid td{height:30px;font-size:10px}.grid small{font-size:8px}section{padding:10px}}
@media print{body{background:#fff}section{border:0;padding:0}.grid td,.hue,.key span{print-color-adjust:exact;-webkit-print-color-adjust:exact}}
</style>
)";

constexpr std::string_view kScript = R"(<script>
"use strict";
for (const grid of document.querySelectorAll(".grid")) {
  const cells = [...grid.querySelectorAll("td")], width = grid.querySelector("tr").cells.length;
  grid.addEventListener("focusin", event => {
    grid.classList.remove("quiet");
    for (const cell of cells) cell.tabIndex = cell === event.target ? 0 : -1;
  });
  grid.addEventListener("mouseover", () => grid.classList.remove("quiet"));
  grid.addEventListener("keydown", event => {
    const at = cells.indexOf(event.target), column = at % width;
    if (event.key === "Escape") grid.classList.add("quiet");
    if (event.ctrlKey || event.altKey || event.metaKey || event.shiftKey) return;
    const steps = {ArrowLeft: column > 0 ? -1 : 0, ArrowRight: column < width - 1 ? 1 : 0, ArrowUp: at < width ? 0 : -width,
                   ArrowDown: at < cells.length - width ? width : 0, Home: -column, End: width - 1 - column};
    if (at < 0 || !(event.key in steps)) return;
    event.preventDefault();
    cells[at + steps[event.key]].focus();
  });
}
document.addEventListener("keydown", event => {
  if (event.key === "Escape") for (const grid of document.querySelectorAll(".grid")) grid.classList.add("quiet");
});
const figures = document.querySelector(".figures"), headings = [...figures.tHead.rows[0].cells];
headings.forEach((heading, column) => heading.firstChild.addEventListener("click", () => {
  const first = column === 0 ? "ascending" : "descending", second = column === 0 ? "descending" : "ascending";
  const order = heading.getAttribute("aria-sort") === first ? second : first;
  const sign = order === "ascending" ? 1 : -1, value = row => Number(row.cells[column].dataset.o);
  const rows = [...figures.tBodies[0].rows].sort((one, other) => sign * (value(one) - value(other)));
  figures.tBodies[0].append(...rows);
  for (const other of headings) other.removeAttribute("aria-sort");
  heading.setAttribute("aria-sort", order);
}));
</script>
)";

std::string Swatch(Rgb color, std::string_view attributes) {
  return Joined({"<span", attributes, " style=\"background:", ColorText(color), "\"></span>"});
}

std::string Section(std::string_view attributes, std::string_view heading, std::string_view content) {
  return Joined({"<section", attributes, ">\n<h2>", MarkupText(heading), "</h2>\n", content, "</section>\n"});
}

std::string Panel(std::string_view label, const PageCell& cell) {
  // The cell has already announced its label.
  std::string markup = Joined({R"(<span class="tip"><b aria-hidden="true" style="background:)",
                               ColorText(cell.PanelColor), "\">", label, "</b>"});
  for (const PageLine& line : cell.Panel)
    markup += Joined({" <span>", MarkupText(line.Title), " <b>", MarkupText(line.Text), "</b></span>"});
  if (!cell.Verdict.empty()) markup += Joined({" <em>", MarkupText(cell.Verdict), "</em>"});
  return markup + "</span>";
}

std::string GridTable(const PageGrid& grid) {
  std::string markup = Joined({R"(<table class="grid" role="grid" aria-label=")", MarkupText(grid.Name), "\">\n"});
  for (std::size_t i = 0; i < grid.Cells.size(); ++i) {
    const PageCell& cell = grid.Cells[i];
    const std::string_view label = HandLabel(static_cast<std::int16_t>(i));
    if (i % kRankCount == 0) markup += "<tr>";
    // Tab reaches one cell of a grid; arrow keys move on from there.
    markup += Joined({"<td tabindex=\"", i == 0 ? "0" : "-1", "\" style=\"background:", ColorText(cell.Color),
                      ";color:", ColorText(ReadableOn(cell.Color)), "\">", label});
    if (!cell.Text.empty()) markup += Joined({"<small aria-hidden=\"true\">", MarkupText(cell.Text), "</small>"});
    markup += Panel(label, cell) + "</td>\n";
    if (i % kRankCount == kRankCount - 1U) markup += "</tr>\n";
  }
  return markup + "</table>\n";
}

std::string Grids(const WebPage& page) {
  std::string markup;
  for (const PageGrid& grid : page.Grids) {
    if (page.Grids.size() > 1) markup += Joined({"<h2>", MarkupText(grid.Name), "</h2>\n"});
    markup += GridTable(grid);
  }
  if (page.Legend.empty()) return markup;
  markup += "<ul class=\"key\">";
  for (const PageLegend& entry : page.Legend)
    markup += Joined({"<li>", Swatch(entry.Color, ""), MarkupText(entry.Text), "</li>"});
  return markup + "</ul>\n";
}

// A notation is long and has commas without spaces.
std::string Breakable(std::string_view text) {
  std::string markup;
  for (const char c : MarkupText(text)) {
    markup += c;
    if (c == ',') markup += "<wbr>";
  }
  return markup;
}

std::string Situation(const WebPage& page) {
  std::string markup = "<dl>\n";
  for (const PageLine& line : page.Situation) {
    markup += Joined({"<dt>", MarkupText(line.Title), "</dt><dd><b>", Breakable(line.Text), "</b>"});
    if (!line.Detail.empty()) markup += Joined({"<br>", Breakable(line.Detail)});
    markup += "</dd>\n";
  }
  return markup + "</dl>\n";
}

std::string Explanation(const WebPage& page) {
  std::string markup;
  for (const std::string& paragraph : page.Explanation)
    markup += Joined({"<p>", MarkupText(paragraph), "</p>\n"});
  return markup;
}

std::string FiguresTable(const WebPage& page) {
  constexpr std::string_view kHeading = R"(<th scope="col"><button type="button">)";
  std::string markup = Joined({"<table class=\"figures\">\n<thead><tr><th scope=\"col\" aria-sort=\"ascending\">",
                               "<button type=\"button\">Hand</button></th>"});
  for (const std::string& column : page.Columns)
    markup += Joined({kHeading, MarkupText(column), "</button></th>"});
  markup += "</tr></thead>\n<tbody>\n";
  for (std::size_t i = 0; i < page.Rows.size(); ++i) {
    markup += Joined({R"(<tr><th scope="row" data-o=")", std::to_string(i), "\">",
                      Swatch(page.Grids.front().Cells.at(i).Color, " class=\"hue\""),
                      HandLabel(static_cast<std::int16_t>(i)), "</th>"});
    for (const PageFigure& figure : page.Rows.at(i))
      markup += Joined({"<td data-o=\"", NumberText(figure.Order), "\">", MarkupText(figure.Text), "</td>"});
    markup += "</tr>\n";
  }
  return markup + "</tbody>\n</table>\n";
}

}  // namespace

std::string PageMarkup(const WebPage& page) {
  const std::string title = MarkupText(page.Title);
  std::string aside = Section("", "Situation", Situation(page));
  if (!page.Explanation.empty()) aside += Section(" class=\"why\"", "In words", Explanation(page));
  return Joined({kHead, "<title>", title, "</title>\n", kStyle, "</head>\n<body>\n<main>\n<header><h1>", title,
                 "</h1><p>", MarkupText(page.Subtitle), "</p></header>\n<div class=\"top\">\n<section>\n", Grids(page),
                 "</section>\n<div>\n", aside, "</div>\n</div>\n",
                 Section("", "All hands", "<div class=\"wide\">\n" + FiguresTable(page) + "</div>\n"),
                 "<footer>Made by Quillon</footer>\n</main>\n", kScript, "</body>\n</html>\n"});
}

}  // namespace quillon
