#include <algorithm>
#include <cstdlib>
#include <windows.h>

#include "testing/guarded_page.h"

namespace quillon {
namespace {

std::size_t PageSize() {
  SYSTEM_INFO about{};
  GetSystemInfo(&about);
  return about.dwPageSize;
}

char* Reserve(std::size_t size) {
  void* const all = VirtualAlloc(nullptr, 3 * size, MEM_RESERVE, PAGE_NOACCESS);
  if (all == nullptr) std::abort();
  return static_cast<char*>(all) + size;
}

}  // namespace

GuardedPage::GuardedPage() : size_(PageSize()), start_(Reserve(size_)) {
  if (VirtualAlloc(start_, size_, MEM_COMMIT, PAGE_READWRITE) == nullptr) std::abort();
  std::fill_n(start_, size_, 'x');
}

GuardedPage::~GuardedPage() {
  VirtualFree(start_ - size_, 0, MEM_RELEASE);
}

}  // namespace quillon
