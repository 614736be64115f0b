#include "testing/ordinary_user.h"

namespace quillon {

// A read-only file is so for everyone.
OrdinaryUser::OrdinaryUser() : superuser_(false) {}

OrdinaryUser::~OrdinaryUser() = default;

}  // namespace quillon
