#pragma once

// A figure ("study/figure.h") in a window, in whatever size it is given. It is read off with the mouse, which finds the
// nearest point, or with the keyboard: Left and Right go from place to place, Page Up and Page Down ten places at a
// time, Home and End to the ends, Up and Down to the line above or below there, and Esc lets go of the point. The point
// has a cross hair, and the line below the figure tells it in words, as a screen reader hears it.

#include <QImage>
#include <QString>
#include <QWidget>
#include <optional>

#include "study/figure.h"

namespace quillon {

class FigureView : public QWidget {
  Q_OBJECT

 public:
  /// Shows nothing yet.
  explicit FigureView(QWidget* parent = nullptr);

  /// Shows a figure. The point that is being read off stays on the line of its name and at its place, where the new
  /// figure has both.
  void Show(Figure figure);

  /// Shows nothing again.
  void Clear();

  /// What is shown; there must be something.
  [[nodiscard]] const Figure& Shown() const { return *figure_; }

  /// The point that is being read off, and its words; without one they say how to.
  [[nodiscard]] std::optional<FigurePoint> Point() const { return point_; }
  [[nodiscard]] QString Words() const;

  /// Where a point is within the view; a figure is shown.
  [[nodiscard]] QPointF SpotOf(FigurePoint point) const;

  /// The figure as it is shown, in the pixels of the screen, without cross hair and words.
  [[nodiscard]] QImage Picture() const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  [[nodiscard]] FigureLayout Layout() const;
  [[nodiscard]] FigurePoint StartPoint() const;
  [[nodiscard]] std::optional<FigurePoint> PointReachedBy(int key) const;
  [[nodiscard]] FigurePoint Neighbour(FigurePoint from, int linesUp) const;
  void GoTo(std::optional<FigurePoint> point);

  std::optional<Figure> figure_;
  std::optional<FigurePoint> point_;
  QString told_;  // the words that a screen reader knows
};

}  // namespace quillon
