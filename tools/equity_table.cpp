// The program equity-table: counts the equities of all pairs of hand classes and writes them as rows or as a source
// file.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "support/files.h"
#include "support/this_process.h"
#include "tools/equity_enumeration.h"
#include "tools/equity_row_text.h"

namespace quillon {
namespace {

constexpr int kFailed = 1;
constexpr int kBadArguments = 2;
constexpr unsigned kMostThreads = 256;

constexpr const char* kPurpose =
    "Counts the exact equity of every starting-hand class against every other, all in before the flop.";

constexpr const char* kExamples =
    "Examples:\n"
    "  equity-table --format source --out hand/equity_rows.cpp\n"
    "  equity-table --rows 0-84 --out upper.txt      one job of several, on any machine\n"
    "  equity-table --join upper.txt lower.txt --format source --out hand/equity_rows.cpp\n";

struct Request {
  std::string rows = "0-168";
  unsigned threads = std::min(kMostThreads, UsableCores());
  std::string format = "rows";
  std::string out;
  std::vector<std::string> join;
};

// "13-25" or, for one row, "13".
std::optional<ClassRange> ParseRows(std::string_view text) {
  const char* const end = text.data() + text.size();
  ClassRange rows;
  const auto first = std::from_chars(text.data(), end, rows.first);
  if (first.ec != std::errc()) return std::nullopt;
  rows.last = rows.first;
  if (first.ptr != end) {
    if (*first.ptr != '-') return std::nullopt;
    const auto last = std::from_chars(first.ptr + 1, end, rows.last);
    if (last.ec != std::errc() || last.ptr != end) return std::nullopt;
  }
  if (rows.first > rows.last || rows.last >= kClassCount) return std::nullopt;
  return rows;
}

std::string CheckRows(const std::string& text) {
  return ParseRows(text) ? "" : "must be FIRST-LAST with 0 <= FIRST <= LAST <= 168, not " + text;
}

void Describe(CLI::App& app, Request& request) {
  app.footer(kExamples);
  auto* rows = app.add_option("--rows", request.rows, "Only these rows of the table, by class index")
                   ->type_name("FIRST-LAST")
                   ->check(CheckRows)
                   ->capture_default_str();
  app.add_option("--threads", request.threads, "Threads to count with")
      ->check(CLI::Range(1U, kMostThreads))
      ->capture_default_str();
  app.add_option("--format", request.format, "rows: one text row a line; source: the C++ file with all rows")
      ->check(CLI::IsMember({"rows", "source"}))
      ->capture_default_str();
  app.add_option("--out", request.out, "Write to this file, whole or not at all, instead of standard output")
      ->type_name("FILE");
  app.add_option("--join", request.join, "Count nothing: put together rows written by earlier runs, in any order")
      ->type_name("FILE")
      ->excludes(rows);
}

// Shows the progress on one line that is overwritten, if standard error is a terminal.
ProgressReport MakeProgressReport() {
  if (!IsTerminal(kErrorStream)) return {};
  return [shown = std::size_t{0}](std::size_t done, std::size_t total) mutable {
    const std::size_t percent = 100 * done / total;
    if (percent == shown) return;
    shown = percent;
    std::cerr << "\rCounting boards: " << percent << " %" << std::flush;
  };
}

int Fail(std::string_view message) {
  std::cerr << "equity-table: " << message << '\n';
  return kFailed;
}

int Write(const Request& request, const std::vector<std::string>& rows) {
  const std::string text = request.format == "source" ? SourceTextOf(rows) : LinesOf(rows);
  if (request.out.empty()) {
    std::cout << text << std::flush;
    return std::cout ? 0 : Fail("standard output cannot be written");
  }
  const std::filesystem::path path = PathOf(request.out);
  std::error_code unknown;
  // A device, pipe or folder must not be replaced by a file.
  if (std::filesystem::exists(path, unknown) && !std::filesystem::is_regular_file(path, unknown)) {
    return Fail(request.out + " is not a file");
  }
  ReplaceFile(path, text, path.parent_path());
  return 0;
}

int Join(const Request& request) {
  std::vector<RowFile> files;
  for (const std::string& name : request.join) {
    files.push_back({name, ReadAllBytes(name)});
    if (files.back().text.empty()) return Fail(name + " cannot be read or is empty");
  }
  const JoinedRows joined = JoinRows(files);
  if (!joined.problem.empty()) return Fail(joined.problem);
  return Write(request, joined.rows);
}

int Count(const Request& request, ClassRange range) {
  const ProgressReport report = MakeProgressReport();
  const PointTable points = CountPoints(AllBoardClasses(), range, request.threads, report);
  if (report) std::cerr << '\n';
  const PointTable pairs = CountPairs();
  if (!PointsAddUp(range, points, pairs)) return Fail("the counts do not add up; nothing is written");
  std::vector<std::string> rows;
  for (std::size_t i = range.first; i <= range.last; ++i) {
    rows.push_back(EquityRowText(i, points[i], pairs[i]));
  }
  return Write(request, rows);
}

int Run(int argc, char** argv) {
  Request request;
  CLI::App app(kPurpose, "equity-table");
  Describe(app, request);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : kBadArguments;
  }
  if (!request.join.empty()) return Join(request);

  const ClassRange range = ParseRows(request.rows).value_or(ClassRange());
  const bool whole = range.first == 0 && range.last + 1 == kClassCount;
  if (request.format == "source" && !whole) {
    std::cerr << "--format source needs all rows; write these as rows and use --join\n";
    return kBadArguments;
  }
  return Count(request, range);
}

}  // namespace
}  // namespace quillon

int main(int argc, char** argv) {
  try {
    return quillon::Run(argc, argv);
  } catch (const std::exception& error) {
    // The file cannot be written, or threads or memory have run out.
    return quillon::Fail(error.what());
  }
}
