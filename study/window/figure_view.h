#pragma once

// A figure ("study/figure.h") in a window, at any size. Points are read with the mouse, which finds the nearest one, or
// with the keyboard: Left and Right go from place to place, Page Up and Page Down ten places at a time, Home and End to
// the ends, Up and Down to the line above or below, and Esc leaves the point. The point has a cross hair, and the line
// below the figure gives it in words, which a screen reader announces.

#include <QImage>
#include <QString>
#include <QWidget>
#include <optional>

#include "study/figure.h"

namespace quillon {

class FigureView : public QWidget {
  Q_OBJECT

 public:
  /// Empty at first.
  explicit FigureView(QWidget* parent = nullptr);

  /// Shows a figure. The current point stays if the new figure has its line's name and its place.
  void Show(Figure figure);

  /// Empties the view.
  void Clear();

  /// The figure shown; there must be one.
  [[nodiscard]] const Figure& Shown() const { return *figure_; }

  /// The current point, and its words; without one they explain how to read one.
  [[nodiscard]] std::optional<FigurePoint> Point() const { return point_; }
  [[nodiscard]] QString Words() const;

  /// The position of a point in the view, which must show a figure.
  [[nodiscard]] QPointF SpotOf(FigurePoint point) const;

  /// The figure as shown, in screen pixels, without cross hair and words.
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
  QString told_;  // the words last announced
};

}  // namespace quillon
