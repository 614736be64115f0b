#pragma once

// Ctrl+C for a command that ends in good order, and input that such a command can wait for: a read that blocks ends
// when the signal comes.

#include <array>
#include <filesystem>
#include <streambuf>
#include <utility>

namespace quillon {

/// While it lives, the first SIGINT does not end the program but is noted. A second one ends the program as usual.
/// Where the program was started with that signal ignored, as shells start what runs in the background, it stays
/// ignored: the Ctrl+C is for what runs in the foreground. There may be one at a time.
class InterruptWatch {
 public:
  InterruptWatch();
  InterruptWatch(const InterruptWatch&) = delete;
  InterruptWatch(InterruptWatch&&) = delete;
  InterruptWatch& operator=(const InterruptWatch&) = delete;
  InterruptWatch& operator=(InterruptWatch&&) = delete;
  ~InterruptWatch();

  /// Whether the signal has come.
  [[nodiscard]] static bool Came();
};

/// Input from an open file, pipe or terminal, which it does not close. It ends where the file ends, and when an
/// InterruptWatch has noted the signal. A failed read is a RunTimeError as of FailOnFile, with `name`.
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
