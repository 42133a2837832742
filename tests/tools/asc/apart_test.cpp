// SPDX-License-Identifier: MIT
#include "tools/asc/apart.h"
#include "tools/asc/packing.h"

#include <csignal>
#include <gtest/gtest.h>
#include <iostream>
#include <new>
#include <stdexcept>
#include <thread>
#include <unistd.h>
#include <vector>

using asc::run_apart;
using namespace std::chrono_literals;

namespace {

constexpr asc::Limits limits{10s, std::size_t{1} << 30, std::size_t{1} << 20};

std::string failure(std::function<std::string()> const& work, asc::Limits const& under = limits) {
    asc::Result const result = run_apart(work, under);
    EXPECT_EQ(result.bytes, "");
    return result.failure;
}

/// Two triangles.
asc::Object square(std::string const& name) {
    return {name, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0.5}, {0, 1, -1e6}}, {{{0, 1, 2}, {}}, {{0, 2, 3}, {}}}};
}

} // namespace

TEST(AscApart, GivesWhatTheWorkReturns) {
    std::string const bytes(1 << 20, '\0');
    asc::Result const result = run_apart([&] { return bytes; }, limits);
    EXPECT_EQ(result.failure, "");
    EXPECT_TRUE(result.bytes == bytes);
}

TEST(AscApart, SurvivesWhatTheWorkDoes) {
    EXPECT_EQ(failure([]() -> std::string {
                  std::raise(SIGSEGV);
                  return "x";
              }),
              "it ended by signal 11 (Segmentation fault)");
    EXPECT_EQ(failure([]() -> std::string { std::abort(); }), "it ended by signal 6 (Aborted)");
    EXPECT_EQ(failure([]() -> std::string { throw std::runtime_error("x"); }), "it failed");
    EXPECT_EQ(failure([]() -> std::string { throw 1; }), "it failed");
    EXPECT_EQ(failure([]() -> std::string { _exit(1); }), "it failed");
    EXPECT_EQ(failure([]() -> std::string { throw std::bad_alloc(); }), "it takes more than 1024 MiB of memory");
}

TEST(AscApart, HoldsTheWorkToItsLimits) {
    auto const start = std::chrono::steady_clock::now();
    auto const wait = []() -> std::string {
        for (;;) std::this_thread::sleep_for(1s);
    };
    EXPECT_EQ(failure(wait, {1s, limits.memory, limits.result}), "it takes more than 1 s");
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
    EXPECT_EQ(failure([] { return std::string((1 << 20) + 1, 'x'); }), "it gives too much");
#ifndef __SANITIZE_ADDRESS__
    EXPECT_EQ(failure([] { return std::to_string(std::vector<char>(std::size_t{2} << 30).size()); }),
              "it takes more than 1024 MiB of memory");
#endif
}

TEST(AscApart, KeepsWhatTheWorkPrintsToItself) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    asc::Result const result = run_apart(
        [] {
            std::cout << "noise" << std::endl;
            std::cerr << "noise" << std::endl;
            return std::string("done");
        },
        limits);
    EXPECT_EQ(result.bytes, "done");
    EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
}

TEST(AscPacking, GivesTheObjectsBack) {
    std::vector<asc::Object> const objects = {square("one"), {"", {}, {}}, square(std::string("n\0n", 3))};
    auto const back = asc::unpack(asc::pack(objects));
    ASSERT_TRUE(back.has_value());
    ASSERT_EQ(back->size(), 3U);
    for (std::size_t i = 0; i < objects.size(); ++i) {
        EXPECT_EQ((*back)[i].name, objects[i].name);
        EXPECT_EQ((*back)[i].vertices, objects[i].vertices);
        ASSERT_EQ((*back)[i].faces.size(), objects[i].faces.size());
        for (std::size_t f = 0; f < objects[i].faces.size(); ++f) {
            EXPECT_EQ((*back)[i].faces[f].v, objects[i].faces[f].v);
        }
    }
    EXPECT_TRUE(asc::unpack(asc::pack({}))->empty());
}

TEST(AscPacking, RefusesBytesThatAreNoObjects) {
    std::string const good = asc::pack({square("one")});
    for (std::size_t cut = 0; cut < good.size(); ++cut) EXPECT_FALSE(asc::unpack(good.substr(0, cut))) << cut;
    EXPECT_FALSE(asc::unpack(good + "x"));
    asc::Object bad = square("one");
    for (int const corner : {-1, 4, 2147483647}) {
        bad.faces[1].v[2] = corner;
        EXPECT_FALSE(asc::unpack(asc::pack({bad}))) << corner;
    }
    for (std::size_t at = 0; at < good.size(); ++at) { // counts that would take all memory
        std::string broken = good;
        broken[at] = '\xff';
        auto const objects = asc::unpack(broken);
        EXPECT_TRUE(!objects || objects->size() == 1) << at;
    }
}
