#include "allocation/counted.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t requests = 0;

void* counted_or_null(std::size_t size) noexcept {
  ++requests;
  return std::malloc(size ? size : 1);
}

void* counted_memory(std::size_t size) {
  if (void* memory = counted_or_null(size)) return memory;
  throw std::bad_alloc();
}

}  // namespace

namespace zephyl {

std::size_t heap_requests() { return requests; }

}  // namespace zephyl

void* operator new(std::size_t size) { return counted_memory(size); }
void* operator new[](std::size_t size) { return counted_memory(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return counted_or_null(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return counted_or_null(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }

// The linker turns calls of these functions towards here (--wrap).
extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* memory, std::size_t size);

void* __wrap_malloc(std::size_t size) {
  ++requests;
  return __real_malloc(size);
}

void* __wrap_calloc(std::size_t count, std::size_t size) {
  ++requests;
  return __real_calloc(count, size);
}

void* __wrap_realloc(void* memory, std::size_t size) {
  ++requests;
  return __real_realloc(memory, size);
}
}
