#include "base/ProgramPages.h"

#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

namespace tessarin {
namespace {

void restSegment(std::uintptr_t begin, std::uintptr_t end) {
  const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  begin -= begin % pageSize;
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the loader tells addresses as numbers
  madvise(reinterpret_cast<void*>(begin), end - begin, MADV_DONTNEED);
}

/// Only of segments that are never written to, the loader's corrections included: others would lose them.
int restLibrary(dl_phdr_info* library, std::size_t, void*) {
  for (int i = 0; i < library->dlpi_phnum; ++i) {
    const auto& segment = library->dlpi_phdr[i];
    if (segment.p_type != PT_LOAD || (segment.p_flags & PF_W) != 0) continue;
    const std::uintptr_t begin = library->dlpi_addr + segment.p_vaddr;
    restSegment(begin, begin + segment.p_memsz);
  }
  return 0;
}

}  // namespace

void restProgramPages() {
  dl_iterate_phdr(restLibrary, nullptr);
  malloc_trim(0);
}

}  // namespace tessarin
