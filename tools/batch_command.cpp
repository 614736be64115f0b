#include <CLI/CLI.hpp>
#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <future>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <streambuf>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "results/analysis_json.h"
#include "study/batch.h"
#include "support/files.h"
#include "support/this_process.h"
#include "tools/bounded_queue.h"
#include "tools/commands.h"
#include "tools/interrupt.h"

namespace quillon {
namespace {

constexpr unsigned kMostJobs = 256;
constexpr const char* kStandardInput = "-";

struct Request {
  std::string file = kStandardInput;
  std::optional<std::string> fields;
  unsigned jobs = 0;
  std::string folder;
};

// The fields in a list; all of them if there is none.
std::vector<std::string> FieldsOf(const std::optional<std::string>& list) {
  std::vector<std::string> fields;
  if (!list) return fields;
  std::vector<std::string> known = AnalysisFieldNames();
  known.insert(known.begin(), "id");
  for (std::string field : CLI::detail::split(*list, ',')) {
    CLI::detail::trim(field);
    if (std::ranges::find(known, field) == known.end()) {
      throw CLI::ValidationError("--fields: there is no field \"" + field + "\"; there are " +
                                 CLI::detail::join(known, ", "));
    }
    fields.push_back(std::move(field));
  }
  return fields;
}

// The next line, or nothing at the end. A line that is too long is cut just above the limit.
std::optional<std::string> NextLine(std::streambuf& input) {
  std::string line;
  int next = input.sbumpc();
  if (next == std::streambuf::traits_type::eof()) return std::nullopt;
  for (; next != std::streambuf::traits_type::eof() && next != '\n'; next = input.sbumpc()) {
    if (line.size() <= kLongestBatchLine) line += std::streambuf::traits_type::to_char_type(next);
  }
  return line;
}

// One thread reads, some answer, and one writes, with queues of fixed length in between, so that memory stays bounded
// however many lines there are and whichever thread is the slowest.
class Filter {
 public:
  Filter(const Batch& batch, unsigned jobs, const Surroundings& surroundings)
      : batch_(batch),
        surroundings_(surroundings),
        tasks_(kLinesForEachJob * std::size_t{jobs}),
        answers_(kLinesForEachJob * std::size_t{jobs}) {
    for (unsigned i = 0; i < jobs; ++i)
      workers_.emplace_back([this] { Work(); });
  }

  // Returns the exit status; throws if something could not be answered or written.
  int Run(std::streambuf& input) {
    std::future<int> written = std::async(std::launch::async, [this] { return Write(); });
    try {
      Read(input);
    } catch (...) {  // from unreadable input; the others must not wait for more
      Close();
      throw;
    }
    Close();
    const int status = written.get();
    return InterruptWatch::Came() ? kInterrupted : status;
  }

 private:
  static constexpr std::size_t kLinesForEachJob = 16;

  // Reads until the end or Ctrl+C. Lines already read are still answered.
  void Read(std::streambuf& input) {
    for (std::int64_t number = 1; !failed_ && !InterruptWatch::Came(); ++number) {
      std::optional<std::string> line = NextLine(input);
      if (!line || InterruptWatch::Came()) break;  // possibly in the middle of the line
      std::packaged_task<BatchAnswer()> task(
          [this, number, line = *std::move(line)] { return batch_.Answer(line, number); });
      answers_.Push(task.get_future());
      tasks_.Push(std::move(task));
    }
  }

  void Work() {
    while (auto task = tasks_.Pop())
      (*task)();
  }

  int Write() {
    int status = kDone;
    std::exception_ptr failure;
    while (auto answer = answers_.Pop()) {
      try {
        if (!failed_) status = std::max(status, WriteOne(*answer));
      } catch (...) {  // rethrown once the reader has ended, which must not wait for room meanwhile
        failed_ = true;
        failure = std::current_exception();
      }
    }
    if (failure) std::rethrow_exception(failure);
    return status;
  }

  int WriteOne(std::future<BatchAnswer>& coming) {
    const BatchAnswer answer = coming.get();
    surroundings_.Output << answer.Line << '\n';
    if (answers_.IsEmpty()) surroundings_.Output.flush();  // for a user who sends a line and waits for its answer
    failed_ = !surroundings_.Output;
    if (!answer.Warning.empty()) surroundings_.Errors << answer.Warning << '\n';
    return answer.Refused ? kFailed : kDone;
  }

  void Close() {
    tasks_.Close();
    answers_.Close();
  }

  const Batch& batch_;
  const Surroundings& surroundings_;
  std::atomic<bool> failed_ = false;
  BoundedQueue<std::packaged_task<BatchAnswer()>> tasks_;
  BoundedQueue<std::future<BatchAnswer>> answers_;
  std::vector<std::jthread> workers_;
};

// An open file, or nothing after an error message.
class OpenFile {
 public:
  OpenFile(const std::string& path, CommandInputs& inputs)
      : descriptor_(SystemFileCalls().Open(path, OpenFor::kStreaming, 0)) {
    if (descriptor_ < 0) inputs.Refuse(path + ": " + ReasonOf(-descriptor_));
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (descriptor_ >= 0) SystemFileCalls().Close(descriptor_);
  }

  [[nodiscard]] int Descriptor() const { return descriptor_; }

 private:
  int descriptor_;
};

int AnswerLines(const Request& request, const Surroundings& surroundings) {
  std::vector<std::string> fields = FieldsOf(request.fields);
  CommandInputs inputs(surroundings, request.folder);
  const Batch batch(inputs.Folder(), std::move(fields));
  const InterruptWatch watch;
  const auto run = [&](std::streambuf& input) {
    return Filter(batch, request.jobs == 0 ? std::min(UsableCores(), kMostJobs) : request.jobs, surroundings)
        .Run(input);
  };
  if (request.file == kStandardInput) return surroundings.Input == nullptr ? kDone : run(*surroundings.Input->rdbuf());
  const OpenFile file(request.file, inputs);
  if (file.Descriptor() < 0) return inputs.Status();
  DescriptorInput input(file.Descriptor(), PathOf(request.file));
  return run(input);
}

}  // namespace

RunCommand OfferBatch(CLI::App& options) {
  const auto request = std::make_shared<Request>();
  options.add_option("file", request->file, "The situations; - is standard input (default)")->type_name("FILE");
  options
      .add_option("--fields", request->fields,
                  "The id and only these fields, separated by commas, of the situation and of each hand, such as "
                  "best,ev,equity")
      ->type_name("NAMES");
  options.add_option("--jobs", request->jobs, "Lines to answer at once (default: as many as there are cores)")
      ->type_name("N")
      ->check(CLI::Range(1U, kMostJobs));
  OfferFolder(options, request->folder);
  return [request](const Surroundings& surroundings) { return AnswerLines(*request, surroundings); };
}

}  // namespace quillon
