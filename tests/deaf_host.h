#pragma once

// For tests: a host on this machine that drops whatever is sent to it, as one behind a firewall does. A connection to
// it is neither made nor refused.

#include <arpa/inet.h>
#include <array>
#include <cstdint>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quillon {

class DeafHost {
 public:
  // The system drops what would be one connection too many for a host that never takes one.
  DeafHost() {
    const bool listens = bind(host_, Address(), sizeof place_) == 0 && listen(host_, 0) == 0;
    socklen_t size = sizeof place_;
    if (!listens || getsockname(host_, Address(), &size) != 0) return;
    for (int& caller : callers_) {
      caller = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
      static_cast<void>(connect(caller, Address(), sizeof place_));  // stays in progress, which is not a success
    }
  }
  ~DeafHost() {
    for (const int caller : callers_)
      close(caller);
    close(host_);
  }
  DeafHost(const DeafHost&) = delete;
  DeafHost& operator=(const DeafHost&) = delete;
  DeafHost(DeafHost&&) = delete;
  DeafHost& operator=(DeafHost&&) = delete;

  [[nodiscard]] std::uint16_t Port() const { return ntohs(place_.sin_port); }

 private:
  [[nodiscard]] sockaddr* Address() {
    void* anyPlace = &place_;
    return static_cast<sockaddr*>(anyPlace);
  }

  int host_ = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in place_ = {.sin_family = AF_INET, .sin_port = 0, .sin_addr = {htonl(INADDR_LOOPBACK)}, .sin_zero = {}};
  std::array<int, 3> callers_ = {-1, -1, -1};
};

}  // namespace quillon
