#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/types.h>
#include <unistd.h>
#include <utility>

#include "testing/socket.h"

namespace quillon {
namespace {

constexpr std::intptr_t kNone = -1;

sockaddr* AddressOf(sockaddr_in& place) {
  void* const any = &place;
  return static_cast<sockaddr*>(any);
}

int Number(std::intptr_t number) {
  return static_cast<int>(number);
}

}  // namespace

Socket::Socket() : number_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in place = {};
  place.sin_family = AF_INET;
  place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  static_cast<void>(bind(Number(number_), AddressOf(place), sizeof place) == 0 && listen(Number(number_), 16) == 0);
}

Socket::Socket(Socket&& other) noexcept : number_(std::exchange(other.number_, kNone)) {}

Socket::~Socket() {
  if (IsOpen()) close(Number(number_));
}

bool Socket::IsOpen() const {
  return number_ != kNone;
}

std::uint16_t Socket::Port() const {
  sockaddr_in place = {};
  socklen_t size = sizeof place;
  return getsockname(Number(number_), AddressOf(place), &size) == 0 ? ntohs(place.sin_port) : std::uint16_t{0};
}

Socket Socket::Accept() const {
  return Socket(accept(Number(number_), nullptr, nullptr));
}

void Socket::StopAccepting() {
  shutdown(Number(number_), SHUT_RDWR);
}

bool Socket::Send(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t sent = send(Number(number_), bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

std::size_t Socket::Receive(std::span<char> bytes) const {
  const ssize_t count = recv(Number(number_), bytes.data(), bytes.size(), 0);
  return count < 0 ? 0 : static_cast<std::size_t>(count);
}

bool Socket::Pause(std::chrono::milliseconds time) const {
  pollfd other = {.fd = Number(number_), .events = POLLRDHUP, .revents = 0};
  return poll(&other, 1, static_cast<int>(time.count())) == 0;
}

void Socket::Break() const {
  const linger atOnce = {.l_onoff = 1, .l_linger = 0};
  setsockopt(Number(number_), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
}

bool TellsBreaks() {
  return true;
}

}  // namespace quillon
