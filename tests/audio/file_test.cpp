// SPDX-License-Identifier: MIT
#include "soundtrack.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

std::string read_file(std::string const& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

/// The tags of a Vorbis stream, "NAME=value" each; empty when there is no readable comment header.
/// (Vorbis I, section 5.2: vendor string, count, then strings, each after its 32-bit length.)
std::vector<std::string> tags(std::string const& bytes) {
    std::vector<std::string> found;
    std::size_t at = bytes.find("\x03vorbis");
    if (at == std::string::npos) return found;
    at += 7;
    auto const number = [&] {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < 4 && at < bytes.size(); ++i, ++at)
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at])) << (8 * i);
        return value;
    };
    std::uint32_t const vendor = number();
    at += vendor;
    for (std::uint32_t left = number(); left > 0 && at < bytes.size(); --left) {
        std::uint32_t const length = number();
        if (length > bytes.size() - at) break;
        found.push_back(bytes.substr(at, length));
        at += length;
    }
    return found;
}

} // namespace

TEST(SoundtrackFile, IsStereoAtTheRateTheProgramAsksFor) {
    EXPECT_EQ(soundtrack::recording().rate, soundtrack::rate);
    EXPECT_EQ(soundtrack::recording().channels, 2u);
}

TEST(SoundtrackFile, LastsTheWholeShowAndATailOfAtMostFourSeconds) {
    double const seconds = static_cast<double>(soundtrack::recording().Count()) / soundtrack::rate;
    double const show = soundtrack::show_beats * soundtrack::beat_seconds;
    EXPECT_GT(seconds, show + 1);
    EXPECT_LE(seconds, show + soundtrack::tail_seconds);
}

TEST(SoundtrackFile, IsSmallerThanFiveMegabytes) {
    EXPECT_LT(std::filesystem::file_size(soundtrack::path()), 5'000'000u);
}

TEST(SoundtrackFile, NamesItsTitleArtistDateAndLicence) {
    std::vector<std::string> const found = tags(read_file(soundtrack::path()));
    for (std::string const wanted : {"TITLE=Hard Silence", "ARTIST=QUILLON", "DATE=", "LICENSE=MIT"}) {
        SCOPED_TRACE(wanted);
        bool there = false;
        for (std::string const& tag : found) {
            std::string upper = tag;
            for (std::size_t i = 0; i < upper.size() && upper[i] != '='; ++i)
                upper[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(upper[i])));
            there = there || (upper.rfind(wanted, 0) == 0 && upper.size() > upper.find('=') + 1);
        }
        EXPECT_TRUE(there);
    }
}
