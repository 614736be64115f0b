#include "support/run_time_error.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillon {
namespace {

struct FaultCase {
  RunTimeFault fault;
  int number;
  const char* text;
};

constexpr FaultCase kFaults[] = {
    {RunTimeFault::kInvalidProcedureCall, 5, "Invalid procedure call or argument"},
    {RunTimeFault::kOverflow, 6, "Overflow"},
    {RunTimeFault::kOutOfMemory, 7, "Out of memory"},
    {RunTimeFault::kSubscriptOutOfRange, 9, "Subscript out of range"},
    {RunTimeFault::kDivisionByZero, 11, "Division by zero"},
    {RunTimeFault::kInternalError, 51, "Internal error"},
    {RunTimeFault::kBadFileName, 52, "Bad file name or number"},
    {RunTimeFault::kFileNotFound, 53, "File not found"},
    {RunTimeFault::kDeviceError, 57, "Device I/O error"},
    {RunTimeFault::kDiskFull, 61, "Disk full"},
    {RunTimeFault::kPermissionDenied, 70, "Permission denied"},
    {RunTimeFault::kPathFileAccess, 75, "Path/File access error"},
    {RunTimeFault::kPathNotFound, 76, "Path not found"},
    {RunTimeFault::kInvalidPropertyValue, 380, "Invalid property value"},
    {static_cast<RunTimeFault>(1), 1, "Application-defined or object-defined error"},
};

TEST(RunTimeError, TellsNumberAndText) {
  for (const FaultCase& c : kFaults) {
    const RunTimeError error(c.fault);
    EXPECT_EQ(error.Fault(), c.fault) << c.text;
    EXPECT_EQ(error.Number(), c.number) << c.text;
    EXPECT_EQ(RunTimeFaultText(c.fault), c.text);
    EXPECT_EQ(error.what(), "Run-time error '" + std::to_string(c.number) + "': " + c.text);
  }
  EXPECT_STREQ(RunTimeError(RunTimeFault::kFileNotFound, "Ranges/Button.txt").what(),
               "Run-time error '53': File not found (Ranges/Button.txt)");
}

TEST(RunTimeFaultOf, EverySystemErrorIsAFault) {
  struct Case {
    int systemError;
    RunTimeFault fault;
  };
  const std::vector<Case> cases = {
      {ENOENT, RunTimeFault::kFileNotFound},      {ENOSPC, RunTimeFault::kDiskFull},
      {EACCES, RunTimeFault::kPermissionDenied},  {EPERM, RunTimeFault::kPermissionDenied},
      {ENAMETOOLONG, RunTimeFault::kBadFileName}, {EINVAL, RunTimeFault::kBadFileName},
      {EILSEQ, RunTimeFault::kBadFileName},       {ENOTDIR, RunTimeFault::kPathNotFound},
      {EISDIR, RunTimeFault::kPathFileAccess},    {EROFS, RunTimeFault::kPathFileAccess},
      {EBUSY, RunTimeFault::kPathFileAccess},     {EIO, RunTimeFault::kDeviceError},
      {EEXIST, RunTimeFault::kPathFileAccess},    {-1, RunTimeFault::kDeviceError},
  };
  for (const Case& c : cases)
    EXPECT_EQ(RunTimeFaultOf(c.systemError), c.fault) << "error number " << c.systemError;
}

}  // namespace
}  // namespace quillon
