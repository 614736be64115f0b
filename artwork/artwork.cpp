#include "artwork/artwork.h"

#include <QtCore/QtGlobal>

// The macro declares a function of the global namespace, so it cannot stand inside ours nor in one without a name.
static void InitResources() {
  Q_INIT_RESOURCE(artwork);
}

namespace quillon {

void InitArtwork() {
  InitResources();
}

}  // namespace quillon
