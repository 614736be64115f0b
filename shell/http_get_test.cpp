#include "shell/http_get.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <thread>

#include "testing/loopback_host.h"

namespace quillon {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kShort{300};
constexpr milliseconds kSlack{10'000};  // for a busy machine
constexpr milliseconds kGenerous{20'000};  // only reached by a failing test

std::string Ok(std::string_view body) {
  return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + std::string(body);
}

std::string Redirect(std::string_view location) {
  return "HTTP/1.1 302 Found\r\nLocation: " + std::string(location) + "\r\nContent-Length: 0\r\n\r\n";
}

std::string Get(std::string_view address, milliseconds limit = kGenerous) {
  const auto answer = std::make_shared<std::promise<std::string>>();
  std::future<std::string> body = answer->get_future();
  HttpGet(address, limit, [answer](std::string text) { answer->set_value(std::move(text)); });
  return body.get();
}

// The name of a request's target: "GET /a HTTP/1.1" -> "/a".
std::string TargetOf(const std::string& request) {
  const std::size_t start = request.find(' ') + 1;
  return request.substr(start, request.find(' ', start) - start);
}

void BreakLater(const LoopbackConnection& connection) {
  std::this_thread::sleep_for(milliseconds(50));  // a reset discards bytes that have not been delivered yet
  connection.Break();
}

class HttpGetTime : public testing::Test {
 protected:
  [[nodiscard]] milliseconds Spent() const { return std::chrono::duration_cast<milliseconds>(Clock::now() - start_); }

  // It took as long as the limit and not much longer.
  void ExpectTheLimit() const {
    EXPECT_GE(Spent(), kShort);
    EXPECT_LT(Spent(), kShort + kSlack);
  }
  void ExpectNoWait() const { EXPECT_LT(Spent(), kGenerous / 2); }

 private:
  Clock::time_point start_ = Clock::now();
};

TEST(HttpGet, GivesTheBody) {
  struct Row {
    const char* Name;
    std::string Reply;
    std::string Body;
  };
  const std::array rows = {
      Row{"version", Ok("0.9\r\n"), "0.9\r\n"},
      Row{"one that ends with the connection", "HTTP/1.0 200 OK\r\n\r\nsent", "sent"},
      Row{"an empty one", Ok(""), ""},
      Row{"one in chunks", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\n0.\r\n1\r\n9\r\n0\r\n\r\n",
          "0.9"},
      Row{"Windows-1252", Ok("2\xA2 \x80"), "2\u00A2 \u20AC"},
      Row{"no text at all", Ok(std::string_view("\0\x01\xFF\r\n", 5)), std::string("\0\x01\u00FF\r\n", 6)},
      Row{"the longest", Ok(std::string(kLongestHttpBody, 'x')), std::string(kLongestHttpBody, 'x')},
      Row{"the longest that ends with the connection", "HTTP/1.0 200 OK\r\n\r\n" + std::string(kLongestHttpBody, 'x'),
          std::string(kLongestHttpBody, 'x')},
  };
  for (const Row& row : rows) {
    const LoopbackHost host(row.Reply);
    EXPECT_TRUE(Get(host.Address()) == row.Body) << row.Name;
  }
}

TEST(HttpGet, AsksWithTheTargetByteForByte) {
  const LoopbackHost host(Ok("sent"));
  const std::string target = "/quillon/register/benice.php?email_name=%61%40%78&email_body=%9%61%A%E9%0D%0A%20%2B+,;'";

  EXPECT_EQ(Get(host.Address(target)), "sent");

  ASSERT_EQ(host.Requests().size(), 1U);
  EXPECT_EQ(host.Requests().front(), "GET " + target +
                                         " HTTP/1.1\r\nAccept: */*\r\nHost: 127.0.0.1:" + std::to_string(host.Port()) +
                                         "\r\nUser-Agent: Quillon\r\nConnection: close\r\n\r\n");
}

TEST(HttpGet, GivesThePageThatTellsOfAnError) {
  for (const std::string_view status : {"404 Not Found", "500 Internal Server Error", "401 Unauthorized"}) {
    const LoopbackHost host("HTTP/1.1 " + std::string(status) + "\r\nContent-Length: 4\r\n\r\nOops");
    EXPECT_EQ(Get(host.Address()), "Oops") << status;
  }
}

TEST(HttpGet, GivesNothingForAnAddressThatIsNone) {
  for (const char* address : {"", "nonsense", "https://127.0.0.1/", "file:///etc/hostname", "http://", "http://:80/",
                              "http://127.0.0.1:99999999999999999999/", "http://127.0.0.1:http/"})
    EXPECT_EQ(Get(address), "") << address;
}

TEST(HttpGet, FollowsARedirectOnTheSameHostAndPort) {
  struct Row {
    const char* Name;
    std::string Location;  // "PORT" is the host's
    std::string Target;  // empty: not followed
  };
  const std::array rows = {
      Row{"from the root", "/new", "/new"},
      Row{"its escapes as they are", "/new%20x?a=%26&b=%9", "/new%20x?a=%26&b=%9"},
      Row{"without its fragment", "/new#here", "/new"},
      Row{"beside the page", "new", "/a/new"},
      Row{"a query alone", "?x=2:/", "/a/old?x=2:/"},
      Row{"absolute", "http://127.0.0.1:PORT/new?x", "/new?x"},
      Row{"absolute without a path", "HTTP://127.0.0.1:PORT?x", "/?x"},
      Row{"on the same scheme", "//127.0.0.1:PORT/new", "/new"},
      Row{"another port", "http://127.0.0.1:1/new", ""},
      Row{"no port", "http://127.0.0.1/new", ""},
      Row{"a port beyond all numbers", "http://127.0.0.1:99999999999999999999/new", ""},
      Row{"another name of this machine", "http://localhost:PORT/new", ""},
      Row{"with a user", "http://me@127.0.0.1:PORT/new", ""},
      Row{"another scheme", "https://127.0.0.1:PORT/new", ""},
      Row{"no place at all", "", ""},
      Row{"only a fragment", "#here", ""},
      Row{"a space", "/new page", ""},
      Row{"a byte beyond ASCII", "/n\xE9w", ""},
  };
  for (const Row& row : rows) {
    std::string location = row.Location;
    const LoopbackHost host([&](LoopbackConnection& connection) {
      connection.Send(TargetOf(connection.Request()) == "/a/old?x=1" ? Redirect(location) : Ok("1.0"));
    });
    if (const std::size_t port = location.find("PORT"); port != std::string::npos)
      location.replace(port, 4, std::to_string(host.Port()));

    EXPECT_EQ(Get(host.Address("/a/old?x=1")), row.Target.empty() ? "" : "1.0") << row.Name;
    ASSERT_EQ(host.Requests().size(), row.Target.empty() ? 1U : 2U) << row.Name;
    EXPECT_TRUE(row.Target.empty() || TargetOf(host.Requests().back()) == row.Target) << row.Name;
  }
}

TEST(HttpGet, FollowsEveryKindOfRedirect) {
  for (const int status : {300, 301, 302, 303, 304, 307, 308}) {
    const LoopbackHost host([&](LoopbackConnection& connection) {
      connection.Send(TargetOf(connection.Request()) == "/new"
                          ? Ok("1.0")
                          : "HTTP/1.1 " + std::to_string(status) +
                                " Moved\r\nLocation: /new\r\nContent-Length: 0\r\n\r\n");
    });
    EXPECT_EQ(Get(host.Address()), status == 300 || status == 304 ? "" : "1.0") << status;
  }
}

TEST(HttpGet, FollowsNoRedirectToAnotherHost) {
  const LoopbackHost other(Ok("1.0"));
  const LoopbackHost host(Redirect(other.Address()));
  EXPECT_EQ(Get(host.Address()), "");
  EXPECT_TRUE(other.Requests().empty());
}

TEST(HttpGet, GivesNothingForARedirectWithoutALocation) {
  const LoopbackHost host("HTTP/1.1 302 Found\r\nContent-Length: 4\r\n\r\nsent");
  EXPECT_EQ(Get(host.Address()), "");
}

TEST(HttpGet, LeavesARingOfRedirectsAfterTheTenth) {
  const LoopbackHost host(Redirect("/"));

  EXPECT_EQ(Get(host.Address()), "");
  EXPECT_EQ(host.Requests().size(), 11U);
}

TEST(HttpGet, SendsNoCookieBack) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    const std::string cookie = "Set-Cookie: id=1; Path=/\r\n";
    connection.Send(TargetOf(connection.Request()) == "/old"
                        ? "HTTP/1.1 302 Found\r\n" + cookie + "Location: /new\r\n\r\n"
                        : "HTTP/1.1 200 OK\r\n" + cookie + "\r\n1.0");
  });

  EXPECT_EQ(Get(host.Address("/old")), "1.0");
  EXPECT_EQ(Get(host.Address("/new")), "1.0");

  EXPECT_EQ(host.Requests().size(), 3U);
  for (const std::string& request : host.Requests())
    EXPECT_EQ(request.find("ookie"), std::string::npos) << request;
}

TEST_F(HttpGetTime, EndsWithABodyThatIsTooLong) {
  std::size_t sent = 0;
  {
    const LoopbackHost host([&](LoopbackConnection& connection) {
      const std::string block(64 << 10, 'x');
      connection.Send("HTTP/1.1 200 OK\r\n\r\n");
      while (sent < (std::size_t{100} << 20) && connection.Send(block))
        sent += block.size();
    });
    EXPECT_EQ(Get(host.Address()), "");
  }
  ExpectNoWait();
  EXPECT_LT(sent, std::size_t{32} << 20);  // the socket buffers between the two ends vary
}

TEST_F(HttpGetTime, EndsWithAnAnnouncementThatIsTooLong) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    connection.Send("HTTP/1.1 200 OK\r\nContent-Length: 100000000\r\n\r\n");
    connection.WaitUntilTheOtherEndIsGone();
  });
  EXPECT_EQ(Get(host.Address()), "");
  ExpectNoWait();
}

TEST_F(HttpGetTime, EndsWithAHeadThatDoesNotEnd) {
  struct Row {
    const char* Name;
    std::string Start;
    std::string Block;
  };
  const std::array rows = {
      Row{"fields", "HTTP/1.1 200 OK\r\n", "X-Field: and so on\r\n"},
      Row{"fields that end with a line feed alone", "HTTP/1.1 200 OK\r\n", "X-Field: and so on\n"},
      Row{"one field", "HTTP/1.1 200 OK\r\nX-Field: ", std::string(1000, 'x')},
      Row{"a status", "HTTP/1.1 200 ", std::string(1000, 'x')},
      Row{"chunks' fields", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n", std::string(1000, '0')},
  };
  for (const Row& row : rows) {
    std::size_t sent = 0;
    const LoopbackHost host([&](LoopbackConnection& connection) {
      connection.Send(row.Start);
      while (connection.Send(row.Block))
        sent += row.Block.size();
    });
    EXPECT_EQ(Get(host.Address()), "") << row.Name;
  }
  ExpectNoWait();
}

TEST(HttpGet, ReadsALongStatusLineOrNone) {
  for (const std::size_t length : {std::size_t{8'000}, std::size_t{30'000}, std::size_t{1} << 20}) {
    const LoopbackHost host("HTTP/1.1 200 " + std::string(length, 'x') + "\r\nContent-Length: 3\r\n\r\n1.0");
    EXPECT_EQ(Get(host.Address()), length == 8'000 ? "1.0" : "") << length;
  }
}

TEST_F(HttpGetTime, EndsWithTheAnnouncedLengthThoughTheConnectionStays) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    connection.Send(Ok("1.0"));
    connection.WaitUntilTheOtherEndIsGone();
  });
  EXPECT_EQ(Get(host.Address()), "1.0");
  ExpectNoWait();
}

TEST_F(HttpGetTime, EndsWithAConnectionThatIsCutShort) {
  struct Row {
    const char* Name;
    std::string_view Bytes;
    bool Breaks;
  };
  constexpr std::array kRows = {
      Row{"closed before the head", "", false},
      Row{"closed in the head", "HTTP/1.1 200 OK\r\nContent-", false},
      Row{"closed in the body", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n0.9", false},
      Row{"broken before the head", "", true},
      Row{"broken in the body", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n0.9", true},
      Row{"closed in a chunk", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n9\r\n0.9", false},
      Row{"closed before the last chunk", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\n0.9\r\n", false},
      Row{"no reply of HTTP", "0.9 sent\r\n\r\n0.9 sent", false},
  };
  for (const Row& row : kRows) {
    const LoopbackHost host([&](LoopbackConnection& connection) {
      connection.Send(row.Bytes);
      if (row.Breaks) BreakLater(connection);
    });
    EXPECT_EQ(Get(host.Address()), "") << row.Name;
  }
  ExpectNoWait();
}

TEST_F(HttpGetTime, EndsWithABodyWithoutALengthThatBreaksOff) {
  if (!TellsBreaks()) GTEST_SKIP() << "Wine: after a wait for bytes a broken connection reads as a closed one";
  const LoopbackHost host([](LoopbackConnection& connection) {
    connection.Send("HTTP/1.1 200 OK\r\n\r\n0.9");
    BreakLater(connection);
  });
  EXPECT_EQ(Get(host.Address()), "");
  ExpectNoWait();
}

TEST_F(HttpGetTime, EndsAtOnceWhereNobodyListens) {
  std::string address;
  {
    const LoopbackHost host(Ok("1.0"));
    address = host.Address();
  }
  EXPECT_EQ(Get(address), "");
  ExpectNoWait();
}

TEST_F(HttpGetTime, IsUpWithAHostThatDoesNotAnswer) {
  const LoopbackHost host([](LoopbackConnection& connection) { connection.WaitUntilTheOtherEndIsGone(); });
  EXPECT_EQ(Get(host.Address(), kShort), "");
  ExpectTheLimit();
}

TEST_F(HttpGetTime, IsUpWithABodyThatDripsIn) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    connection.Send("HTTP/1.1 200 OK\r\n\r\n");
    while (connection.Send("1"))
      std::this_thread::sleep_for(milliseconds(20));
  });
  EXPECT_EQ(Get(host.Address(), kShort), "");
  ExpectTheLimit();
}

TEST_F(HttpGetTime, IsOneForAllRedirectsTogether) {
  const LoopbackHost host([](LoopbackConnection& connection) {
    std::this_thread::sleep_for(kShort * 2 / 5);
    connection.Send(Redirect("/"));
  });
  EXPECT_EQ(Get(host.Address(), kShort), "");
  EXPECT_LE(host.Requests().size(), 3U);
  ExpectTheLimit();
}

TEST_F(HttpGetTime, IsUpWithAHostWhoseNameLeadsNowhere) {
  EXPECT_EQ(Get("http://nobody.invalid/", kShort), "");
  EXPECT_LT(Spent(), kShort + kSlack);
}

}  // namespace
}  // namespace quillon
