#include "study/window/legend.h"

#include <QGridLayout>
#include <QPainter>

#include "study/window/text_label.h"
#include "toolkit/colors.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

constexpr int kSwatch = 14;  // design pixels

class Swatch : public QWidget {
 public:
  Swatch(Rgb color, QWidget* parent) : QWidget(parent), color_(ToColor(color)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  }

  [[nodiscard]] QSize sizeHint() const override { return {LinePixels(kSwatch), LinePixels(kSwatch)}; }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    const int line = LinePixels(1);
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0x8C, 0x8C, 0x8C));
    painter.fillRect(rect().adjusted(line, line, -line, -line), color_);
  }

 private:
  QColor color_;
};

}  // namespace

void ShowLegend(QWidget& place, const std::vector<PageLegend>& lines) {
  qDeleteAll(place.findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
  delete place.layout();
  auto* rows = new QGridLayout(&place);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setColumnStretch(1, 1);
  int row = 0;
  for (const PageLegend& line : lines) {
    QLabel* text = MakeTextLabel(&place, kTextPoints);
    text->setText(ToQt(line.Text));
    rows->addWidget(new Swatch(line.Color, &place), row, 0, Qt::AlignTop);
    rows->addWidget(text, row, 1);
    ++row;
  }
}

}  // namespace quillon
