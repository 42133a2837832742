#include "tests/show/wholeshow.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <new>

namespace {

long allocations = 0;

} // namespace

void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size ? size : 1)) return memory;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

TEST(Allocation, IsCountedHere) {
    long const before = allocations;
    auto const one = std::make_unique<int>(1);
    EXPECT_EQ(allocations, before + 1);
    EXPECT_EQ(*one, 1);
}

TEST(Allocation, HappensInNoFrameAfterTheFirstOfAScene) {
    std::map<std::string, long> by_scene;
    for (char const* name : {"Intro", "Gun Girl", "Swapper", "Credits", "Tunnelgate", "Plasma", "Fountain", "Greets"}) {
        by_scene[name] = 0;
    }
    long before = 0;
    long frames = 0;
    wholeshow::play(
        60, [&] { before = allocations; },
        [&](wholeshow::Frame const& frame) {
            long const made = allocations - before;
            ++frames;
            if (!frame.first) by_scene.find(frame.scene)->second += made;
        });
    long all = 0;
    for (auto const& [name, made] : by_scene) {
        EXPECT_EQ(made, 0) << name;
        all += made;
    }
    EXPECT_GT(frames, 10000);
    std::cout << all << " allocations in " << frames << " frames\n";
}

} // namespace
