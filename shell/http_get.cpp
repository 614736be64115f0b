#include "shell/http_get.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <exception>
#include <future>
#include <httplib.h>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "support/ascii_text.h"
#include "support/message_boxes.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

using std::chrono::milliseconds;

constexpr int kMostRedirects = 10;
constexpr std::string_view kScheme = "http://";

struct Place {
  std::string Host;  // lower-case
  std::uint16_t Port = 80;
  std::string Target;  // path and query, starting with "/"
};

std::optional<std::uint16_t> PortOf(std::string_view digits) {
  std::uint16_t port = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, fault] = std::from_chars(digits.data(), end, port);
  return fault == std::errc() && stop == end ? std::optional(port) : std::nullopt;
}

std::optional<Place> PlaceOf(std::string_view address) {
  address = address.substr(0, address.find('#'));
  if (!EqualButForCase(address.substr(0, kScheme.size()), kScheme)) return std::nullopt;
  address.remove_prefix(kScheme.size());

  const std::string_view authority = address.substr(0, address.find_first_of("/?"));
  const std::size_t colon = std::min(authority.find(':'), authority.size());
  const std::optional<std::uint16_t> port = colon == authority.size() ? 80 : PortOf(authority.substr(colon + 1));
  if (colon == 0 || !port) return std::nullopt;

  std::string target(address.substr(authority.size()));
  if (!target.starts_with('/')) target.insert(0, "/");
  return Place{AsciiLower(authority.substr(0, colon)), *port, std::move(target)};
}

// The characters allowed in a location. A line end could inject a request header.
bool IsPlain(std::string_view text) {
  return std::ranges::all_of(text, [](char character) { return character > ' ' && character < '\x7F'; });
}

bool HasScheme(std::string_view location) {
  const std::size_t colon = location.find(':');
  return colon != std::string_view::npos && colon < location.find_first_of("/?");
}

// The target of a location: absolute ("http://host/b"), from the root ("/b") or relative to `from` ("b", "?x"). Nothing
// for another host or port.
std::optional<Place> RedirectedPlace(const Place& from, std::string_view location) {
  location = location.substr(0, location.find('#'));
  if (location.empty() || !IsPlain(location)) return std::nullopt;
  if (HasScheme(location) || location.starts_with("//")) {
    std::optional<Place> to = PlaceOf((location.starts_with("//") ? "http:" : "") + std::string(location));
    const bool stays = to && to->Host == from.Host && to->Port == from.Port;
    return stays ? std::move(to) : std::nullopt;
  }

  const std::string path = from.Target.substr(0, from.Target.find('?'));
  std::string target(location);
  if (location.starts_with('?')) target.insert(0, path);
  if (!target.starts_with('/')) target.insert(0, path.substr(0, path.rfind('/') + 1));
  return Place{from.Host, from.Port, std::move(target)};
}

bool Redirects(int status) {
  return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

// The body at the address, after redirects; empty for any failure.
std::string Follow(httplib::Client& client, std::optional<Place> place) {
  for (int redirects = 0; place && redirects <= kMostRedirects; ++redirects) {
    std::optional<std::string> location;
    std::string body;
    const httplib::Result reply = client.Get(
        place->Target, {{"User-Agent", std::string(kApplicationTitle)}},
        [&](const httplib::Response& head) {
          if (Redirects(head.status)) location = head.get_header_value("Location");
          return !location && head.get_header_value_u64("Content-Length") <= kLongestHttpBody;
        },
        [&](const char* bytes, std::size_t count) {
          body.append(bytes, count);
          return body.size() <= kLongestHttpBody;
        });
    if (!location) return reply ? Utf8FromWindows1252(body) : std::string();
    place = RedirectedPlace(*place, *location);
  }
  return {};
}

// Running out of memory fails the request like any other error.
std::string ValueOf(std::future<std::string>& body) {
  try {
    return body.get();
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace

void HttpGet(std::string_view address, milliseconds limit, std::function<void(std::string)> answer) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  std::thread([place = PlaceOf(address), limit, deadline, answer = std::move(answer)] {
    if (!place) {
      answer({});
      return;
    }
    httplib::Client client(place->Host, place->Port);
    client.set_url_encode(false);
    client.set_connection_timeout(limit);
    client.set_read_timeout(limit);
    client.set_write_timeout(limit);

    std::future<std::string> body;
    try {
      body = std::async(std::launch::async, [&] { return Follow(client, place); });
    } catch (const std::system_error&) {  // no thread is available
      answer({});
      return;
    }
    const bool isInTime = body.wait_until(deadline) == std::future_status::ready;
    answer(isInTime ? ValueOf(body) : std::string());
    // A single stop is not enough: it blocks during lookup and connect, and has no effect between two redirects.
    while (!isInTime && body.wait_for(milliseconds(100)) != std::future_status::ready)
      client.stop();
  }).detach();
}

}  // namespace quillon
