#include "shell/screens/zoom_view.h"

#include <QApplication>
#include <QKeySequence>
#include <QScreen>
#include <QShortcut>
#include <utility>

#include "ranges/dialogs/form_place.h"
#include "toolkit/desktop_scale.h"
#include "toolkit/placement.h"

namespace quillon {

ZoomView::ZoomView(QWidget& form, ProgramFolder folder) : form_(form), folder_(std::move(folder)) {
  const auto bind = [this](const char* keys, int (*stepFrom)(int percent)) {
    auto* shortcut = new QShortcut(QKeySequence(QString::fromLatin1(keys)), &form_);
    shortcut->setContext(Qt::ApplicationShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &form_, [this, stepFrom] { Choose(stepFrom(percent_)); });
  };
  bind("Ctrl++", LargerZoom);
  bind("Ctrl+=", LargerZoom);  // the same key without Shift on many keyboards
  bind("Ctrl+-", SmallerZoom);
  bind("Ctrl+0", [](int /*percent*/) { return kDesignZoom; });
}

void ZoomView::Start() {
  const TwipRect design = PlaceOf(form_);
  const TwipSize screen = ScreenTwips(form_.screen()->availableSize());
  Show(StoredZoom(folder_).value_or(FittingZoom({.Width = design.Width, .Height = design.Height}, screen)));
}

void ZoomView::Choose(int percent) {
  StoreZoom(percent, folder_);
  Show(percent);
  // Hidden windows reappear at their current place.
  for (QWidget* window : QApplication::topLevelWidgets())
    KeepOnScreen(*window);
}

void ZoomView::Show(int percent) {
  percent_ = percent;
  ShowAtScale(DesktopScale(form_.screen()) * percent / kDesignZoom);
}

}  // namespace quillon
