#pragma once

// The main window at its start and its end, and while its screens change.

#include <QWidget>
#include <functional>

#include "ranges/dialogs/form_place.h"
#include "shell/start_up.h"
#include "toolkit/form_builder.h"

namespace quillon {

class StartView : public StartWindow {
 public:
  /// What reaches beyond the window's own controls.
  struct Actions {
    std::function<void()> RefreshRangeLists;
    std::function<void()> BuildReport;
    std::function<void(bool)> SetResultsShown;
    std::function<void(std::int16_t)> RestoredBox;
    std::function<void()> CheckForUpgrade;
    std::function<void()> EndProcess;
  };

  StartView(QWidget& form, FormControls& controls, Actions actions);

  [[nodiscard]] TwipRect PanelRect() const override;
  [[nodiscard]] std::int16_t FrameCount() const override;
  [[nodiscard]] std::string FrameCaption(std::int16_t index) const override;
  [[nodiscard]] TwipRect FrameRect(std::int16_t index) const override;
  void SetFrameVisible(std::int16_t index, bool visible) override;
  void SetFrameRect(std::int16_t index, TwipRect rect) override;
  void SetFrameColor(std::int16_t index, Rgb color) override;
  void RemoveFrameBorder(std::int16_t /*index*/) override {}  // the toolkit's frames have none
  void RaiseFrame(std::int16_t index) override;

  [[nodiscard]] std::int16_t NavCount() const override;
  [[nodiscard]] std::string NavCaption(std::int16_t index) const override;
  [[nodiscard]] float NavTop(std::int16_t index) const override;
  [[nodiscard]] bool IsNavVisible(std::int16_t index) const override;
  [[nodiscard]] bool IsNavUnderlined(std::int16_t index) const override;
  void SetNavColor(std::int16_t index, Rgb color) override;
  void SetNavUnderline(std::int16_t index, bool underline) override;

  void SetSelectionBarRect(TwipRect rect) override;
  void ShowSelectionBar() override;
  void SetDefaultPointer() override;
  void ShowHandCursor() override {}  // a link's own cursor is a hand
  void HidePanelFooter() override;
  void RefreshRangeLists() override { actions_.RefreshRangeLists(); }
  void SelectOutputType(std::int16_t index) override;
  void BuildReport() override { actions_.BuildReport(); }

  [[nodiscard]] TwipSize WindowSize() const override { return place_.WindowSize(); }
  [[nodiscard]] TwipSize ScreenSize() const override { return place_.ScreenSize(); }
  [[nodiscard]] float WindowLeft() const override { return place_.WindowLeft(); }
  [[nodiscard]] float WindowTop() const override { return place_.WindowTop(); }
  void MoveWindow(float left, float top) override { place_.MoveWindow(left, top); }

  void SetTitle(std::string_view title) override;
  void ResizeWindow(TwipSize size) override;
  [[nodiscard]] int RangeEntryCount() const override;
  void SetRangeCountCaption(std::string_view caption) override;
  void SetAboutContentRect(TwipRect rect) override;
  void ShowAboutContent() override;
  [[nodiscard]] std::int16_t BoxCount() const override;
  [[nodiscard]] std::string BoxText(std::int16_t index) const override;
  void RestoreBoxText(std::int16_t index, std::string_view text) override;
  void SetResultsShown(bool shown) override { actions_.SetResultsShown(shown); }
  [[nodiscard]] TwipSize HoverBorderSize() const override;
  void SetHoverPanelSize(TwipSize size) override;
  void AddOutputType(std::string_view text) override;
  void AddHandEntry(std::string_view text) override;
  void ShowWindow() override;
  void HideWindow() override;
  void CheckForUpgrade() override { actions_.CheckForUpgrade(); }
  void LoadEquityTable() override;
  void EndProcess() override { actions_.EndProcess(); }

 private:
  QWidget& form_;
  FormControls& controls_;
  Actions actions_;
  FormPlace place_;
};

}  // namespace quillon
