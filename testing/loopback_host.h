#pragma once

// Web hosts on this machine, each on a port that was free: one that serves connections as a test says, which may be
// against the rules of HTTP, one that serves pages, and one that never answers.

#include <arpa/inet.h>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
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

  /// Returns after that time, or false as soon as the other end is gone.
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

/// Serves one connection after the other.
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

struct WebPage {
  int Status = 200;
  std::string Body = {};
  std::string Location = {};  // of a redirect; empty: there is no such header
};

/// Serves pages as a well-meaning host does.
class LoopbackWebHost {
 public:
  [[nodiscard]] std::uint16_t Port() const { return host_.Port(); }

  /// From now on this is the page at `path`, whatever the query. A path without a page gets status 404 and no text.
  void Put(std::string_view path, WebPage page) {
    const std::lock_guard lock(mutex_);
    pages_.insert_or_assign(std::string(path), std::move(page));
  }

  /// What was asked for so far, path and query, byte for byte.
  [[nodiscard]] std::vector<std::string> Targets() const {
    std::vector<std::string> targets;
    for (const std::string& request : host_.Requests())
      targets.push_back(TargetOf(request));
    return targets;
  }

 private:
  // What is between the first two spaces.
  static std::string TargetOf(const std::string& request) {
    const std::size_t start = request.find(' ') + 1;
    return request.substr(start, request.find(' ', start) - start);
  }

  [[nodiscard]] std::string ReplyTo(const std::string& request) const {
    const std::string target = TargetOf(request);
    const std::lock_guard lock(mutex_);
    const auto found = pages_.find(target.substr(0, target.find('?')));
    const WebPage page = found == pages_.end() ? WebPage{.Status = 404} : found->second;
    const std::string location = page.Location.empty() ? "" : "Location: " + page.Location + "\r\n";
    return "HTTP/1.1 " + std::to_string(page.Status) +
           " OK\r\nContent-Type: text/html\r\nContent-Length: " + std::to_string(page.Body.size()) + "\r\n" + location +
           "Connection: close\r\n\r\n" + page.Body;
  }

  mutable std::mutex mutex_;
  std::map<std::string, WebPage> pages_;
  LoopbackHost host_{[this](LoopbackConnection& connection) { connection.Send(ReplyTo(connection.Request())); }};
};

/// Drops whatever is sent to it, as one behind a firewall does. A connection to it is neither made nor refused.
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
