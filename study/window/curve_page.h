#pragma once

// What the pages of curves have in common: boxes for the hands, as a notation, and for the steps of what goes up; and
// the figure for the clipboard, as a picture in a file, or as the companion's table. What is typed counts when Enter is
// pressed or the box is left. Where it cannot be read, a line says why and the figure stays.

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
  /// Takes the situation and keeps the hands where they can be read, as they cannot at first: then it is the hand that
  /// hardly pays. The steps are the page's own.
  void Show(const StudySituation& situation) override;

  /// The hand takes the place of the others.
  void ShowHand(std::int16_t index) override;

  /// Takes the hands of another page, as text; they are drawn when this page shows.
  void TakeHands(const QString& hands);

  /// The figures, from above down.
  [[nodiscard]] const std::vector<FigureView*>& Views() const { return views_; }

 Q_SIGNALS:
  void HandsChosen(const QString& hands);

 protected:
  void showEvent(QShowEvent* event) override;

  /// A page with that many figures, whose files go into that folder.
  CurvePage(ProgramFolder folder, int figures, QWidget* parent);

  [[nodiscard]] const StudySituation& About() const { return *situation_; }
  [[nodiscard]] const HandOrder& BestFirst() const { return bestFirst_; }

  /// Steps to begin with.
  [[nodiscard]] virtual StepTexts StepsFor(std::span<const std::int16_t> hands) const = 0;

  /// The steps of the boxes, or why they are none.
  [[nodiscard]] virtual std::variant<Steps, std::string> ReadSteps(const StepTexts& texts) const = 0;

  /// Works the curves out, now or in a while, with Draw and TellFigure.
  virtual void Begin(const std::vector<std::int16_t>& hands, const Steps& steps) = 0;

  /// The figures of the curves, as many as the page has.
  [[nodiscard]] virtual std::vector<Figure> FiguresOf(const HandCurves& curves) const = 0;

  /// Shows curves as far as they have been worked out.
  void Draw(HandCurves curves);

  /// They are whole: has the figure told to a player who has asked for it.
  void TellFigure();

  /// Says beside the buttons, and to a screen reader, what is wrong or has been done; empty: nothing.
  void Tell(const std::string& words);

  /// Puts a part of the page's own above the figures.
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
  QStringList read_;  // the texts of the boxes when they were read last
  bool hasOwnSteps_ = false;  // the player's
  bool isStale_ = false;  // other hands have been taken than those that are drawn
  bool answers_ = false;  // the player, who is told of what comes of it
  HandCurves curves_;
};

}  // namespace quillon
