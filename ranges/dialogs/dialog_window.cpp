#include "ranges/dialogs/dialog_window.h"

#include <QIcon>
#include <QPlainTextEdit>

#include "artwork/artwork.h"
#include "toolkit/text.h"
#include "toolkit/text_box.h"
#include "toolkit/twip_geometry.h"

namespace quillon {

void PrepareDialog(QWidget& form, std::string_view title, const TwipSize& size) {
  InitArtwork();
  form.setWindowTitle(ToQt(title));
  form.setWindowIcon(QIcon(QStringLiteral(":/artwork/icon.svg")));
  form.setFixedSize(PixelEdge(size.Width), PixelEdge(size.Height));

  form.setBackgroundRole(QPalette::Base);
  form.setAutoFillBackground(true);
}

void FrameBoxes(QWidget& form) {
  for (TextBox* box : form.findChildren<TextBox*>())
    box->setFrame(true);
  for (QPlainTextEdit* memo : form.findChildren<QPlainTextEdit*>())
    memo->setFrameShape(QFrame::StyledPanel);
}

void OrderTabs(std::span<QWidget* const> controls) {
  controls.front()->setFocus(Qt::OtherFocusReason);
  for (std::size_t i = 1; i < controls.size(); ++i)
    QWidget::setTabOrder(controls[i - 1], controls[i]);
}

void BringUp(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace quillon
