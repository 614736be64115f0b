#pragma once

// The fatal failure. A fault that cannot be recovered from (a file that cannot be written, a division by zero) is
// thrown as a RunTimeError. Only a program's outermost frame catches it (as does a listing that one bad file must not
// end), shows its text, writes it to standard error and exits with status 1. So a routine that can fail is called only
// when whatever must not be lost is safe.

#include <stdexcept>
#include <string>
#include <string_view>

namespace quillon {

/// The faults, under their customary numbers.
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
