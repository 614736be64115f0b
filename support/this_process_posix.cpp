#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sched.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

#include "support/this_process.h"

namespace quillon {

std::filesystem::path ExecutableFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

unsigned ProcessNumber() {
  return static_cast<unsigned>(getpid());
}

unsigned UsableCores() {
  cpu_set_t cores{};
  // Fails on a machine with more cores than cpu_set_t holds.
  if (sched_getaffinity(0, sizeof cores, &cores) != 0) return std::max(1U, std::thread::hardware_concurrency());
  return std::max(1U, static_cast<unsigned>(CPU_COUNT(&cores)));
}

std::string ProcessVariable(const char* name) {
  const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing sets a variable later
  return value == nullptr ? "" : value;
}

bool IsTerminal(int file) {
  return isatty(file) != 0;
}

bool TerminalsHaveColors() {
  return false;
}

std::vector<std::string> ProcessArguments(int count, char** arguments) {
  return {arguments + 1, arguments + count};
}

void PrepareStandardStreams() {
  constexpr std::array<std::pair<int, int>, 3> kUseless = {
      {{kInputStream, O_WRONLY}, {kOutputStream, O_RDONLY}, {kErrorStream, O_RDONLY}}};
  for (const auto& [stream, direction] : kUseless) {
    struct stat status {};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the call is so
    if (fstat(stream, &status) < 0) open("/dev/null", direction | O_CLOEXEC);
  }
}

}  // namespace quillon
