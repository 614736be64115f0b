#pragma once

// The menu of the results grid: the results as a picture, a table or a web page ("results/analysis_page.h"), and more
// about the hand that it was opened on. All disabled before the first finished analysis. The page is a file under
// exactly the name that the user gives, by default in the folder of the pictures.

#include <QPoint>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>

#include "analysis/analysis_state.h"
#include "ranges/range_files.h"
#include "shell/screens/grid_image_view.h"
#include "support/message_boxes.h"

namespace quillon {

class ResultsMenu {
 public:
  /// What the menu uses from outside. All of it outlives the menu.
  struct Surroundings {
    QWidget& Form;
    const AnalysisState& State;
    const GridImageView& Image;
    MessageBoxes& Messages;
    ProgramFolder Folder;
    std::function<void(std::int16_t hand)> ShowHowFar;
    std::function<void(std::int16_t hand)> ShowInReport;
  };

  explicit ResultsMenu(Surroundings surroundings);

  /// Opens it at that point of the screen, for the class `hand`, or for none if that is below 0.
  void Show(std::int16_t hand, const QPoint& place);

 private:
  void CopyPicture() const;
  void CopyTable() const;
  void SavePage();

  Surroundings around_;
  std::string lastPage_;  // the path of the last saved page
};

}  // namespace quillon
