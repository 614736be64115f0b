#include "artwork/artwork.h"

#include <QtCore/QtGlobal>

// The macro declares a function in the global namespace, so it cannot be used inside ours.
static void InitResources() {
  Q_INIT_RESOURCE(artwork);
}

namespace quillon {

void InitArtwork() {
  InitResources();
}

}  // namespace quillon
