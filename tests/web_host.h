#pragma once

// For tests: a web host as they are in the world, made of a library's server, on this machine and on a port that was
// free. It says what a host says that means well; one that does not is in "shell/loopback_host.h".

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

struct WebPage {
  int Status = 200;
  std::string Body = {};
  std::string Location = {};  // of a redirect; empty: none is told
};

class LoopbackWebHost {
 public:
  LoopbackWebHost();
  ~LoopbackWebHost();
  LoopbackWebHost(const LoopbackWebHost&) = delete;
  LoopbackWebHost& operator=(const LoopbackWebHost&) = delete;
  LoopbackWebHost(LoopbackWebHost&&) = delete;
  LoopbackWebHost& operator=(LoopbackWebHost&&) = delete;

  [[nodiscard]] std::uint16_t Port() const;

  /// From now on this is the page at `path`, whatever the query. A path without a page gets status 404 and no text.
  void Put(std::string_view path, WebPage page);

  /// What was asked for so far, path and query, byte for byte.
  [[nodiscard]] std::vector<std::string> Targets() const;

 private:
  class Server;
  std::unique_ptr<Server> server_;
};

}  // namespace quillon
