#include "testing/ordinary_user.h"

namespace quillon {

// A file that is read-only is so to everyone.
OrdinaryUser::OrdinaryUser() : superuser_(false) {}

OrdinaryUser::~OrdinaryUser() = default;

}  // namespace quillon
