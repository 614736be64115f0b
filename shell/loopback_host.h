#pragma once

// For tests: a web host on this machine, on a port that was free. It serves one connection after the other, each as the
// test says, which need not be as the rules of HTTP say.

#include <arpa/inet.h>
#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <netinet/in.h>
#include <poll.h>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quillon {

/// The host's end of a connection.
class LoopbackConnection {
 public:
  explicit LoopbackConnection(int socket) : socket_(socket) {
    while (request_.find("\r\n\r\n") == std::string::npos && Receive(&request_)) {
    }
  }
  ~LoopbackConnection() { close(socket_); }
  LoopbackConnection(const LoopbackConnection&) = delete;
  LoopbackConnection& operator=(const LoopbackConnection&) = delete;
  LoopbackConnection(LoopbackConnection&&) = delete;
  LoopbackConnection& operator=(LoopbackConnection&&) = delete;

  /// The head of the request, with its empty line.
  [[nodiscard]] const std::string& Request() const { return request_; }

  /// False once the other end is gone.
  bool Send(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t sent = send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
      if (sent <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
  }

  void WaitUntilTheOtherEndIsGone() const {
    while (Receive(nullptr)) {
    }
  }

  /// Comes back after that time, or with false as soon as the other end is gone.
  [[nodiscard]] bool Pause(std::chrono::milliseconds time) const {
    pollfd other = {.fd = socket_, .events = POLLRDHUP, .revents = 0};
    return poll(&other, 1, static_cast<int>(time.count())) == 0;
  }

  /// Ends the connection as a crash would, not as a host does that has said all.
  void Break() const {
    const linger atOnce = {.l_onoff = 1, .l_linger = 0};
    setsockopt(socket_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
  }

 private:
  bool Receive(std::string* text) const {
    std::array<char, 4096> block{};
    const ssize_t count = recv(socket_, block.data(), block.size(), 0);
    if (count <= 0) return false;
    if (text != nullptr) text->append(block.data(), static_cast<std::size_t>(count));
    return true;
  }

  int socket_;
  std::string request_;
};

class LoopbackHost {
 public:
  using Serve = std::function<void(LoopbackConnection&)>;

  explicit LoopbackHost(Serve serve) : serve_(std::move(serve)), socket_(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in place = {};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof place;
    void* anyPlace = &place;
    auto* address = static_cast<sockaddr*>(anyPlace);
    const bool listens =
        bind(socket_, address, size) == 0 && listen(socket_, 16) == 0 && getsockname(socket_, address, &size) == 0;
    if (listens) port_ = ntohs(place.sin_port);
    thread_ = std::thread([this] { Run(); });
  }

  /// A host that always says the same.
  explicit LoopbackHost(std::string reply)
      : LoopbackHost([reply = std::move(reply)](LoopbackConnection& connection) { connection.Send(reply); }) {}

  ~LoopbackHost() {
    shutdown(socket_, SHUT_RDWR);
    thread_.join();
    close(socket_);
  }
  LoopbackHost(const LoopbackHost&) = delete;
  LoopbackHost& operator=(const LoopbackHost&) = delete;
  LoopbackHost(LoopbackHost&&) = delete;
  LoopbackHost& operator=(LoopbackHost&&) = delete;

  [[nodiscard]] std::uint16_t Port() const { return port_; }

  /// "http://127.0.0.1:PORT" and the target; `name` is another name for this machine.
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
    for (int accepted = accept(socket_, nullptr, nullptr); accepted >= 0;
         accepted = accept(socket_, nullptr, nullptr)) {
      LoopbackConnection connection(accepted);
      {
        const std::lock_guard lock(mutex_);
        requests_.push_back(connection.Request());
      }
      serve_(connection);
    }
  }

  Serve serve_;
  int socket_;
  std::uint16_t port_ = 0;
  mutable std::mutex mutex_;
  std::vector<std::string> requests_;
  std::thread thread_;
};

}  // namespace quillon
