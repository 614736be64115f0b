#include "results/grid_picture.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "support/joined_text.h"
#include "support/markup_text.h"

namespace quillon {
namespace {

// All lengths are pixels at the picture's natural size.
constexpr int kCellWidth = 54;
constexpr int kCellHeight = 40;
constexpr int kGap = 2;
constexpr int kMargin = 12;
constexpr int kGridGap = 28;
constexpr int kCaptionHeight = 28;
constexpr int kNoteLineHeight = 16;
constexpr std::size_t kNoteLineLength = 130;  // characters of the small font that fit below a grid
constexpr int kGridWidth = kRankCount * (kCellWidth + kGap) - kGap;
constexpr int kGridHeight = kRankCount * (kCellHeight + kGap) - kGap;

std::string Number(int value) {
  return std::to_string(value);
}

std::string TextAt(int x, int y, std::string_view attributes, std::string_view text) {
  return Joined({"<text x=\"", Number(x), "\" y=\"", Number(y), "\"", attributes, ">", MarkupText(text), "</text>\n"});
}

std::string CellMarkup(std::string_view label, const PageCell& cell, int left, int top) {
  const std::string fill = " fill=\"" + ColorText(ReadableOn(cell.Color)) + "\"";
  const int middle = left + kCellWidth / 2;
  std::string markup =
      Joined({R"(<rect class="c" x=")", Number(left), "\" y=\"", Number(top), "\" width=\"", Number(kCellWidth),
              "\" height=\"", Number(kCellHeight), R"(" rx="4" fill=")", ColorText(cell.Color), "\"/>\n"});
  if (cell.Text.empty()) return markup + TextAt(middle, top + 25, fill, label);
  return markup + TextAt(middle, top + 18, fill, label) + TextAt(middle, top + 33, fill + " class=\"s\"", cell.Text);
}

std::vector<std::string> NoteLines(std::string_view note) {
  std::vector<std::string> lines;
  while (!note.empty()) {
    const std::string_view word = note.substr(0, note.find(' '));
    if (lines.empty() || lines.back().size() + 1 + word.size() > kNoteLineLength)
      lines.emplace_back(word);
    else
      lines.back().append(" ").append(word);
    note.remove_prefix(std::min(word.size() + 1, note.size()));
  }
  return lines;
}

std::string GridMarkup(const PictureGrid& grid, const std::vector<std::string>& note, int left, int top) {
  std::string markup;
  for (std::size_t i = 0; i < grid.Cells.size(); ++i) {
    const int column = static_cast<int>(i) % kRankCount;
    const int row = static_cast<int>(i) / kRankCount;
    markup += CellMarkup(HandLabel(static_cast<std::int16_t>(i)), grid.Cells[i], left + column * (kCellWidth + kGap),
                         top + row * (kCellHeight + kGap));
  }
  int below = top + kGridHeight;
  for (const std::string& line : note)
    markup += TextAt(left, below += kNoteLineHeight, R"( class="s" text-anchor="start")", line);
  return markup;
}

}  // namespace

std::string GridPicture(std::string_view title, std::span<const PictureGrid> grids) {
  const bool captions = std::ranges::any_of(grids, [](const PictureGrid& grid) { return !grid.Caption.empty(); });
  const int top = kMargin + (captions ? kCaptionHeight : 0);
  const int count = static_cast<int>(grids.size());
  const std::string width = Number(2 * kMargin + count * kGridWidth + (count - 1) * kGridGap);
  std::vector<std::vector<std::string>> notes;
  std::size_t noteLines = 0;
  for (const PictureGrid& grid : grids)
    noteLines = std::max(noteLines, notes.emplace_back(NoteLines(grid.Note)).size());
  const std::string height = Number(top + kGridHeight + static_cast<int>(noteLines) * kNoteLineHeight + kMargin);
  std::string markup = Joined(
      {R"(<svg xmlns="http://www.w3.org/2000/svg" width=")", width, "\" height=\"", height, "\" viewBox=\"0 0 ", width,
       " ", height, R"(" role="img" font-family="Arial, Helvetica, sans-serif" font-size="15" font-weight="bold" )",
       "text-anchor=\"middle\">\n<title>", MarkupText(title), "</title>\n",
       "<style>.s{font-size:11px;font-weight:normal}.c{stroke:#000;stroke-opacity:.1}</style>\n", "<rect width=\"",
       width, "\" height=\"", height, "\" fill=\"#fff\"/>\n"});
  int left = kMargin;
  for (std::size_t i = 0; i < grids.size(); ++i) {
    if (captions)
      markup += TextAt(left + kGridWidth / 2, kMargin + 14, R"( fill="#336699" font-size="17")", grids[i].Caption);
    markup += GridMarkup(grids[i], notes[i], left, top);
    left += kGridWidth + kGridGap;
  }
  return markup + "</svg>\n";
}

}  // namespace quillon
