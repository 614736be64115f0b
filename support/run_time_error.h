#pragma once

// The fatal failure. A fault that nothing can put right (a file that will not be written, a division that has no
// result) is thrown as a RunTimeError and passes through everything: only a program's outermost frame catches it (and a
// listing that must not end over one bad file), shows its text, writes it to standard error and ends the process with
// exit status 1. Whatever must not be lost is therefore whole before a routine that can fail is called.

#include <stdexcept>
#include <string>
#include <string_view>

namespace quillon {

/// The faults a program of this kind knows, under their customary numbers.
enum class RunTimeFault {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kInternalError = 51,
  kBadFileName = 52,
  kFileNotFound = 53,
  kDeviceError = 57,
  kDiskFull = 61,
  kPermissionDenied = 70,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kInvalidPropertyValue = 380,
};

/// The fixed text of a fault, such as "File not found".
[[nodiscard]] std::string_view RunTimeFaultText(RunTimeFault fault);

/// The fault for a system error number: ENOENT is kFileNotFound, ENOSPC and EDQUOT are kDiskFull, EACCES
/// and EPERM are kPermissionDenied, ENAMETOOLONG, EINVAL and EILSEQ are kBadFileName, ENOTDIR is kPathNotFound,
/// EEXIST, EISDIR, EROFS and EBUSY are kPathFileAccess, and every other number is kDeviceError.
[[nodiscard]] RunTimeFault RunTimeFaultOf(int systemError);

/// One fatal failure: what() is "Run-time error '53': File not found", followed by the detail in brackets where one is
/// given, as in "Run-time error '53': File not found (Ranges/Button.txt)".
class RunTimeError : public std::runtime_error {
 public:
  explicit RunTimeError(RunTimeFault fault, std::string_view detail = {});

  [[nodiscard]] RunTimeFault Fault() const { return fault_; }
  [[nodiscard]] int Number() const { return static_cast<int>(fault_); }

 private:
  RunTimeFault fault_;
};

}  // namespace quillon
