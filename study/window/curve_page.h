#pragma once

// The base of the pages of curves: boxes for the hands, as a notation, and for the steps of what goes up; and the chart
// copied as an image, saved as a picture, or copied as the companion's table. Typing takes effect on Enter or on
// leaving the box. If a text cannot be read, a line says why and the chart stays.

#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QStringList>
#include <QVBoxLayout>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "ranges/range_files.h"
#include "study/hand_curves.h"
#include "study/window/figure_view.h"
#include "study/window/study_page.h"
#include "toolkit/text_box.h"

namespace quillon {

class CurvePage : public StudyPage {
  Q_OBJECT

 public:
  /// Takes the situation. The hands stay if they can be read; at first they cannot, and become the marginal hand. The
  /// steps are the page's own.
  void Show(const StudySituation& situation) override;

  /// Replaces the hands by this one.
  void ShowHand(std::int16_t index) override;

  /// Takes the hands of another page, as text; they are drawn when this page is shown.
  void TakeHands(const QString& hands);

  /// The figures, top to bottom.
  [[nodiscard]] const std::vector<FigureView*>& Views() const { return views_; }

 Q_SIGNALS:
  void HandsChosen(const QString& hands);

 protected:
  void showEvent(QShowEvent* event) override;

  /// A page with this many figures, whose files are saved to that folder.
  CurvePage(ProgramFolder folder, int figures, QWidget* parent);

  [[nodiscard]] const StudySituation& About() const { return *situation_; }
  [[nodiscard]] const HandOrder& BestFirst() const { return bestFirst_; }

  /// The initial steps.
  [[nodiscard]] virtual StepTexts StepsFor(std::span<const std::int16_t> hands) const = 0;

  /// The steps of the boxes, or the error.
  [[nodiscard]] virtual std::variant<Steps, std::string> ReadSteps(const StepTexts& texts) const = 0;

  /// Computes the curves, at once or later, and calls Draw and TellFigure.
  virtual void Begin(const std::vector<std::int16_t>& hands, const Steps& steps) = 0;

  /// The figures of the curves, as many as the page has.
  [[nodiscard]] virtual std::vector<Figure> FiguresOf(const HandCurves& curves) const = 0;

  /// Shows the curves computed so far.
  void Draw(HandCurves curves);

  /// The curves are complete: announces them if the player asked for them.
  void TellFigure();

  /// Shows beside the buttons, and announces, an error or what was done; empty: nothing.
  void Tell(const std::string& words);

  /// Inserts a widget above the figures.
  void ShowBelowBoxes(QWidget& part);

 private:
  TextBox& AddBox(QHBoxLayout& row, const char* caption, const char* spoken, int stretch);
  void AddButton(const char* text, QKeyCombination key, void (CurvePage::*action)());
  [[nodiscard]] QStringList Typed() const;
  void Leave(const TextBox& box);
  void Read();
  void CopyPicture();
  void SavePicture();
  void SaveTable();
  void Save(const char* title, const char* kind, const std::string& bytes);

  ProgramFolder folder_;
  QVBoxLayout& rows_;
  QHBoxLayout& actions_;
  std::vector<FigureView*> views_;
  QLabel& words_;
  TextBox* hands_ = nullptr;
  TextBox* from_ = nullptr;
  TextBox* to_ = nullptr;
  TextBox* step_ = nullptr;
  std::optional<StudySituation> situation_;
  HandOrder bestFirst_{};
  QStringList read_;  // the texts of the boxes when last read
  bool hasOwnSteps_ = false;  // typed by the player
  bool isStale_ = false;  // the hands are not those drawn
  bool answers_ = false;  // the player asked, and the result is announced
  HandCurves curves_;
};

}  // namespace quillon
