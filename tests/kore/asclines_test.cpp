// SPDX-License-Identifier: MIT
#include "kore/asclines.h"

#include <array>
#include <bit>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

/// The plain reader must find what the pattern does, or leave everything alone.
/// @return whether it takes the line
bool takes_vertex(std::string const& line) {
    SCOPED_TRACE(line);
    std::array<float, 3> fast{11, 12, 13};
    std::array<float, 3> slow = fast;
    bool const taken = kore::parse_plain_vertex(line, fast.data());
    if (taken) {
        int index = 0;
        EXPECT_EQ(std::sscanf(line.c_str(), "Vertex %d: X:%f Y:%f Z:%f", &index, &slow[0], &slow[1], &slow[2]), 4);
    }
    for (std::size_t i = 0; i < fast.size(); ++i) {
        EXPECT_EQ(std::bit_cast<std::uint32_t>(fast[i]), std::bit_cast<std::uint32_t>(slow[i])) << i;
    }
    return taken;
}

bool takes_face(std::string const& line) {
    SCOPED_TRACE(line);
    std::array<int, 6> fast{11, 12, 13, 14, 15, 16};
    std::array<int, 6> slow = fast;
    bool const taken = kore::parse_plain_face(line, fast.data());
    if (taken) {
        int index = 0;
        EXPECT_EQ(std::sscanf(line.c_str(), "Face %d: A:%d B:%d C:%d AB:%d BC:%d CA:%d", &index, &slow[0], &slow[1],
                              &slow[2], &slow[3], &slow[4], &slow[5]),
                  7);
    }
    EXPECT_EQ(fast, slow);
    return taken;
}

constexpr char const* vertex_lines[] = {
    "Vertex 0:  X:1.5     Y:-2.0     Z:0.25",
    "Vertex 12345678:  X:-12345678.5     Y:0     Z:1234567.12345678",
    "Vertex 99999:X:0.00001\tY:999999999999999.9         Z:-1e3",
};

constexpr char const* face_lines[] = {
    "Face 0:    A:0 B:1 C:2 AB:1 BC:0 CA:1",
    "Face 12345678:    A:123456789 B:12345678 C:1234567 AB:1 BC:1 CA:1",
    "Face 7:\tA:1234567890 B:012          C:000000001 AB:2 BC:01 CA:0",
};

/// Calls with every text that a line becomes when one character is replaced by one of some, or is left out.
template<typename Check>
int damage_everywhere(char const* line, Check check) {
    constexpr char const* others[] = {"",  "?", " ", "\t", "\r",   "\n",       "0",         "9",
                                      "-", ".", ":", "e",  "\xff", "33333333", "          "};
    int taken = 0;
    for (std::size_t at = 0; at <= std::string(line).size(); ++at) {
        for (char const* other : others) {
            std::string text(line);
            text.replace(at, 1, other);
            taken += check(text + "\r") + check(text);
        }
    }
    return taken;
}

TEST(AscLines, AreTakenAsThePatternTakesThemOrNotAtAllWhateverIsWrong) {
    for (char const* line : vertex_lines) EXPECT_GT(damage_everywhere(line, takes_vertex), 0) << line;
    for (char const* line : face_lines) EXPECT_GT(damage_everywhere(line, takes_face), 0) << line;
}

TEST(AscLines, AreTakenWithAsManyDigitsAsAnIntAlwaysHolds) {
    constexpr std::size_t most = 9;
    for (std::size_t whole = 1; whole <= most + 1; ++whole) {
        std::string const n(whole, '7');
        EXPECT_EQ(takes_face("Face " + n + ":    A:" + n + " B:" + n + " C:" + n + " AB:1 BC:1 CA:0\r"), whole <= most);
        EXPECT_EQ(takes_vertex("Vertex " + n + ":  X:1     Y:1     Z:1\r"), whole <= most);
        for (std::size_t decimals = 0; decimals <= most; ++decimals) {
            std::string const f = n + '.' + std::string(decimals, '3');
            EXPECT_TRUE(takes_vertex("Vertex 7:  X:" + f + "     Y:" + f + "     Z:-" + f + "\r"));
        }
    }
}

TEST(AscLines, TakeTheExportersOwnLayout) {
    float v[3];
    EXPECT_TRUE(kore::parse_plain_vertex("Vertex 0:  X:-1.50000     Y:0.25000     Z:100.00000\r", v));
    EXPECT_EQ(v[0], -1.5f);
    EXPECT_EQ(v[1], 0.25f);
    EXPECT_EQ(v[2], 100.0f);
    int f[6];
    EXPECT_TRUE(kore::parse_plain_face("Face 11:    A:10 B:11 C:12 AB:1 BC:0 CA:1\r", f));
    EXPECT_EQ(f[0], 10);
    EXPECT_EQ(f[2], 12);
    EXPECT_EQ(f[4], 0);
}

} // namespace
