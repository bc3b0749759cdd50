#include "fakes/heap_peak.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> taken = 0;
std::atomic<std::size_t> mostTaken = 0;

/// Before every block; keeps its size.
union Header {
  std::size_t size;
  std::max_align_t alignment;
};

}  // namespace

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  auto* const header = static_cast<Header*>(std::malloc(sizeof(Header) + size));
  if (header == nullptr) return nullptr;
  header->size = size;
  taken += size;
  mostTaken = std::max(mostTaken.load(), taken.load());
  return header + 1;
}

void* operator new(std::size_t size) {
  void* const block = operator new(size, std::nothrow);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void operator delete(void* block) noexcept {
  if (block == nullptr) return;
  Header* const header = static_cast<Header*>(block) - 1;
  taken -= header->size;
  std::free(header);
}

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

namespace ng {

HeapPeak::HeapPeak() : before_(taken) { mostTaken = before_; }

std::size_t HeapPeak::Bytes() const { return mostTaken - before_; }

}  // namespace ng
