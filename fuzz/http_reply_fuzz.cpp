// Replies of any bytes, however they are cut on the way: the pieces make no difference, and nothing is read beyond its
// limit.

#include <string>

#include "fuzz/fuzz_target.h"
#include "shell/http_reply.h"

namespace quillon {
namespace {

using State = HttpReplyReader::State;

// Takes the reply in pieces of `piece` bytes, and the end of the connection if it has not ended before.
HttpReplyReader ReadIn(std::string_view reply, std::size_t piece) {
  HttpReplyReader reader;
  while (!reply.empty()) {
    const State state = reader.Take(reply.substr(0, piece));
    Require(state == reader.Now(), "a reader tells the state it has");
    reply.remove_prefix(std::min(piece, reply.size()));
  }
  reader.End();
  Require(reader.Now() != State::kReading, "the end is the end");
  return reader;
}

void CheckReply(const HttpReplyReader& reader, std::string_view bytes) {
  if (reader.Now() != State::kWhole) return;
  const HttpReply& reply = reader.Reply();
  Require(bytes.starts_with("HTTP/1."), "a reply is one of HTTP 1");
  Require(reply.Status >= 0 && reply.Status <= 999, "a status has three digits");
  Require(reply.Body.size() <= kLongestHttpBody, "a body has its limit");
  Require(!reply.Redirects() || reply.Body.empty(), "a redirect has no body");
  Require(bytes.find(reply.Body) != std::string_view::npos, "a body is a piece of what came");
  Require(bytes.find(reply.Location) != std::string_view::npos, "a location is a piece of what came");
  Require(reply.Location.find('\n') == std::string::npos, "a location is one line");
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  const std::size_t piece = input.TakeBelow(64) + 1;
  const std::string_view bytes = input.Rest();

  const HttpReplyReader whole = ReadIn(bytes, bytes.size() + 1);
  CheckReply(whole, bytes);
  for (const std::size_t length : {piece, std::size_t{1}}) {
    const HttpReplyReader pieces = ReadIn(bytes, length);
    Require(pieces.Now() == whole.Now(), "the pieces make no difference to the end");
    if (whole.Now() != State::kWhole) continue;
    Require(pieces.Reply().Status == whole.Reply().Status, "the pieces make no difference to the status");
    Require(pieces.Reply().Location == whole.Reply().Location, "the pieces make no difference to the location");
    Require(pieces.Reply().Body == whole.Reply().Body, "the pieces make no difference to the body");
  }
  return 0;
}
