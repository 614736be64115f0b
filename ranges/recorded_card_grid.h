#pragma once

// For tests: a card grid without a window. It has cell 0 alone until the others are created; a call for a cell that is
// not there throws std::out_of_range.

#include <cstddef>
#include <cstdint>
#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "hand/hand_classes.h"
#include "ranges/card_grid.h"

namespace quillon {

class RecordedCardGrid : public CardGridForm {
 public:
  struct Cell {
    TwipRect Square;
    TwipRect Label;
    std::string Caption;
    Rgb Color = {255, 255, 128};
    Rgb CaptionColor = {1, 2, 3};
    bool SquareShown = false;
    bool LabelShown = false;
  };

  /// The form before its load: a frame that is still to be fitted, and cell 0 in its size.
  RecordedCardGrid() { Cells.front().Square = {.Left = 900, .Top = 1020, .Width = 405, .Height = 405}; }

  [[nodiscard]] TwipRect FrameRect() const override { return Frame; }
  void SetFrameRect(const TwipRect& rect) override { Frame = rect; }
  void CreateCell(std::int16_t index) override {
    if (static_cast<std::size_t>(index) != Cells.size()) throw std::out_of_range("cells are created in order");
    Cells.emplace_back();
  }
  [[nodiscard]] TwipRect SquareRect(std::int16_t index) const override { return At(index).Square; }
  void SetSquareRect(std::int16_t index, const TwipRect& rect) override { At(index).Square = rect; }
  void SetLabelRect(std::int16_t index, const TwipRect& rect) override { At(index).Label = rect; }
  void SetLabelCaption(std::int16_t index, std::string_view caption) override { At(index).Caption = caption; }
  void ShowSquare(std::int16_t index) override {
    At(index).SquareShown = true;
    Raised.push_back("square " + std::to_string(index));
  }
  void ShowLabel(std::int16_t index) override {
    At(index).LabelShown = true;
    Raised.push_back("label " + std::to_string(index));
  }
  [[nodiscard]] Rgb CellColor(std::int16_t index) const override { return At(index).Color; }
  void SetCellColor(std::int16_t index, Rgb color) override {
    At(index).Color = color;
    Painted.push_back(index);
  }
  void SetCaptionColor(std::int16_t index, Rgb color) override { At(index).CaptionColor = color; }
  [[nodiscard]] bool HalfChecked() const override { return Half; }
  [[nodiscard]] bool ShiftKeyPressed() override {
    ++ShiftQuestions;
    if (ShiftAnswers.empty()) return false;
    const bool answer = ShiftAnswers.front();
    ShiftAnswers.pop_front();
    return answer;
  }

  /// The cell of a class.
  [[nodiscard]] const Cell& Of(std::string_view label) const { return At(HandIndex(label)); }
  [[nodiscard]] Cell& Of(std::string_view label) { return At(HandIndex(label)); }

  TwipRect Frame = {.Left = 4860, .Top = 720, .Width = 1, .Height = 1};
  std::vector<Cell> Cells = std::vector<Cell>(1);
  bool Half = false;
  std::deque<bool> ShiftAnswers;  // to the questions to come, the first first; false once they are used up
  int ShiftQuestions = 0;
  std::vector<std::string> Raised;  // "square 0", "label 0" ..., in the order they came to the front
  std::vector<std::int16_t> Painted;  // the squares that took a colour, in order

 private:
  [[nodiscard]] const Cell& At(std::int16_t index) const { return Cells.at(static_cast<std::size_t>(index)); }
  [[nodiscard]] Cell& At(std::int16_t index) { return Cells.at(static_cast<std::size_t>(index)); }
};

}  // namespace quillon
