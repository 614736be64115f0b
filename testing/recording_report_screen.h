#pragma once

// A report screen that keeps the text with its insertion point and logs every call.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "results/report.h"

namespace quillon {

class RecordingReportScreen final : public ReportScreen {
 public:
  std::string Text;
  std::size_t InsertionPoint = 0;
  ReportForm Form = ReportForm::kPlainText;
  bool SpecificHandVisible = false;
  std::vector<std::string> Calls;

  void SetText(std::string_view text) override {
    Text = text;
    InsertionPoint = 0;
    Calls.push_back("text " + std::string(text));
  }
  void SetFontName(std::string_view name) override { Calls.push_back("font " + std::string(name)); }
  void SetFontSize(std::int16_t size) override { Calls.push_back("size " + std::to_string(size)); }
  void SetFontColor(std::int32_t color) override { Calls.push_back("colour " + std::to_string(color)); }
  void InsertText(std::string_view text) override {
    Text.insert(InsertionPoint, text);
    InsertionPoint += text.size();
    Calls.push_back("insert " + std::string(text));
  }
  [[nodiscard]] ReportForm SelectedForm() const override { return Form; }
  void SetSpecificHandVisible(bool visible) override {
    SpecificHandVisible = visible;
    Calls.emplace_back(visible ? "hands shown" : "hands hidden");
  }
};

}  // namespace quillon
