#include "memory/granted.h"

#include <cstdlib>
#include <new>

long granted = -1;

void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
  return granted >= 0 && granted-- == 0 ? nullptr : std::malloc(bytes);
}

void* operator new(std::size_t bytes) {
  void* const memory = operator new(bytes, std::nothrow);
  if (!memory) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
