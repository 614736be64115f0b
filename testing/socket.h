#pragma once

// The host's end of local connections.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace quillon {

/// A TCP socket, closed with the object.
class Socket {
 public:
  /// Listens on a free port of 127.0.0.1.
  Socket();
  Socket(Socket&& other) noexcept;
  Socket(const Socket&) = delete;
  Socket& operator=(const Socket&) = delete;
  Socket& operator=(Socket&&) = delete;
  ~Socket();

  /// False for the result of Accept after StopAccepting, and if the system has no socket.
  [[nodiscard]] bool IsOpen() const;

  /// For a listening socket; 0 if the system has none.
  [[nodiscard]] std::uint16_t Port() const;

  /// Waits for the next connection.
  [[nodiscard]] Socket Accept() const;

  /// Ends Accept in another thread.
  void StopAccepting();

  /// Sends everything. False once the other end is gone.
  [[nodiscard]] bool Send(std::string_view bytes) const;

  /// Waits for bytes and returns their number, 0 once the other end is gone.
  [[nodiscard]] std::size_t Receive(std::span<char> bytes) const;

  /// Returns true after that time, or false as soon as the other end is gone.
  [[nodiscard]] bool Pause(std::chrono::milliseconds time) const;

  /// Resets the connection, as a crash would, instead of closing it.
  void Break() const;

 private:
  explicit Socket(std::intptr_t number) : number_(number) {}

  std::intptr_t number_;
};

/// Whether reading distinguishes a reset connection from a closed one. Not under Wine after waiting for bytes: its
/// select() clears the error, and the read returns 0.
[[nodiscard]] bool TellsBreaks();

}  // namespace quillon
