#include "text/large_pages.h"

#ifdef __linux__
#include <sys/mman.h>

#include <cstdint>
#endif

namespace quill {

#ifdef __linux__
void UseLargePages(const void* begin, std::size_t bytes) {
  // The size on most machines. Where pages are larger, the system uses whole ones of those.
  constexpr std::uintptr_t kPage = std::uintptr_t{1} << 21U;
  const auto address = reinterpret_cast<std::uintptr_t>(begin);
  const std::uintptr_t first = (address + kPage - 1) / kPage * kPage;
  const std::uintptr_t last = (address + bytes) / kPage * kPage;
  // This is advice: if it is refused, only time is lost.
  if (first >= last) return;
  auto* const memory = static_cast<char*>(const_cast<void*>(begin));
  madvise(memory + (first - address), last - first, MADV_HUGEPAGE);
}
#else
void UseLargePages(const void* /*begin*/, std::size_t /*bytes*/) {}
#endif

}  // namespace quill
