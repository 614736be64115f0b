#include "toolkit/fonts.h"

#include <array>
#include <cmath>

#include "toolkit/text.h"

namespace quillon {
namespace {

struct StandIn {
  std::string_view Family;
  std::string_view Substitute;
};

constexpr std::array kStandIns = {
    StandIn{"Arial", "Liberation Sans"},        StandIn{"MS Sans Serif", "Liberation Sans"},
    StandIn{"Tahoma", "DejaVu Sans Condensed"}, StandIn{"Verdana", "DejaVu Sans"},
    StandIn{"Courier New", "Liberation Mono"},
};

}  // namespace

QStringList FontFamilies(std::string_view family) {
  QStringList families{ToQt(family)};
  for (const StandIn& row : kStandIns) {
    if (row.Family == family) families << ToQt(row.Substitute);
  }
  return families;
}

int FontPixels(float points) {
  return static_cast<int>(std::lround(points * 96 / 72));
}

QFont FormFont(const FontSpec& spec, const FontSpec& inherited) {
  const FontSpec& used = spec.Family.empty() ? inherited : spec;
  QFont font;
  font.setFamilies(FontFamilies(used.Family));
  font.setPixelSize(FontPixels(used.Points));
  font.setBold(used.Bold);
  font.setUnderline(used.Underlined);
  return font;
}

}  // namespace quillon
