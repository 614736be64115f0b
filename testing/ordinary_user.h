#pragma once

#include <cstdlib>
#include <unistd.h>

namespace quillon {

/// The system refuses nothing to its superuser, so a test that the superuser runs steps down while this exists.
class OrdinaryUser {
 public:
  OrdinaryUser() : superuser_(::geteuid() == 0) {
    if (superuser_ && ::seteuid(65534) != 0) std::abort();
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser(OrdinaryUser&&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(OrdinaryUser&&) = delete;
  ~OrdinaryUser() {
    if (superuser_ && ::seteuid(0) != 0) std::abort();
  }

 private:
  bool superuser_;
};

}  // namespace quillon
