// Addresses and redirects of any bytes: what is asked for is one request of plain letters, on the host it was for.

#include <algorithm>
#include <optional>
#include <string>

#include "fuzz/fuzz_target.h"
#include "shell/http_address.h"

namespace quillon {
namespace {

bool IsPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < '\x7F'; });
}

void CheckAddress(const HttpAddress& address) {
  Require(!address.Host.empty() && address.Port != 0, "an address has a host and a port");
  Require(IsPlain(address.Host) && IsPlain(address.Target), "an address is plain letters");
  Require(address.Target.starts_with('/'), "a target begins with a slash");
  Require(address.Target.find('#') == std::string::npos, "what stands behind a # stays here");
  Require(address.Host.find_first_of("/?#@") == std::string::npos, "a host is a host alone");

  const std::string request = HttpRequestText(address);
  Require(request.starts_with("GET " + address.Target + " HTTP/1.0\r\n"), "the target is asked for as it stands");
  Require(request.ends_with("\r\n\r\n"), "a request has an end");
  Require(request.find("\r\n\r\n") + 4 == request.size(), "a request is one request");
  Require(std::count(request.begin(), request.end(), '\n') == 6, "a request has its five lines and no more");
}

// The address written out again.
std::string TextOf(const HttpAddress& address) {
  const bool isNumber6 = address.Host.find(':') != std::string::npos;
  return "http://" + (isNumber6 ? "[" + address.Host + "]" : address.Host) + ":" + std::to_string(address.Port) +
         address.Target;
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  const std::string location(input.TakeText(input.TakeBelow(64)));
  const std::string text(input.Rest());

  for (const std::string& any : {text, "http://" + text}) {
    const std::optional<HttpAddress> address = ParseHttpAddress(any);
    if (!address) continue;
    CheckAddress(*address);
    // A bracket within a host comes back as it was from no text at all, so only hosts without are written out.
    const bool hasBracket = address->Host.find_first_of("[]") != std::string::npos;
    Require(hasBracket || ParseHttpAddress(TextOf(*address)) == address, "an address written out is the same");

    const std::optional<HttpAddress> redirected = RedirectedAddress(*address, location);
    if (!redirected) continue;
    CheckAddress(*redirected);
    Require(redirected->Host == address->Host && redirected->Port == address->Port, "a redirect stays on its host");
  }
  return 0;
}
