#pragma once

namespace quillon {

/// The superuser may be allowed everything, so a test that he runs drops his rights during this object's lifetime.
class OrdinaryUser {
 public:
  OrdinaryUser();
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser(OrdinaryUser&&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(OrdinaryUser&&) = delete;
  ~OrdinaryUser();

 private:
  bool superuser_;
};

}  // namespace quillon
