#include "ranges/dialogs/dialog_window.h"

#include <QPlainTextEdit>
#include <algorithm>
#include <iterator>
#include <vector>

#include "artwork/artwork.h"
#include "ranges/range_messages.h"
#include "toolkit/accessible_control.h"
#include "toolkit/focus_mark.h"
#include "toolkit/picture.h"
#include "toolkit/placement.h"
#include "toolkit/text.h"
#include "toolkit/text_box.h"

namespace quillon {

void DressWindow(QWidget& form, std::string_view title) {
  InitArtwork();
  form.setWindowTitle(ToQt(title));
  form.setWindowIcon(ArtworkIcon(QStringLiteral("icon")));
  form.setBackgroundRole(QPalette::Base);
  form.setAutoFillBackground(true);
}

void PrepareDialog(QWidget& form, std::string_view title, const TwipSize& size) {
  DressWindow(form, title);
  SetPlace(form, {.Left = 0, .Top = 0, .Width = size.Width, .Height = size.Height});
}

void FrameBoxes(QWidget& form) {
  for (TextBox* box : form.findChildren<TextBox*>())
    box->setFrame(true);
  for (QPlainTextEdit* memo : form.findChildren<QPlainTextEdit*>())
    memo->setFrameShape(QFrame::StyledPanel);
  new FocusMark(form);
}

void OrderTabs(std::span<QWidget* const> controls) {
  // Qt puts into the tab order only those that Tab can reach at the time.
  std::vector<QWidget*> unreached;
  std::ranges::copy_if(controls, std::back_inserter(unreached),
                       [](const QWidget* control) { return control->focusPolicy() == Qt::NoFocus; });
  for (QWidget* control : unreached)
    control->setFocusPolicy(Qt::TabFocus);
  for (std::size_t i = 1; i < controls.size(); ++i)
    QWidget::setTabOrder(controls[i - 1], controls[i]);
  for (QWidget* control : unreached)
    control->setFocusPolicy(Qt::NoFocus);
  controls.front()->setFocus(Qt::OtherFocusReason);
}

void TellSaved(QWidget& form, const DialogSurroundings& around, std::string_view rangeName) {
  const Message saved = RangeSavedMessage(rangeName);
  Announce(form, ToQt(saved.text));
  around.Messages.Show(saved);
}

void BringUp(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace quillon
