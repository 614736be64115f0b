#pragma once

// A web host on this machine, on a free port. It serves connections as a test says, which may violate HTTP.

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "testing/socket.h"

namespace quillon {

/// The host's end of a connection.
class LoopbackConnection {
 public:
  explicit LoopbackConnection(Socket socket) : socket_(std::move(socket)) {
    while (request_.find("\r\n\r\n") == std::string::npos && Receive(&request_)) {
    }
  }

  /// The head of the request, with its empty line.
  [[nodiscard]] const std::string& Request() const { return request_; }

  /// False once the client is gone.
  bool Send(std::string_view bytes) const { return socket_.Send(bytes); }

  void WaitUntilTheOtherEndIsGone() const {
    while (Receive(nullptr)) {
    }
  }

  /// Returns true after that time, or false as soon as the client is gone.
  [[nodiscard]] bool Pause(std::chrono::milliseconds time) const { return socket_.Pause(time); }

  /// Resets the connection, as a crash would, instead of closing it.
  void Break() const { socket_.Break(); }

 private:
  bool Receive(std::string* text) const {
    std::array<char, 4096> block{};
    const std::size_t count = socket_.Receive(block);
    if (text != nullptr) text->append(block.data(), count);
    return count > 0;
  }

  Socket socket_;
  std::string request_;
};

/// Serves connections one after another.
class LoopbackHost {
 public:
  using Serve = std::function<void(LoopbackConnection&)>;

  explicit LoopbackHost(Serve serve) : serve_(std::move(serve)) {}

  /// A host with a fixed reply.
  explicit LoopbackHost(std::string reply)
      : LoopbackHost([reply = std::move(reply)](LoopbackConnection& connection) { connection.Send(reply); }) {}

  ~LoopbackHost() {
    socket_.StopAccepting();
    thread_.join();
  }
  LoopbackHost(const LoopbackHost&) = delete;
  LoopbackHost& operator=(const LoopbackHost&) = delete;
  LoopbackHost(LoopbackHost&&) = delete;
  LoopbackHost& operator=(LoopbackHost&&) = delete;

  [[nodiscard]] std::uint16_t Port() const { return port_; }

  /// "http://127.0.0.1:PORT" plus the target; `name` replaces the host's address.
  [[nodiscard]] std::string Address(std::string_view target = "/", std::string_view name = "127.0.0.1") const {
    return "http://" + std::string(name) + ":" + std::to_string(port_) + std::string(target);
  }

  /// The heads of all requests so far.
  [[nodiscard]] std::vector<std::string> Requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
  }

 private:
  void Run() {
    for (;;) {
      Socket accepted = socket_.Accept();
      if (!accepted.IsOpen()) return;
      LoopbackConnection connection(std::move(accepted));
      {
        const std::lock_guard lock(mutex_);
        requests_.push_back(connection.Request());
      }
      serve_(connection);
    }
  }

  Serve serve_;
  Socket socket_;
  std::uint16_t port_ = socket_.Port();
  mutable std::mutex mutex_;
  std::vector<std::string> requests_;
  std::thread thread_{[this] { Run(); }};
};

}  // namespace quillon
