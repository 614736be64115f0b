#include "shell/http_address.h"

#include <algorithm>
#include <charconv>

#include "support/ascii_text.h"

namespace quillon {
namespace {

// A line end in an address would let whoever wrote it write the rest of the request as well.
bool IsPlain(std::string_view text) {
  return std::ranges::all_of(text, [](char character) { return character > ' ' && character < '\x7F'; });
}

std::string_view WithoutFragment(std::string_view address) {
  return address.substr(0, address.find('#'));
}

// "host", "host:port", "[number]:port": where the port's colon stands, or the end.
std::size_t PortColon(std::string_view authority) {
  const std::size_t start = authority.starts_with('[') ? authority.find(']') : 0;
  return std::min(authority.find(':', start), authority.size());
}

std::string_view WithoutBrackets(std::string_view host) {
  if (!host.starts_with('[')) return host;
  return host.ends_with(']') ? host.substr(1, host.size() - 2) : std::string_view();
}

// The port behind its colon. An empty one is that of the scheme; 0 stands for none that could be used.
std::uint16_t PortOf(std::string_view text) {
  if (text.size() <= 1) return 80;
  std::uint16_t port = 0;
  const char* end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data() + 1, end, port);
  return fault == std::errc() && stop == end ? port : std::uint16_t{0};
}

bool HasScheme(std::string_view location) {
  const std::size_t colon = location.find(':');
  return colon != std::string_view::npos && colon < location.find_first_of("/?");
}

// The target to which a location without a host refers.
std::string TargetBeside(std::string_view target, std::string_view location) {
  if (location.starts_with('/')) return std::string(location);
  const std::string_view path = target.substr(0, target.find('?'));
  if (location.starts_with('?')) return std::string(path) + std::string(location);
  return std::string(path.substr(0, path.rfind('/') + 1)) + std::string(location);
}

}  // namespace

std::optional<HttpAddress> ParseHttpAddress(std::string_view address) {
  constexpr std::string_view kScheme = "http://";
  address = WithoutFragment(address);
  if (!IsPlain(address) || AsciiLower(address.substr(0, kScheme.size())) != kScheme) return std::nullopt;
  address.remove_prefix(kScheme.size());

  const std::string_view authority = address.substr(0, address.find_first_of("/?"));
  const std::size_t colon = PortColon(authority);
  const std::string_view host = WithoutBrackets(authority.substr(0, colon));
  const std::uint16_t port = PortOf(authority.substr(colon));
  if (host.empty() || port == 0 || authority.find('@') != std::string_view::npos) return std::nullopt;

  std::string target(address.substr(authority.size()));
  if (!target.starts_with('/')) target.insert(0, "/");
  return HttpAddress{AsciiLower(host), port, std::move(target)};
}

std::optional<HttpAddress> RedirectedAddress(const HttpAddress& from, std::string_view location) {
  location = WithoutFragment(location);
  if (location.empty() || !IsPlain(location)) return std::nullopt;
  if (!HasScheme(location) && !location.starts_with("//")) {
    return HttpAddress{from.Host, from.Port, TargetBeside(from.Target, location)};
  }

  const std::string absolute = (location.starts_with("//") ? "http:" : "") + std::string(location);
  std::optional<HttpAddress> to = ParseHttpAddress(absolute);
  const bool stays = to && to->Host == from.Host && to->Port == from.Port;
  return stays ? to : std::nullopt;
}

std::string HttpRequestText(const HttpAddress& address) {
  const bool isNumber6 = address.Host.find(':') != std::string::npos;
  const std::string host = isNumber6 ? "[" + address.Host + "]" : address.Host;
  const std::string port = address.Port == 80 ? "" : ":" + std::to_string(address.Port);
  return "GET " + address.Target + " HTTP/1.0\r\n" +  //
         "Host: " + host + port + "\r\n" +  //
         "User-Agent: Quillon\r\n" +  //
         "Accept: */*\r\n" +  //
         "Connection: close\r\n" +  //
         "\r\n";
}

}  // namespace quillon
