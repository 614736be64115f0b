#pragma once

// The host's end of connections within this machine.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace quillon {

/// A TCP socket, closed with the object.
class Socket {
 public:
  /// One that listens on a free port of 127.0.0.1.
  Socket();
  Socket(Socket&& other) noexcept;
  Socket(const Socket&) = delete;
  Socket& operator=(const Socket&) = delete;
  Socket& operator=(Socket&&) = delete;
  ~Socket();

  /// False of what Accept returns after StopAccepting, and where the system had no socket.
  [[nodiscard]] bool IsOpen() const;

  /// Of one that listens; 0 where the system had none.
  [[nodiscard]] std::uint16_t Port() const;

  /// The next connection, which it waits for.
  [[nodiscard]] Socket Accept() const;

  /// Ends Accept in another thread.
  void StopAccepting();

  /// Sends all of it. False once the other end is gone.
  [[nodiscard]] bool Send(std::string_view bytes) const;

  /// Waits for bytes and returns how many have come, 0 once the other end is gone.
  [[nodiscard]] std::size_t Receive(std::span<char> bytes) const;

  /// Returns true after that time, or false as soon as the other end is gone.
  [[nodiscard]] bool Pause(std::chrono::milliseconds time) const;

  /// Lets the connection end as a crash would, not as a host does that has said all.
  void Break() const;

 private:
  explicit Socket(std::intptr_t number) : number_(number) {}

  std::intptr_t number_;
};

/// Whether a read tells a connection that broke from one that was closed. Under Wine it does not where something has
/// waited for bytes before: its select() takes the error away, and the read returns 0.
[[nodiscard]] bool TellsBreaks();

}  // namespace quillon
