#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <netinet/in.h>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

#include "shell/http_get.h"
#include "testing/loopback_host.h"

namespace quillon {
namespace {

using std::chrono::milliseconds;

constexpr std::array kProxyVariables = {"http_proxy", "HTTP_PROXY", "all_proxy", "ALL_PROXY"};
constexpr milliseconds kShort{300};
constexpr milliseconds kSlack{10'000};  // for a busy machine

std::string Get(std::string_view address, milliseconds limit) {
  const auto answer = std::make_shared<std::promise<std::string>>();
  std::future<std::string> body = answer->get_future();
  HttpGet(address, limit, [answer](std::string text) { answer->set_value(std::move(text)); });
  return body.get();
}

// A host name that does not resolve can only be reached through a proxy; requests to this machine never use one.
TEST(HttpGet, AsksNoProxy) {
  const LoopbackHost proxy("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nproxy");
  for (const char* name : kProxyVariables)
    setenv(name, proxy.Address().c_str(), 1);
  const std::string body = Get("http://nobody.invalid/", kShort);
  for (const char* name : kProxyVariables)
    unsetenv(name);

  EXPECT_EQ(body, "");
  EXPECT_TRUE(proxy.Requests().empty());
}

// Drops all packets, like a firewall: a connection to it is neither established nor refused.
class DeafHost {
 public:
  // The backlog is full, so the system drops further connections.
  DeafHost() {
    const bool listens = bind(host_, Address(), sizeof place_) == 0 && listen(host_, 0) == 0;
    socklen_t size = sizeof place_;
    if (!listens || getsockname(host_, Address(), &size) != 0) return;
    for (int& caller : callers_) {
      caller = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
      static_cast<void>(connect(caller, Address(), sizeof place_));  // stays in progress, which is not an error
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

TEST(HttpGet, IsUpWithAHostThatCannotBeReached) {
  const DeafHost host;
  ASSERT_NE(host.Port(), 0);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Get("http://127.0.0.1:" + std::to_string(host.Port()) + "/", kShort), "");
  const auto spent = std::chrono::steady_clock::now() - start;
  EXPECT_GE(spent, kShort);
  EXPECT_LT(spent, kShort + kSlack);
}

}  // namespace
}  // namespace quillon
