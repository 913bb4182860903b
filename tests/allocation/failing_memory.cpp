// Takes the place of the routines that the engine and the library of products get memory from:
// `operator new` in all its forms, and `aligned_alloc`.
#include "allocation/failing_memory.h"

#include <malloc.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <new>

namespace quorvex {
namespace {

struct Count {
  bool is_on = false;
  Shortage shortage;
  std::size_t asked = 0;
};

thread_local constinit Count counted;
constinit std::atomic<long> blocks = 0;
constinit std::atomic<long> bytes_in_use = 0;
constinit std::atomic<long> most_bytes = 0;

bool Is_Refused() noexcept {
  if (!counted.is_on) return false;
  const std::size_t number = ++counted.asked;
  const Shortage& shortage = counted.shortage;
  if (shortage.first == 0 || number < shortage.first) return false;
  return shortage.lasts || number == shortage.first;
}

void Note(void* block, int sign) noexcept {
  blocks += sign;
  const long now = bytes_in_use += sign * static_cast<long>(::malloc_usable_size(block));
  long most = most_bytes.load();
  while (now > most && !most_bytes.compare_exchange_weak(most, now)) {
  }
}

void* Allocate(std::size_t bytes, std::size_t boundary) noexcept {
  if (Is_Refused()) return nullptr;
  void* block = nullptr;
  if (boundary <= alignof(std::max_align_t)) {
    block = std::malloc(bytes > 0 ? bytes : 1);
  } else if (::posix_memalign(&block, boundary, bytes) != 0) {
    block = nullptr;
  }
  if (block != nullptr) Note(block, 1);
  return block;
}

void* Allocate_Or_Throw(std::size_t bytes, std::size_t boundary = 1) {
  if (void* const block = Allocate(bytes, boundary)) return block;
  throw std::bad_alloc();
}

void Free(void* block) noexcept {
  if (block != nullptr) Note(block, -1);
  std::free(block);
}

std::size_t Boundary(std::align_val_t boundary) {
  return static_cast<std::size_t>(boundary);
}

}  // namespace

Failing_Memory::Failing_Memory(Shortage shortage) noexcept {
  counted = {true, shortage, 0};
}

Failing_Memory::~Failing_Memory() {
  counted.is_on = false;
}

std::size_t Failing_Memory::count() const noexcept {
  return counted.asked;
}

long Blocks_In_Use() noexcept {
  return blocks.load();
}

long Bytes_In_Use() noexcept {
  return bytes_in_use.load();
}

long Most_Bytes_In_Use() noexcept {
  return most_bytes.load();
}

void Forget_Most_Bytes() noexcept {
  most_bytes = bytes_in_use.load();
}

}  // namespace quorvex

using quorvex::Allocate;
using quorvex::Allocate_Or_Throw;
using quorvex::Boundary;
using quorvex::Free;

void* operator new(std::size_t bytes) {
  return Allocate_Or_Throw(bytes);
}
void* operator new[](std::size_t bytes) {
  return Allocate_Or_Throw(bytes);
}
void* operator new(std::size_t bytes, std::align_val_t boundary) {
  return Allocate_Or_Throw(bytes, Boundary(boundary));
}
void* operator new[](std::size_t bytes, std::align_val_t boundary) {
  return Allocate_Or_Throw(bytes, Boundary(boundary));
}
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
  return Allocate(bytes, 1);
}
void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
  return Allocate(bytes, 1);
}
void operator delete(void* block) noexcept {
  Free(block);
}
void operator delete[](void* block) noexcept {
  Free(block);
}
void operator delete(void* block, std::size_t) noexcept {
  Free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
  Free(block);
}
void operator delete(void* block, std::align_val_t) noexcept {
  Free(block);
}
void operator delete[](void* block, std::align_val_t) noexcept {
  Free(block);
}
void operator delete(void* block, std::size_t, std::align_val_t) noexcept {
  Free(block);
}
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept {
  Free(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
  Free(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
  Free(block);
}

// The library of products is loaded by the process, and finds this one first.
extern "C" void* aligned_alloc(std::size_t boundary, std::size_t bytes) noexcept {
  if (quorvex::Is_Refused()) {
    errno = ENOMEM;
    return nullptr;
  }
  void* block = nullptr;
  return ::posix_memalign(&block, boundary, bytes) == 0 ? block : nullptr;
}
