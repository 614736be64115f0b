#pragma once

#include <future>
#include <sstream>
#include <utility>

namespace quillon {

/// Output that accepts nothing until it is released, like a pipe with a slow reader.
class BlockedOutput final : public std::stringbuf {
 public:
  explicit BlockedOutput(std::shared_future<void> released) : released_(std::move(released)) {}

 protected:
  int_type overflow(int_type c) override {
    released_.wait();
    return std::stringbuf::overflow(c);
  }

 private:
  std::shared_future<void> released_;
};

}  // namespace quillon
