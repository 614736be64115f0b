// Runs a fuzz target over the files of the folders named on the command line. Finding no file at all is a failure.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "fuzz/fuzz_target.h"
#include "testing/file_bytes.h"

namespace quillon {
namespace {

std::vector<std::filesystem::path> FilesOf(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

void Replay(const std::filesystem::path& file) {
  const std::string text = BytesOf(file);
  const std::vector<std::uint8_t> bytes(text.begin(),
                                        text.end());  // exactly sized, so that a read past the end is caught
  CheckInput({bytes.data(), bytes.size()});
}

// Returns the number of files.
std::size_t ReplayFolders(std::span<char*> folders) {
  std::size_t count = 0;
  for (const char* const folder : folders) {
    for (const std::filesystem::path& file : FilesOf(folder)) {
      std::puts(file.string().c_str());
      Replay(file);
      ++count;
    }
  }
  return count;
}

}  // namespace
}  // namespace quillon

int main(int argumentCount, char** arguments) {
  try {
    const std::span<char*> all(arguments, static_cast<std::size_t>(argumentCount));
    if (quillon::ReplayFolders(all.subspan(1)) > 0) return 0;
    static_cast<void>(std::fputs("no corpus files\n", stderr));
  } catch (const std::exception& error) {
    static_cast<void>(std::fputs(error.what(), stderr));
  }
  return 1;
}
