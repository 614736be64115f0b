#include "ranges/dialogs/dialog_window.h"

#include <QIcon>
#include <QPlainTextEdit>

#include "artwork/artwork.h"
#include "toolkit/text.h"
#include "toolkit/text_box.h"
#include "toolkit/twip_geometry.h"

namespace quillon {

FormControls BuildDialog(QWidget& form, const DialogDesign& design) {
  InitArtwork();
  form.setWindowTitle(ToQt(design.Title));
  form.setWindowIcon(QIcon(QStringLiteral(":/artwork/icon.svg")));
  form.setFixedSize(PixelEdge(design.Size.Width), PixelEdge(design.Size.Height));

  form.setBackgroundRole(QPalette::Base);
  form.setAutoFillBackground(true);

  FormControls controls = BuildForm(form, design.Tables);
  // No shapes are drawn round the boxes here.
  for (TextBox* box : form.findChildren<TextBox*>())
    box->setFrame(true);
  for (QPlainTextEdit* memo : form.findChildren<QPlainTextEdit*>())
    memo->setFrameShape(QFrame::StyledPanel);
  return controls;
}

void OrderTabs(const FormControls& controls, std::span<const std::string_view> names) {
  QWidget* before = nullptr;
  const auto goOnTo = [&before](QWidget* control) {
    if (before == nullptr) {
      control->setFocus(Qt::OtherFocusReason);
    } else {
      QWidget::setTabOrder(before, control);
    }
    before = control;
  };
  for (const std::string_view name : names) {
    const std::int16_t count = controls.CountOf(name);
    if (count == 0) goOnTo(&controls.Get<QWidget>(name));
    for (std::int16_t index = 0; index < count; ++index)
      goOnTo(&controls.Get<QWidget>(name, index));
  }
}

void BringUp(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace quillon
