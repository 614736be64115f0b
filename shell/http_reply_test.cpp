#include "shell/http_reply.h"

#include <array>
#include <gtest/gtest.h>

namespace quillon {
namespace {

using State = HttpReplyReader::State;

TEST(HttpReply, IsReadWhereverTheConnectionCutsIt) {
  const std::string reply = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\nX: y\r\n\r\n0.9\r\n";
  for (std::size_t cut = 0; cut <= reply.size(); ++cut) {
    HttpReplyReader reader;
    reader.Take(std::string_view(reply).substr(0, cut));
    EXPECT_EQ(reader.Take(std::string_view(reply).substr(cut)), State::kWhole) << cut;
    EXPECT_EQ(reader.Reply().Body, "0.9\r\n") << cut;
  }

  HttpReplyReader byteByByte;
  for (const char& byte : reply)
    byteByByte.Take({&byte, 1});
  EXPECT_EQ(byteByByte.Now(), State::kWhole);
  EXPECT_EQ(byteByByte.Reply().Body, "0.9\r\n");
}

// Each reply comes in one piece, and then the host closes the connection.
TEST(HttpReply, HasItsBody) {
  struct Row {
    const char* Name;
    std::string_view Bytes;
    std::string_view Body;
  };
  constexpr std::array kRows = {
      Row{"length told", "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\n1.0", "1.0"},
      Row{"more than the length told", "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\n1.0rest", "1.0"},
      Row{"length not told", "HTTP/1.0 200 OK\r\n\r\n1.0", "1.0"},
      Row{"no fields", "HTTP/1.0 200 OK\r\n\r\n", ""},
      Row{"length 0", "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", ""},
      Row{"status without words", "HTTP/1.1 200\r\n\r\n1.0", "1.0"},
      Row{"another status of success", "HTTP/1.1 203 So they say\r\n\r\n1.0", "1.0"},
      Row{"lines that end with LF", "HTTP/1.0 200 OK\nContent-Length: 3\n\n1.0", "1.0"},
      Row{"names in any case, blanks round values", "HTTP/1.1 200 OK\r\ncontent-LENGTH:\t 3 \r\n\r\n1.0", "1.0"},
      Row{"no blank before the value", "HTTP/1.1 200 OK\r\nContent-Length:3\r\n\r\n1.0rest", "1.0"},
      Row{"the same length twice", "HTTP/1.1 200 OK\r\nContent-Length: 3\r\nContent-Length: 3\r\n\r\n1.0", "1.0"},
      Row{"coding that is none", "HTTP/1.1 200 OK\r\nTransfer-Encoding: identity\r\n\r\n1.0", "1.0"},
      Row{"field without a value", "HTTP/1.1 200 OK\r\nX-Empty:\r\n\r\n1.0", "1.0"},
      Row{"line that is no field", "HTTP/1.1 200 OK\r\nnonsense\r\n\r\n1.0", "1.0"},
      Row{"empty lines at the body's start", "HTTP/1.1 200 OK\r\n\r\n\r\n\r\n1.0", "\r\n\r\n1.0"},
  };
  for (const Row& row : kRows) {
    HttpReplyReader reader;
    reader.Take(row.Bytes);
    EXPECT_EQ(reader.End(), State::kWhole) << row.Name;
    EXPECT_EQ(reader.Reply().Body, row.Body) << row.Name;
  }
}

TEST(HttpReply, FailsWhereItBreaksTheRules) {
  struct Row {
    const char* Name;
    std::string_view Bytes;
  };
  constexpr std::array kRows = {
      Row{"nothing at all", ""},
      Row{"body alone", "1.0\r\n\r\n"},
      Row{"another protocol", "SSH-2.0-OpenSSH_9.2\r\n\r\n"},
      Row{"another version", "HTTP/2.0 200 OK\r\n\r\n1.0"},
      Row{"status of two digits", "HTTP/1.1 20 OK\r\n\r\n1.0"},
      Row{"status of four digits", "HTTP/1.1 2000 OK\r\n\r\n1.0"},
      Row{"status in letters", "HTTP/1.1 two OK\r\n\r\n1.0"},
      Row{"head cut short", "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n"},
      Row{"body cut short", "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n1.0"},
      Row{"body left out", "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n"},
      Row{"length below 0", "HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\n1.0"},
      Row{"length that is no number", "HTTP/1.1 200 OK\r\nContent-Length: 3x\r\n\r\n1.0"},
      Row{"length left empty", "HTTP/1.1 200 OK\r\nContent-Length:\r\n\r\n1.0"},
      Row{"length beyond 64 bits", "HTTP/1.1 200 OK\r\nContent-Length: 18446744073709551619\r\n\r\n1.0"},
      Row{"two lengths", "HTTP/1.1 200 OK\r\nContent-Length: 3\r\nContent-Length: 2\r\n\r\n1.0"},
      Row{"chunks", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\n1.0\r\n0\r\n\r\n"},
  };
  for (const Row& row : kRows) {
    HttpReplyReader reader;
    reader.Take(row.Bytes);
    EXPECT_EQ(reader.End(), State::kFailed) << row.Name;
  }
}

TEST(HttpReply, RedirectIsWholeWithItsHead) {
  HttpReplyReader reader;

  EXPECT_EQ(reader.Take("HTTP/1.1 302 Found\r\nLocation: /b \r\nContent-Length: 1000000000\r\n\r\nrest"),
            State::kWhole);
  EXPECT_EQ(reader.Reply().Status, 302);
  EXPECT_EQ(reader.Reply().Location, "/b");
  EXPECT_EQ(reader.Reply().Body, "");
}

TEST(HttpReply, PageThatTellsOfAnErrorIsReadLikeAnyOther) {
  HttpReplyReader reader;

  EXPECT_EQ(reader.Take("HTTP/1.1 404 Not Found\r\nContent-Length: 9\r\n\r\nNot "), State::kReading);
  EXPECT_EQ(reader.Take("found"), State::kWhole);
  EXPECT_EQ(reader.Reply().Status, 404);
  EXPECT_EQ(reader.Reply().Body, "Not found");
}

TEST(HttpReply, TellsRedirectsFromTheRest) {
  struct Row {
    int Status;
    bool Redirects;
  };
  constexpr std::array kRows = {
      Row{100, false}, Row{199, false}, Row{200, false}, Row{299, false}, Row{300, false},
      Row{301, true},  Row{302, true},  Row{303, true},  Row{304, false}, Row{307, true},
      Row{308, true},  Row{404, false}, Row{418, false}, Row{500, false}, Row{999, false},
  };
  for (const Row& row : kRows) {
    HttpReplyReader reader;
    reader.Take("HTTP/1.1 " + std::to_string(row.Status) + " X\r\nContent-Length: 0\r\n\r\n");
    EXPECT_EQ(reader.Now(), State::kWhole) << row.Status;
    EXPECT_EQ(reader.Reply().Status, row.Status);
    EXPECT_EQ(reader.Reply().Redirects(), row.Redirects) << row.Status;
  }
}

TEST(HttpReply, MayBeAsLongAsTheLimitAndNotLonger) {
  const std::string longest(kLongestHttpBody, 'x');
  HttpReplyReader fits;
  fits.Take("HTTP/1.0 200 OK\r\n\r\n");
  EXPECT_EQ(fits.Take(longest), State::kReading);
  HttpReplyReader overflows = fits;
  EXPECT_EQ(overflows.Take("x"), State::kFailed);
  EXPECT_EQ(fits.End(), State::kWhole);
  EXPECT_EQ(fits.Reply().Body, longest);
}

TEST(HttpReply, FailsAtOnceWhereItAnnouncesMoreThanTheLimit) {
  const auto head = [](std::size_t length) {
    return "HTTP/1.0 200 OK\r\nContent-Length: " + std::to_string(length) + "\r\n\r\n";
  };
  EXPECT_EQ(HttpReplyReader().Take(head(kLongestHttpBody)), State::kReading);
  EXPECT_EQ(HttpReplyReader().Take(head(kLongestHttpBody + 1)), State::kFailed);
}

TEST(HttpReply, FailsWhereItsHeadDoesNotEnd) {
  const std::string start = "HTTP/1.0 200 OK\r\nX: ";
  HttpReplyReader oneLine;
  oneLine.Take(start);
  EXPECT_EQ(oneLine.Take(std::string(kLongestHttpHead - start.size(), 'x')), State::kReading);
  EXPECT_EQ(oneLine.Take("x"), State::kFailed);

  HttpReplyReader atOnce;
  EXPECT_EQ(atOnce.Take(start + std::string(10 * kLongestHttpHead, 'x') + "\r\n\r\n"), State::kFailed);
}

TEST(HttpReply, StaysWhatItWas) {
  HttpReplyReader whole;
  whole.Take("HTTP/1.0 200 OK\r\nContent-Length: 1\r\n\r\n1");
  EXPECT_EQ(whole.Take("2"), State::kWhole);
  EXPECT_EQ(whole.End(), State::kWhole);
  EXPECT_EQ(whole.Reply().Body, "1");

  HttpReplyReader failed;
  failed.Take("no reply\n\n");
  EXPECT_EQ(failed.Take("HTTP/1.0 200 OK\r\n\r\n1"), State::kFailed);
  EXPECT_EQ(failed.End(), State::kFailed);
}

}  // namespace
}  // namespace quillon
