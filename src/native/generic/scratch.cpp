// Large blocks go back to the system when they are freed, and the next call then waits for every
// page anew, which takes longer than a product. So the last block is kept, up to a size.
#include "native/generic/scratch.h"

#include <atomic>
#include <cstdlib>

#if defined(_WIN32)
#include <malloc.h>
#endif

namespace quorvex::native {
namespace {

constexpr std::size_t line = 64;

// What a product of a million digits by as many needs; nothing where the sanitizers are to see the
// end of each block.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QUORVEX_NATIVE_SEES_BLOCKS
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define QUORVEX_NATIVE_SEES_BLOCKS
#endif
#if defined(QUORVEX_NATIVE_SEES_BLOCKS)
constexpr bool keeps_blocks = false;
#else
constexpr bool keeps_blocks = true;
#endif
constexpr std::size_t most_kept = std::size_t{13} << 20U;

// Blocks that the C library has at hand.
constexpr std::size_t few = std::size_t{1} << 10U;

bool Is_Kept(std::size_t bytes) {
  return keeps_blocks && bytes > few && bytes <= most_kept;
}

// Before each block stands a line of its own with its size.
struct alignas(line) Block {
  std::size_t bytes;
};

#if defined(_WIN32)
// There the C library can't give back by `free` what stands on a boundary.
void* Allocate_On_Lines(std::size_t bytes) noexcept {
  return ::_aligned_malloc(bytes, line);
}
void Free_Block(Block* block) noexcept {
  ::_aligned_free(block);
}
#else
void* Allocate_On_Lines(std::size_t bytes) noexcept {
  return std::aligned_alloc(line, bytes);
}
void Free_Block(Block* block) noexcept {
  std::free(block);
}
#endif

class Kept {
 public:
  ~Kept() { Free_Block(take()); }
  Block* take() noexcept { return block_.exchange(nullptr); }
  // What was kept before.
  Block* keep(Block* block) noexcept { return block_.exchange(block); }

 private:
  std::atomic<Block*> block_ = nullptr;
};

Kept kept;

}  // namespace

void* Take_Memory(std::size_t bytes) noexcept {
  if (Is_Kept(bytes)) {
    Block* const block = kept.take();
    if (block != nullptr && block->bytes >= bytes) return block + 1;
    Free_Block(block);
  }
  auto* const block = static_cast<Block*>(Allocate_On_Lines((bytes / line + 2) * line));
  if (block == nullptr) return nullptr;
  block->bytes = bytes;
  return block + 1;
}

void Give_Memory_Back(void* memory) noexcept {
  if (memory == nullptr) return;
  Block* const block = static_cast<Block*>(memory) - 1;
  Free_Block(Is_Kept(block->bytes) ? kept.keep(block) : block);
}

}  // namespace quorvex::native
