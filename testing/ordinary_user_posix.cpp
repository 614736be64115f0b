#include <cstdlib>
#include <unistd.h>

#include "testing/ordinary_user.h"

namespace quillon {

OrdinaryUser::OrdinaryUser() : superuser_(::geteuid() == 0) {
  if (superuser_ && ::seteuid(65534) != 0) std::abort();
}

OrdinaryUser::~OrdinaryUser() {
  if (superuser_ && ::seteuid(0) != 0) std::abort();
}

}  // namespace quillon
