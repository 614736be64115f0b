#include <algorithm>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

#include "testing/guarded_page.h"

namespace quillon {
namespace {

char* Reserve(std::size_t size) {
  void* const all = ::mmap(nullptr, 3 * size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (all == MAP_FAILED) std::abort();
  return static_cast<char*>(all) + size;
}

}  // namespace

GuardedPage::GuardedPage() : size_(static_cast<std::size_t>(::sysconf(_SC_PAGESIZE))), start_(Reserve(size_)) {
  if (::mprotect(start_, size_, PROT_READ | PROT_WRITE) != 0) std::abort();
  std::fill_n(start_, size_, 'x');
}

GuardedPage::~GuardedPage() {
  ::munmap(start_ - size_, 3 * size_);
}

}  // namespace quillon
