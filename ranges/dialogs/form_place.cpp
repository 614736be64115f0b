#include "ranges/dialogs/form_place.h"

#include <QGuiApplication>
#include <QScreen>

#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

TwipSize SizeInTwips(const QSize& pixels) {
  const TwipRect rect = TwipsOf(QRect(QPoint(0, 0), pixels));
  return {rect.Width, rect.Height};
}

}  // namespace

void RestorePlace(QWidget& form, std::string_view section, const ProgramFolder& folder) {
  const TwipSize screen = SizeInTwips(QGuiApplication::primaryScreen()->size());
  const TwipPoint corner = StoredCorner(section, SizeInTwips(form.size()), screen, folder);
  form.move(PixelEdge(corner.Left), PixelEdge(corner.Top));
}

std::vector<IniSetting> PlaceSettings(std::string_view section, const QWidget& form) {
  const TwipRect place = TwipsOf(QRect(form.pos(), QSize()));
  return PlaceSettings(section, {.Left = place.Left, .Top = place.Top});
}

}  // namespace quillon
