#include "toolkit/rich_text_box.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>
#include <QTextDocumentFragment>
#include <cmath>

#include "toolkit/twip_geometry.h"

namespace quillon {

int ScaledPaper::metric(PaintDeviceMetric metric) const {
  constexpr double kDots = 96;
  switch (metric) {
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return static_cast<int>(std::lround(kDots * PixelScale()));
    default:
      return QPaintDevice::metric(metric);
  }
}

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent) {
  setAcceptRichText(false);
  setTabChangesFocus(true);
  document()->documentLayout()->setPaintDevice(&paper_);
}

QMimeData* RichTextBox::createMimeDataFromSelection() const {
  auto* copied = new QMimeData;
  copied->setText(textCursor().selection().toPlainText());
  return copied;
}

}  // namespace quillon
