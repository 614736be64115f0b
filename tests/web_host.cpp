#include "tests/web_host.h"

#include <chrono>
#include <functional>
#include <httplib.h>
#include <map>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>

namespace quillon {

class LoopbackWebHost::Server {
 public:
  Server() : port_(server_.bind_to_any_port("127.0.0.1")) {
    if (port_ <= 0) throw std::runtime_error("no port on this machine is free");
    server_.Get(".*", [this](const httplib::Request& request, httplib::Response& reply) { Answer(request, reply); });
    thread_ = std::thread([this] { server_.listen_after_bind(); });
    // The library leaves a server alone that is told to stop before it runs.
    while (!server_.is_running())
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  ~Server() {
    server_.stop();
    thread_.join();
  }
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  Server(Server&&) = delete;
  Server& operator=(Server&&) = delete;

  [[nodiscard]] std::uint16_t Port() const { return static_cast<std::uint16_t>(port_); }

  void Put(std::string_view path, WebPage page) {
    const std::lock_guard lock(mutex_);
    pages_.insert_or_assign(std::string(path), std::move(page));
  }

  [[nodiscard]] std::vector<std::string> Targets() const {
    const std::lock_guard lock(mutex_);
    return targets_;
  }

 private:
  void Answer(const httplib::Request& request, httplib::Response& reply) {
    const std::lock_guard lock(mutex_);
    targets_.push_back(request.target);
    const auto page = pages_.find(request.path);
    if (page == pages_.end()) {
      reply.status = 404;
      return;
    }
    reply.status = page->second.Status;
    reply.set_content(page->second.Body, "text/html");
    if (!page->second.Location.empty()) reply.set_header("Location", page->second.Location);
  }

  httplib::Server server_;
  int port_;
  mutable std::mutex mutex_;
  std::map<std::string, WebPage, std::less<>> pages_;
  std::vector<std::string> targets_;
  std::thread thread_;
};

LoopbackWebHost::LoopbackWebHost() : server_(std::make_unique<Server>()) {}
LoopbackWebHost::~LoopbackWebHost() = default;

std::uint16_t LoopbackWebHost::Port() const {
  return server_->Port();
}

void LoopbackWebHost::Put(std::string_view path, WebPage page) {
  server_->Put(path, std::move(page));
}

std::vector<std::string> LoopbackWebHost::Targets() const {
  return server_->Targets();
}

}  // namespace quillon
