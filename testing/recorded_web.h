#pragma once

// A web client that returns a given answer, or asks another client, and records each address.

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "shell/web_client.h"

namespace quillon {

class RecordedWeb : public WebClient {
 public:
  explicit RecordedWeb(std::deque<std::string> replies = {}) : Replies(std::move(replies)) {}

  std::string Get(std::string_view address) override {
    Asked.emplace_back(address);
    if (WhileAsked) WhileAsked();
    if (Behind != nullptr) return Behind->Get(address);
    if (Replies.empty()) return {};
    std::string reply = Replies.front();
    Replies.pop_front();
    return reply;
  }

  std::vector<std::string> Asked;
  std::deque<std::string> Replies;  // to the requests to come, the first first; they fail once these are used up
  WebClient* Behind = nullptr;  // answers in place of the replies, where there is one
  std::function<void()> WhileAsked;  // looks at things while a request is on its way
};

}  // namespace quillon
