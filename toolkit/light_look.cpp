#include "toolkit/light_look.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>

#include "toolkit/light_style.h"

namespace quillon {

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
