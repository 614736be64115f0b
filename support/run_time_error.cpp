#include "support/run_time_error.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include "support/files.h"

namespace quillon {
namespace {

struct FaultText {
  RunTimeFault Fault;
  std::string_view Text;
};

constexpr auto kTexts = std::to_array<FaultText>({
    {RunTimeFault::kInvalidProcedureCall, "Invalid procedure call or argument"},
    {RunTimeFault::kOverflow, "Overflow"},
    {RunTimeFault::kOutOfMemory, "Out of memory"},
    {RunTimeFault::kSubscriptOutOfRange, "Subscript out of range"},
    {RunTimeFault::kDivisionByZero, "Division by zero"},
    {RunTimeFault::kInternalError, "Internal error"},
    {RunTimeFault::kBadFileName, "Bad file name or number"},
    {RunTimeFault::kFileNotFound, "File not found"},
    {RunTimeFault::kDeviceError, "Device I/O error"},
    {RunTimeFault::kDiskFull, "Disk full"},
    {RunTimeFault::kPermissionDenied, "Permission denied"},
    {RunTimeFault::kPathFileAccess, "Path/File access error"},
    {RunTimeFault::kPathNotFound, "Path not found"},
    {RunTimeFault::kInvalidPropertyValue, "Invalid property value"},
});

struct SystemFault {
  int Error;
  RunTimeFault Fault;
};

constexpr auto kSystemFaults = std::to_array<SystemFault>({
    {ENOENT, RunTimeFault::kFileNotFound},
    {ENOSPC, RunTimeFault::kDiskFull},
    {EACCES, RunTimeFault::kPermissionDenied},
    {EPERM, RunTimeFault::kPermissionDenied},
    {ENAMETOOLONG, RunTimeFault::kBadFileName},
    {EINVAL, RunTimeFault::kBadFileName},
    {EILSEQ, RunTimeFault::kBadFileName},
    {ENOTDIR, RunTimeFault::kPathNotFound},
    {EEXIST, RunTimeFault::kPathFileAccess},
    {EISDIR, RunTimeFault::kPathFileAccess},
    {EROFS, RunTimeFault::kPathFileAccess},
    {EBUSY, RunTimeFault::kPathFileAccess},
});

std::string FullText(RunTimeFault fault, std::string_view detail) {
  std::string text = "Run-time error '" + std::to_string(static_cast<int>(fault)) + "': ";
  text += RunTimeFaultText(fault);
  if (!detail.empty()) text.append(" (").append(detail).append(")");
  return text;
}

}  // namespace

std::string_view RunTimeFaultText(RunTimeFault fault) {
  const auto* const row = std::ranges::find(kTexts, fault, &FaultText::Fault);
  return row == kTexts.end() ? "Application-defined or object-defined error" : row->Text;
}

RunTimeFault RunTimeFaultOf(int systemError) {
  if (IsQuotaError(systemError)) return RunTimeFault::kDiskFull;
  const auto* const row = std::ranges::find(kSystemFaults, systemError, &SystemFault::Error);
  return row == kSystemFaults.end() ? RunTimeFault::kDeviceError : row->Fault;
}

RunTimeError::RunTimeError(RunTimeFault fault, std::string_view detail)
    : std::runtime_error(FullText(fault, detail)), fault_(fault) {}

}  // namespace quillon
