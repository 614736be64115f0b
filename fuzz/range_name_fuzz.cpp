// Arbitrary names of ranges and of files: an accepted name stays in the range folder and is recovered from its file's
// name.

#include <set>
#include <string>

#include "fuzz/fuzz_target.h"
#include "ranges/range_files.h"
#include "ranges/range_lists.h"
#include "ranges/range_names.h"
#include "support/run_time_error.h"
#include "testing/memory_files.h"
#include "testing/recorded_messages.h"

namespace quillon {
namespace {

std::size_t PlainLength(std::string_view text) {
  std::size_t length = 0;
  for (const char c : text)
    length += (static_cast<unsigned char>(c) & 0xC0U) == 0x80U ? 0 : 1;
  return length;
}

bool PlainAllows(const std::string& name, bool isTaken) {
  const std::set<char> refused = {'/', '\\', ':', '*', '?', '"', '<', '>'};
  for (const char c : name) {
    if (refused.contains(c)) return false;
  }
  return !name.empty() && name.size() <= 251 && (!isTaken || name == "Temp Range1");
}

void CheckName(const std::string& name, bool isTaken) {
  MemoryFiles files;
  const ProgramFolder folder{"/quillon-fuzz", &files};
  const std::string path = RangeFilePath(folder, name).string();
  Require(path == "/quillon-fuzz/Ranges/" + name + ".txt", "a path is a plain concatenation");
  const bool canNameFile = name.find('\0') == std::string::npos;
  isTaken = isTaken && canNameFile && name.size() <= 251;
  if (isTaken) files.Contents[path] = "AA (1), \r\n";

  RecordedMessages messages;
  const bool allowed = ValidateRangeName(folder, name, messages);
  Require(allowed == PlainAllows(name, isTaken), "a name is judged as by the oracle");
  Require(messages.Shown.size() == (allowed ? 0U : 1U), "a name that is refused has one message");
  if (!allowed) return;

  Require(name.find('/') == std::string::npos, "a new range is in the range folder");
  try {
    SaveRangeText(folder, name, "KK (1), ");
    Require(files.Contents.size() == 1 && files.Contents.contains(path), "a range is one file");
    Require(LoadRangeText(folder, name) == "KK (1), ", "a range reads back");
    DeleteRange(folder, name);
    Require(files.Contents.empty(), "a deleted range is gone");
  } catch (const RunTimeError& error) {
    Require(error.Fault() == RunTimeFault::kBadFileName && !canNameFile, "only a NUL character stops a save");
  }
  Require(files.AllClosed(), "no file stays open");
}

void CheckFileName(const std::string& fileName) {
  try {
    const std::string name = RangeNameOfFile(fileName);
    Require(fileName.starts_with(name), "a range's name is the start of its file's");
    const std::size_t length = PlainLength(fileName);
    Require(length < 4 || PlainLength(name) + 4 >= length, "at most four characters are removed");
  } catch (const RunTimeError& error) {
    Require(error.Fault() == RunTimeFault::kInvalidProcedureCall, "a file name too short is a bad call");
    Require(PlainLength(fileName) <= 4, "only a short file name has no range's name");
  }
  Require(RangeNameOfFile(fileName + ".txt") == fileName, "a range is listed under its name");
}

}  // namespace

void CheckInput(FuzzInput input) {
  const bool isTaken = input.TakeBelow(2) == 1;
  const std::string name(input.Rest());
  CheckName(name, isTaken);
  CheckFileName(name);
}

}  // namespace quillon
