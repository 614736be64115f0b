#include "support/run_time_error.h"

#include <cerrno>

#include "support/files.h"

namespace quillon {
namespace {

std::string FullText(RunTimeFault fault, std::string_view detail) {
  std::string text = "Run-time error '" + std::to_string(static_cast<int>(fault)) + "': ";
  text += RunTimeFaultText(fault);
  if (!detail.empty()) text.append(" (").append(detail).append(")");
  return text;
}

}  // namespace

std::string_view RunTimeFaultText(RunTimeFault fault) {
  switch (fault) {
    case RunTimeFault::kInvalidProcedureCall:
      return "Invalid procedure call or argument";
    case RunTimeFault::kOverflow:
      return "Overflow";
    case RunTimeFault::kOutOfMemory:
      return "Out of memory";
    case RunTimeFault::kSubscriptOutOfRange:
      return "Subscript out of range";
    case RunTimeFault::kDivisionByZero:
      return "Division by zero";
    case RunTimeFault::kInternalError:
      return "Internal error";
    case RunTimeFault::kBadFileName:
      return "Bad file name or number";
    case RunTimeFault::kFileNotFound:
      return "File not found";
    case RunTimeFault::kDeviceError:
      return "Device I/O error";
    case RunTimeFault::kDiskFull:
      return "Disk full";
    case RunTimeFault::kPermissionDenied:
      return "Permission denied";
    case RunTimeFault::kPathFileAccess:
      return "Path/File access error";
    case RunTimeFault::kPathNotFound:
      return "Path not found";
    case RunTimeFault::kInvalidPropertyValue:
      return "Invalid property value";
  }
  return "Application-defined or object-defined error";
}

RunTimeFault RunTimeFaultOf(int systemError) {
  switch (systemError) {
    case ENOENT:
      return RunTimeFault::kFileNotFound;
    case ENOSPC:
      return RunTimeFault::kDiskFull;
    case EACCES:
    case EPERM:
      return RunTimeFault::kPermissionDenied;
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
      return RunTimeFault::kBadFileName;
    case ENOTDIR:
      return RunTimeFault::kPathNotFound;
    case EEXIST:
    case EISDIR:
    case EROFS:
    case EBUSY:
      return RunTimeFault::kPathFileAccess;
    default:
      return IsQuotaError(systemError) ? RunTimeFault::kDiskFull : RunTimeFault::kDeviceError;
  }
}

RunTimeError::RunTimeError(RunTimeFault fault, std::string_view detail)
    : std::runtime_error(FullText(fault, detail)), fault_(fault) {}

}  // namespace quillon
