#pragma once

// Handles Ctrl+C for a command that ends in good order, and reads input such that the signal ends a blocking read.

#include <array>
#include <filesystem>
#include <streambuf>
#include <utility>

namespace quillon {

/// During its lifetime, the first SIGINT does not end the program but is recorded; a second one ends it as usual. If
/// the signal was ignored at start, as for a shell's background jobs, it stays ignored. Only one may exist at a time.
class InterruptWatch {
 public:
  InterruptWatch();
  InterruptWatch(const InterruptWatch&) = delete;
  InterruptWatch& operator=(const InterruptWatch&) = delete;
  ~InterruptWatch();

  /// Whether the signal has come.
  [[nodiscard]] static bool Came();
};

/// Input from an open file, pipe or terminal, which it does not close. It ends at the end of the file, and when an
/// InterruptWatch has recorded the signal. A failed read is a RunTimeError as of FailOnFile, with `name`.
class DescriptorInput final : public std::streambuf {
 public:
  DescriptorInput(int descriptor, std::filesystem::path name) : descriptor_(descriptor), name_(std::move(name)) {}

 protected:
  int_type underflow() override;

 private:
  int descriptor_;
  std::filesystem::path name_;
  std::array<char, 65536> buffer_{};
};

}  // namespace quillon
