#include "bench/allocation_count.h"

#include <cstdlib>
#include <new>

namespace {

std::int64_t allocations = 0;

}  // namespace

namespace frostmark {

std::int64_t AllocationCount() { return allocations; }

}  // namespace frostmark

void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }

void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
