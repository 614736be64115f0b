#include "artwork/artwork.h"

#include <QtCore/QtGlobal>

// The macro declares a function of the global namespace, so it can be neither in ours nor in an unnamed one.
static void InitResources() {
  Q_INIT_RESOURCE(artwork);
}

namespace quillon {

void InitArtwork() {
  InitResources();
}

}  // namespace quillon
