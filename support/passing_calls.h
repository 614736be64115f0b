#pragma once

// For tests: the system's own calls under another name. A test derives from it and overrides only what it watches or
// makes fail.

#include <span>
#include <string>
#include <string_view>
#include <sys/types.h>

#include "support/files.h"

namespace quillon {

class PassingCalls : public FileCalls {
 public:
  int Open(const std::string& path, int flags, mode_t mode) override {
    return SystemFileCalls().Open(path, flags, mode);
  }
  ssize_t Read(int file, std::span<char> buffer) override { return SystemFileCalls().Read(file, buffer); }
  ssize_t Write(int file, std::string_view bytes) override { return SystemFileCalls().Write(file, bytes); }
  int Sync(int file) override { return SystemFileCalls().Sync(file); }
  int Close(int file) override { return SystemFileCalls().Close(file); }
  int Rename(const std::string& from, const std::string& to) override { return SystemFileCalls().Rename(from, to); }
  int Unlink(const std::string& path) override { return SystemFileCalls().Unlink(path); }
  int MakeFolder(const std::string& path) override { return SystemFileCalls().MakeFolder(path); }
  int Mode(int file) override { return SystemFileCalls().Mode(file); }
  int SetMode(int file, mode_t mode) override { return SystemFileCalls().SetMode(file, mode); }
  int TryLock(int file) override { return SystemFileCalls().TryLock(file); }
};

}  // namespace quillon
