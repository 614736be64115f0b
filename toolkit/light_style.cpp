#include "toolkit/light_style.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolButton>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "support/rgb.h"
#include "toolkit/picture.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

constexpr QRgb kEdge = 0xFF8C8C8C;
constexpr QRgb kFocusedEdge = qRgb(kBrandBlue.Red, kBrandBlue.Green, kBrandBlue.Blue);
constexpr QRgb kSign = 0xFF404040;  // arrows and check marks
constexpr QRgb kGroove = 0xFFE6E9EC;
constexpr QRgb kHandle = 0xFF8C9BAA;
constexpr QRgb kHeldHandle = 0xFF64788C;
constexpr QRgb kFace = 0xFFF4F4F4;
constexpr QRgb kHoveredFace = 0xFFE8EEF4;
constexpr QRgb kPressedFace = 0xFFD6DEE6;
constexpr QRgb kDisabledSign = 0xFFA0A0A0;

constexpr int kArrowWidth = 18;  // of a drop-down list, in design pixels
constexpr int kShortestHandle = 24;

bool Has(const QStyleOption& option, QStyle::StateFlag state) {
  return option.state.testFlag(state);
}

QColor SignColor(const QStyleOption& option) {
  return QColor::fromRgb(Has(option, QStyle::State_Enabled) ? kSign : kDisabledSign);
}

// A line along the inside of the rectangle's edge.
void DrawLineAlong(QPainter& painter, const QRect& rectangle, int width, QRgb color) {
  const QRegion inner(rectangle.adjusted(width, width, -width, -width));
  for (const QRect& side : QRegion(rectangle) - inner)
    painter.fillRect(side, QColor::fromRgb(color));
}

// Twice as wide if the control has the focus.
void DrawEdge(QPainter& painter, const QStyleOption& option) {
  const bool focused = Has(option, QStyle::State_HasFocus);
  DrawLineAlong(painter, option.rect, LinePixels(focused ? 2 : 1), focused ? kFocusedEdge : kEdge);
}

// Signs are drawn on a square of this many design pixels, from its middle.
void DrawSign(QPainter& painter, const QStyleOption& option, const QList<QPointF>& sign, double width) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(QRectF(option.rect).center());
  painter.scale(PixelScale(), PixelScale());
  painter.setPen(QPen(SignColor(option), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(sign);
  painter.restore();
}

void DrawCheckBox(QPainter& painter, const QStyleOption& option) {
  painter.fillRect(option.rect,
                   QColor::fromRgb(Has(option, QStyle::State_Sunken) ? kPressedFace : qRgb(255, 255, 255)));
  DrawEdge(painter, option);
  if (Has(option, QStyle::State_On)) DrawSign(painter, option, {{-3, 0}, {-1, 2.5}, {3.5, -3}}, 1.8);
  if (Has(option, QStyle::State_NoChange)) DrawSign(painter, option, {{-3, 0}, {3, 0}}, 2.2);
}

void DrawButton(QPainter& painter, const QStyleOption& option) {
  QRgb face = Has(option, QStyle::State_MouseOver) ? kHoveredFace : kFace;
  if (Has(option, QStyle::State_Sunken)) face = kPressedFace;
  painter.fillRect(option.rect, QColor::fromRgb(face));
  DrawEdge(painter, option);
}

void DrawComboBox(QPainter& painter, const QStyleOptionComboBox& box, const QRect& arrow) {
  painter.fillRect(box.rect, Qt::white);
  DrawEdge(painter, box);
  QStyleOption sign = static_cast<const QStyleOption&>(box);
  sign.rect = arrow;
  DrawSign(painter, sign, {{-3.5, -1.75}, {0, 1.75}, {3.5, -1.75}}, 1.6);
}

// The selected tab is white and open to its page, with a line in the focus colour on top.
void DrawTab(QPainter& painter, const QStyleOptionTab& tab) {
  const bool chosen = Has(tab, QStyle::State_Selected);
  const int line = LinePixels(1);
  QRgb face = Has(tab, QStyle::State_MouseOver) ? kHoveredFace : kFace;
  if (chosen) face = qRgb(255, 255, 255);
  const QRect place = chosen ? tab.rect : tab.rect.adjusted(0, LinePixels(2), 0, -line);
  painter.fillRect(place, QColor::fromRgb(kEdge));
  painter.fillRect(place.adjusted(line, line, -line, chosen ? 0 : -line), QColor::fromRgb(face));
  if (!chosen) return;
  painter.fillRect(place.left(), place.top(), place.width(), LinePixels(3), QColor::fromRgb(kFocusedEdge));
}

void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, QRect handle) {
  painter.fillRect(bar.rect, QColor::fromRgb(kGroove));
  if (!Has(bar, QStyle::State_Enabled) || bar.maximum <= bar.minimum) return;
  const int margin = LinePixels(2);
  handle.adjust(margin, margin, -margin, -margin);
  const bool held = bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
  painter.fillRect(handle, QColor::fromRgb(held ? kHeldHandle : kHandle));
}

// The handle takes the same share of the groove as the visible page of the whole.
QRect HandleOf(const QStyleOptionSlider& bar) {
  const bool lying = bar.orientation == Qt::Horizontal;
  const int groove = lying ? bar.rect.width() : bar.rect.height();
  const double whole = static_cast<double>(bar.maximum) - bar.minimum + bar.pageStep;
  const int share = whole > 0 ? static_cast<int>(std::lround(groove * (bar.pageStep / whole))) : groove;
  const int length = std::min(groove, std::max(share, LinePixels(kShortestHandle)));
  const int start =
      QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, groove - length, bar.upsideDown);
  QRect handle = bar.rect;
  if (lying) {
    handle.setLeft(handle.left() + start);
    handle.setWidth(length);
  } else {
    handle.setTop(handle.top() + start);
    handle.setHeight(length);
  }
  return handle;
}

// No buttons at the ends; a click beside the handle scrolls by a page.
QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
  const QRect handle = HandleOf(bar);
  const bool lying = bar.orientation == Qt::Horizontal;
  QRect rest = bar.rect;
  switch (part) {
    case QStyle::SC_ScrollBarGroove:
      return rest;
    case QStyle::SC_ScrollBarSlider:
      return handle;
    case QStyle::SC_ScrollBarSubPage:
      if (lying) {
        rest.setRight(handle.left() - 1);
      } else {
        rest.setBottom(handle.top() - 1);
      }
      return rest;
    case QStyle::SC_ScrollBarAddPage:
      if (lying) {
        rest.setLeft(handle.right() + 1);
      } else {
        rest.setTop(handle.bottom() + 1);
      }
      return rest;
    default:
      return {};
  }
}

}  // namespace

LightStyle::LightStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void LightStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  auto* tip = qobject_cast<QLabel*>(widget);
  if (tip != nullptr && tip->inherits("QTipLabel")) tip->setTextFormat(Qt::PlainText);
}

int LightStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  if (metric == PM_DefaultFrameWidth || metric == PM_ComboBoxFrameWidth) return LinePixels(2);
  if (metric == PM_ButtonMargin) return LinePixels(6);
  if (metric == PM_MessageBoxIconSize) return LinePixels(32);
  const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
  return pixels > 0 ? LinePixels(pixels) : pixels;
}

int LightStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* answer) const {
  // Lists open below their box, not as menus over it.
  if (hint == SH_ComboBox_Popup || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

QSize LightStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const {
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (type != CT_MenuItem || entry == nullptr) return size;
  // It leaves the same pixels around an entry's text, and for a separator, at any scale; these are its minimum.
  const bool line = entry->menuItemType == QStyleOptionMenuItem::Separator;
  const int beside = size.width() - contents.width();
  const int above = line ? size.height() : size.height() - entry->fontMetrics.height();
  return size + QSize(std::max(LinePixels(beside) - beside, 0), LinePixels(above) - above);
}

QRect LightStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control == CC_ScrollBar && bar != nullptr) return ScrollBarPart(*bar, part);
  if (control == CC_ComboBox && (part == SC_ComboBoxEditField || part == SC_ComboBoxArrow)) {
    QRect place = option->rect;
    if (part == SC_ComboBoxArrow) {
      place.setLeft(place.right() + 1 - LinePixels(kArrowWidth));
      return place;
    }
    const int edge = LinePixels(2);
    return place.adjusted(2 * edge, edge, -LinePixels(kArrowWidth), -edge);
  }
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QIcon LightStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
  switch (icon) {
    case SP_MessageBoxInformation:
      return ArtworkIcon(QStringLiteral("message_information"));
    case SP_MessageBoxWarning:
      return ArtworkIcon(QStringLiteral("message_exclamation"));
    case SP_MessageBoxQuestion:
      return ArtworkIcon(QStringLiteral("message_question"));
    case SP_MessageBoxCritical:
      return ArtworkIcon(QStringLiteral("message_stop"));
    default:
      return QProxyStyle::standardIcon(icon, option, widget);
  }
}

void LightStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  switch (element) {
    case PE_Frame:
    case PE_FrameLineEdit:
      return DrawEdge(*painter, *option);
    case PE_FrameTabWidget:
      return DrawLineAlong(*painter, option->rect, LinePixels(1), kEdge);
    case PE_PanelButtonCommand:
      return DrawButton(*painter, *option);
    case PE_FrameFocusRect:
      // Flat tool buttons have no edge of their own to show the focus.
      if (qobject_cast<const QToolButton*>(widget) != nullptr) return DrawEdge(*painter, *option);
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
    case PE_IndicatorCheckBox:
      return DrawCheckBox(*painter, *option);
    default:
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void LightStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
  if (element == CE_TabBarTabShape && tab != nullptr) return DrawTab(*painter, *tab);
  const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (element != CE_ComboBoxLabel || box == nullptr) {
    return QProxyStyle::drawControl(element, option, painter, widget);
  }
  // A name that is too long ends with an ellipsis.
  const QRect place = subControlRect(CC_ComboBox, box, SC_ComboBoxEditField, widget);
  const QString text = box->fontMetrics.elidedText(box->currentText, Qt::ElideRight, place.width());
  drawItemText(painter, place, Qt::AlignLeft | Qt::AlignVCenter, box->palette, Has(*box, State_Enabled), text,
               QPalette::Text);
}

void LightStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control == CC_ScrollBar && bar != nullptr) {
    DrawScrollBar(*painter, *bar, HandleOf(*bar));
  } else if (control == CC_ComboBox && box != nullptr) {
    DrawComboBox(*painter, *box, subControlRect(control, box, SC_ComboBoxArrow, widget));
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

void UseLightLook() {
  // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns it, which the analyzer cannot see
  QApplication::setStyle(new LightStyle);
  const QColor heading(0x33, 0x66, 0x99);
  // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)

  QPalette palette(QColor(0xF0, 0xF0, 0xF0));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xFA, 0xFA, 0xFA));
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::Highlight, heading);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x80, 0x80, 0x80));
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x80, 0x80));
  QApplication::setPalette(palette);
  QToolTip::setPalette(palette);
}

}  // namespace quillon
