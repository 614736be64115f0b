#include <algorithm>
#include <array>
#include <utility>
#include <winsock2.h>

#include "testing/socket.h"

namespace quillon {
namespace {

constexpr auto kNone = static_cast<std::intptr_t>(INVALID_SOCKET);

SOCKET Number(std::intptr_t number) {
  return static_cast<SOCKET>(number);
}

sockaddr* AddressOf(sockaddr_in& place) {
  void* const any = &place;
  return static_cast<sockaddr*>(any);
}

std::intptr_t NewSocket() {
  WSADATA about{};
  if (WSAStartup(MAKEWORD(2, 2), &about) != 0) return kNone;  // undone when the process ends
  return static_cast<std::intptr_t>(socket(AF_INET, SOCK_STREAM, 0));
}

int SizeOf(std::size_t size) {
  return static_cast<int>(std::min(size, std::size_t{1} << 30U));
}

}  // namespace

Socket::Socket() : number_(NewSocket()) {
  sockaddr_in place{};
  place.sin_family = AF_INET;
  place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  static_cast<void>(bind(Number(number_), AddressOf(place), sizeof place) == 0 && listen(Number(number_), 16) == 0);
}

Socket::Socket(Socket&& other) noexcept : number_(std::exchange(other.number_, kNone)) {}

Socket::~Socket() {
  StopAccepting();
}

bool Socket::IsOpen() const {
  return number_ != kNone;
}

std::uint16_t Socket::Port() const {
  sockaddr_in place{};
  int size = sizeof place;
  return getsockname(Number(number_), AddressOf(place), &size) == 0 ? ntohs(place.sin_port) : std::uint16_t{0};
}

Socket Socket::Accept() const {
  return Socket(static_cast<std::intptr_t>(accept(Number(number_), nullptr, nullptr)));
}

// Only closing it ends a wait.
void Socket::StopAccepting() {
  if (const std::intptr_t number = std::exchange(number_, kNone); number != kNone) closesocket(Number(number));
}

bool Socket::Send(std::string_view bytes) const {
  while (!bytes.empty()) {
    const int sent = send(Number(number_), bytes.data(), SizeOf(bytes.size()), 0);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

std::size_t Socket::Receive(std::span<char> bytes) const {
  const int count = recv(Number(number_), bytes.data(), SizeOf(bytes.size()), 0);
  return count < 0 ? 0 : static_cast<std::size_t>(count);
}

// A closed connection is readable, with no bytes.
bool Socket::Pause(std::chrono::milliseconds time) const {
  fd_set reading{};
  FD_SET(Number(number_), &reading);
  timeval wait = {.tv_sec = static_cast<long>(time.count() / 1000),
                  .tv_usec = static_cast<long>(time.count() % 1000 * 1000)};
  return select(0, &reading, nullptr, nullptr, &wait) == 0;
}

void Socket::Break() const {
  const linger atOnce = {.l_onoff = 1, .l_linger = 0};
  std::array<char, sizeof atOnce> bytes{};
  const void* const from = &atOnce;
  std::copy_n(static_cast<const char*>(from), bytes.size(), bytes.begin());
  setsockopt(Number(number_), SOL_SOCKET, SO_LINGER, bytes.data(), static_cast<int>(bytes.size()));
}

bool TellsBreaks() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr;
}

}  // namespace quillon
