// SPDX-License-Identifier: MIT
#include "tests/support/allocations.h"

#include <cstdlib>
#include <new>

namespace allocations {

long made = 0;
long live = 0;

} // namespace allocations

namespace {

void* take(std::size_t size) noexcept {
    void* const memory = std::malloc(size ? size : 1);
    if (memory) {
        ++allocations::made;
        ++allocations::live;
    }
    return memory;
}

void* take_or_throw(std::size_t size) {
    if (void* const memory = take(size)) return memory;
    throw std::bad_alloc();
}

void give_back(void* memory) noexcept {
    if (memory) --allocations::live;
    std::free(memory);
}

} // namespace

void* operator new(std::size_t size) { return take_or_throw(size); }
void* operator new[](std::size_t size) { return take_or_throw(size); }
void* operator new(std::size_t size, std::nothrow_t const&) noexcept { return take(size); }
void* operator new[](std::size_t size, std::nothrow_t const&) noexcept { return take(size); }
void operator delete(void* memory) noexcept { give_back(memory); }
void operator delete[](void* memory) noexcept { give_back(memory); }
void operator delete(void* memory, std::size_t) noexcept { give_back(memory); }
void operator delete[](void* memory, std::size_t) noexcept { give_back(memory); }
void operator delete(void* memory, std::nothrow_t const&) noexcept { give_back(memory); }
void operator delete[](void* memory, std::nothrow_t const&) noexcept { give_back(memory); }
