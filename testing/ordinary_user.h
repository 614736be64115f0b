#pragma once

namespace quillon {

/// A system may refuse nothing to its superuser, so a test that the superuser runs steps down while this exists.
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
