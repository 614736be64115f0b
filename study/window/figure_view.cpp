#include "study/window/figure_view.h"

#include <QAccessibleWidget>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <utility>
#include <variant>
#include <vector>

#include "support/number_text.h"
#include "toolkit/accessible_control.h"
#include "toolkit/control_row.h"
#include "toolkit/fonts.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

// Design pixels.
constexpr double kWordsHeight = 26;
constexpr FigureSize kLeastSize = {420, 170};
constexpr FigureSize kWantedSize = {820, 500};
constexpr double kLeftEdge = 12;

constexpr FigurePen kHairPen = {.Color = "#52606d"};
constexpr FigureFont kWordsFont = {.Color = "#1f2933", .Bold = true};
constexpr std::size_t kPage = 10;

constexpr const char* kHowToRead = "Point at a line, or go along it with the arrow keys.";

QColor ColorOf(std::string_view color) {
  return QColor(ToQt(color));
}

QFont FontOf(const FigureFont& font) {
  const double size = font.Size > 0 ? font.Size : kFigureTextSize;
  return FormFont({.Family = "Arial", .Points = static_cast<float>(size * kPointsPerPixel), .Bold = font.Bold}, {});
}

// Qt measures dashes in pen widths.
QPen PenOf(const FigurePen& pen, double scale) {
  QPen made(ColorOf(pen.Color), pen.Width * scale, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
  QList<qreal> dashes;
  for (const QString& length : ToQt(pen.Dashes).split(QLatin1Char(' '), Qt::SkipEmptyParts))
    dashes << LeadingNumber(FromQt(length)) / pen.Width;
  if (!dashes.isEmpty()) made.setDashPattern(dashes);
  return made;
}

// Draws the parts at this many pixels per design pixel.
class Brush {
 public:
  Brush(QPainter& painter, double scale) : painter_(painter), scale_(scale) {
    painter.setRenderHint(QPainter::Antialiasing);
  }

  // Vertical and horizontal lines are snapped to whole pixels, so that all are equally sharp.
  void operator()(const FigureRule& rule) const {
    QPen pen = PenOf(rule.Pen, scale_);
    const double width = std::max(1.0, std::round(pen.widthF()));
    pen.setWidthF(width);
    const double middle = std::fmod(width, 2) / 2;
    const auto snapped = [&](FigureSpot spot) {
      return QPointF(std::floor(spot.X * scale_), std::floor(spot.Y * scale_)) + QPointF(middle, middle);
    };
    painter_.setPen(pen);
    painter_.drawLine(snapped(rule.From), snapped(rule.To));
  }

  void operator()(const FigureSample& sample) const {
    painter_.setPen(PenOf(sample.Pen, scale_));
    painter_.drawLine(Spot(sample.From), Spot({sample.From.X + sample.Length, sample.From.Y}));
  }

  void operator()(const FigureText& text) const {
    painter_.save();
    painter_.setFont(FontOf(text.Font));
    const QString shown = ToQt(text.Text);
    const double width = painter_.fontMetrics().horizontalAdvance(shown);
    const double before = text.Anchor == FigureAnchor::kStart    ? 0
                          : text.Anchor == FigureAnchor::kMiddle ? width / 2
                                                                 : width;
    const QPointF spot = Spot(text.At);
    painter_.translate(std::round(spot.x()), std::round(spot.y()));
    if (text.Turned) painter_.rotate(-90);
    const QPointF start(-std::round(before), 0);
    if (text.Font.Halo) {
      constexpr double kHaloWidth = 4;
      QPainterPath letters;
      letters.addText(start, painter_.font(), shown);
      painter_.strokePath(letters, QPen(Qt::white, kHaloWidth * scale_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    painter_.setPen(ColorOf(text.Font.Color.empty() ? kFigureTextColor : text.Font.Color));
    painter_.drawText(start, shown);
    painter_.restore();
  }

  void operator()(const FigureCurve& curve) const {
    QPolygonF line;
    for (const FigureSpot& spot : curve.Spots)
      line << Spot(spot);
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(PenOf(curve.Pen, scale_));
    painter_.drawPolyline(line);
    if (!curve.Dotted) return;
    for (const QPointF& spot : line)
      Dot(spot, ColorOf(curve.Pen.Color));
  }

  void operator()(const FigureRing& ring) const {
    painter_.setBrush(Qt::white);
    painter_.setPen(QPen(ColorOf(ring.Pen.Color), ring.Pen.Width * scale_));
    painter_.drawEllipse(Spot(ring.At), kFigureRingRadius * scale_, kFigureRingRadius * scale_);
  }

  void Dot(const QPointF& spot, const QColor& color) const {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(color);
    painter_.drawEllipse(spot, kFigureDotRadius * scale_, kFigureDotRadius * scale_);
  }

  void Figure(const FigureLayout& layout) const {
    for (const FigurePart& part : layout.Parts())
      std::visit(*this, part);
  }

  void CrossHair(const FigureLayout& layout, FigurePoint point) const {
    const FigureSpot spot = layout.SpotOf(point);
    (*this)(FigureRule{{spot.X, layout.PlotStart().Y}, {spot.X, layout.PlotEnd().Y}, kHairPen});
    (*this)(FigureRule{{layout.PlotStart().X, spot.Y}, {layout.PlotEnd().X, spot.Y}, kHairPen});
    constexpr double kEdge = 1.6;
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(Qt::white);
    const double radius = kFigureDotRadius * kEdge * kEdge * scale_;
    painter_.drawEllipse(Spot(spot), radius, radius);
    painter_.setBrush(ColorOf(FigureLayout::PenOf(point.Line).Color));
    painter_.drawEllipse(Spot(spot), radius / kEdge, radius / kEdge);
  }

 private:
  [[nodiscard]] QPointF Spot(FigureSpot spot) const { return QPointF(spot.X, spot.Y) * scale_; }

  QPainter& painter_;
  double scale_;
};

QSize PixelsOf(FigureSize size) {
  return (QSizeF(size.Width, size.Height) * PixelScale()).toSize();
}

class AccessibleFigure : public QAccessibleWidget {
 public:
  explicit AccessibleFigure(FigureView* view) : QAccessibleWidget(view, QAccessible::Chart), view_(view) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const bool point = kind == QAccessible::Description || kind == QAccessible::Value;
    return point ? view_->Words() : QAccessibleWidget::text(kind);
  }

 private:
  FigureView* view_;
};

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
  auto* view = qobject_cast<FigureView*>(object);
  return view == nullptr ? nullptr : new AccessibleFigure(view);
}

}  // namespace

FigureView::FigureView(QWidget* parent) : QWidget(parent) {
  QAccessible::installFactory(MakeInterface);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FigureView::Show(Figure figure) {
  std::optional<FigurePoint> kept;
  if (point_) {
    const auto line = std::ranges::find(figure.Lines, figure_->Lines[point_->Line].Name, &FigureLine::Name);
    const auto place = std::ranges::find(figure.Places, figure_->Places[point_->Place]);
    if (line != figure.Lines.end() && place != figure.Places.end()) {
      kept = {static_cast<std::size_t>(line - figure.Lines.begin()),
              static_cast<std::size_t>(place - figure.Places.begin())};
    }
  }
  figure_ = std::move(figure);
  // While a figure grows its name stays, and should not be announced again.
  if (const QString name = ToQt(FigureWords(*figure_)); name != accessibleName()) setAccessibleName(name);
  GoTo(kept ? kept : hasFocus() ? std::optional(StartPoint()) : std::nullopt);
}

void FigureView::Clear() {
  figure_.reset();
  setAccessibleName({});
  GoTo(std::nullopt);
}

QString FigureView::Words() const {
  if (!figure_) return {};
  return point_ ? ToQt(PointWords(*figure_, *point_)) : QString::fromLatin1(kHowToRead);
}

QPointF FigureView::SpotOf(FigurePoint point) const {
  const FigureSpot spot = Layout().SpotOf(point);
  return QPointF(spot.X, spot.Y) * PixelScale();
}

QImage FigureView::Picture() const {
  const double ratio = devicePixelRatioF();
  const FigureSize size = figure_ ? Layout().Size() : kLeastSize;
  QImage image((QSizeF(PixelsOf(size)) * ratio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::white);
  QPainter painter(&image);
  if (figure_) Brush(painter, PixelScale()).Figure(Layout());
  return image;
}

QSize FigureView::sizeHint() const {
  return PixelsOf(kWantedSize);
}

QSize FigureView::minimumSizeHint() const {
  return PixelsOf(kLeastSize);
}

void FigureView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  if (!figure_) return;
  const FigureLayout layout = Layout();
  const Brush brush(painter, PixelScale());
  brush.Figure(layout);
  if (point_) brush.CrossHair(layout, *point_);

  const double scale = PixelScale();
  painter.setFont(FontOf(point_ ? kWordsFont : FigureFont{}));
  painter.setPen(ColorOf(point_ ? kWordsFont.Color : kFigureTextColor));
  const QRectF line(kLeftEdge * scale, height() - kWordsHeight * scale, width() - 2 * kLeftEdge * scale,
                    kWordsHeight * scale);
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                   painter.fontMetrics().elidedText(Words(), Qt::ElideRight, static_cast<int>(line.width())));
}

void FigureView::mouseMoveEvent(QMouseEvent* event) {
  if (!figure_) return;
  const QPointF spot = event->position() / PixelScale();
  GoTo(Layout().Nearest({spot.x(), spot.y()}));
}

void FigureView::leaveEvent(QEvent* /*event*/) {
  if (!hasFocus()) GoTo(std::nullopt);
}

void FigureView::keyPressEvent(QKeyEvent* event) {
  if (figure_ && point_ && event->key() == Qt::Key_Escape) return GoTo(std::nullopt);
  const std::optional<FigurePoint> reached = figure_ ? PointReachedBy(event->key()) : std::nullopt;
  if (!reached) return QWidget::keyPressEvent(event);
  GoTo(reached);
  Announce(*this, Words());
}

// Keyboard focus always starts on a point.
void FigureView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  if (figure_ && !point_ && event->reason() != Qt::MouseFocusReason) GoTo(StartPoint());
}

FigureLayout FigureView::Layout() const {
  const double scale = PixelScale();
  return FigureLayout(*figure_, {width() / scale, height() / scale - kWordsHeight});
}

// On the first line, the place nearest to the first mark.
FigurePoint FigureView::StartPoint() const {
  if (figure_->Marks.empty()) return {};
  const double at = figure_->Marks.front().At;
  const auto distance = [at](const std::string& place) { return std::abs(LeadingNumber(place) - at); };
  const auto nearest = std::ranges::min_element(figure_->Places, {}, distance);
  return {.Line = 0, .Place = static_cast<std::size_t>(nearest - figure_->Places.begin())};
}

// Nothing for other keys. Without a current point each of the keys leads to the first.
std::optional<FigurePoint> FigureView::PointReachedBy(int key) const {
  const FigurePoint from = point_.value_or(StartPoint());
  const std::size_t last = figure_->Places.size() - 1;
  const auto back = [&from](std::size_t places) {
    return FigurePoint{from.Line, from.Place - std::min(places, from.Place)};
  };
  const auto on = [&](std::size_t places) { return FigurePoint{from.Line, std::min(last, from.Place + places)}; };
  const auto reached = [&]() -> std::optional<FigurePoint> {
    switch (key) {
      case Qt::Key_Left:
        return back(1);
      case Qt::Key_Right:
        return on(1);
      case Qt::Key_PageUp:
        return back(kPage);
      case Qt::Key_PageDown:
        return on(kPage);
      case Qt::Key_Home:
        return back(last);
      case Qt::Key_End:
        return on(last);
      case Qt::Key_Up:
        return Neighbour(from, 1);
      case Qt::Key_Down:
        return Neighbour(from, -1);
      default:
        return std::nullopt;
    }
  }();
  return reached && !point_ ? from : reached;
}

// Of equal values the earlier line is above.
FigurePoint FigureView::Neighbour(FigurePoint from, int linesUp) const {
  std::vector<std::pair<double, std::size_t>> upwards;
  for (std::size_t line = 0; line < figure_->Lines.size(); ++line)
    upwards.emplace_back(figure_->Lines[line].Values[from.Place], figure_->Lines.size() - line);
  const std::pair<double, std::size_t> here = upwards[from.Line];
  std::ranges::sort(upwards);
  const auto at = std::ranges::find(upwards, here) - upwards.begin();
  const auto to = std::clamp<std::ptrdiff_t>(at + linesUp, 0, static_cast<std::ptrdiff_t>(upwards.size()) - 1);
  return {figure_->Lines.size() - upwards[static_cast<std::size_t>(to)].second, from.Place};
}

void FigureView::GoTo(std::optional<FigurePoint> point) {
  point_ = point;
  update();
  const QString words = Words();
  if (words == std::exchange(told_, words) || !QAccessible::isActive()) return;
  QAccessibleEvent event(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

}  // namespace quillon
