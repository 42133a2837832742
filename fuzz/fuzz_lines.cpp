// SPDX-License-Identifier: MIT
// Any text, read by the show's readers and by the plain ones, getline and sscanf: both must find the same.

#include "fuzz/check.h"
#include "kore/ascfile.h"
#include "kore/asclines.h"
#include "tests/support/reference_asc.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

extern "C" char const* __asan_default_options() { return "quarantine_size_mb=16"; }

namespace {

template<class Values>
bool same_bits(Values const& a, Values const& b) {
    return std::memcmp(&a, &b, sizeof(Values)) == 0;
}

/// @param line  without its line feed
void compare_vertex(std::string const& line) {
    std::array<float, 3> const untouched{-77, -78, -79};
    std::array<float, 3> read = untouched;
    if (!kore::parse_plain_vertex(line, read.data())) {
        fuzz::require(same_bits(read, untouched), "a vertex line that is not plain changes nothing");
        return;
    }
    std::array<float, 3> expected{};
    int index = 0;
    int const fields =
        std::sscanf(line.c_str(), "Vertex %d: X:%f Y:%f Z:%f", &index, &expected[0], &expected[1], &expected[2]);
    fuzz::require(fields == 4, "a plain vertex line fits the pattern");
    fuzz::require(same_bits(read, expected), "a plain vertex line gives what the pattern gives");
}

/// @param line  without its line feed
void compare_face(std::string const& line) {
    std::array<int, 6> const untouched{-71, -72, -73, -74, -75, -76};
    std::array<int, 6> read = untouched;
    if (!kore::parse_plain_face(line, read.data())) {
        fuzz::require(same_bits(read, untouched), "a face line that is not plain changes nothing");
        return;
    }
    std::array<int, 6> expected{};
    int index = 0;
    int const fields = std::sscanf(line.c_str(), "Face %d: A:%d B:%d C:%d AB:%d BC:%d CA:%d", &index, &expected[0],
                                   &expected[1], &expected[2], &expected[3], &expected[4], &expected[5]);
    fuzz::require(fields == 7, "a plain face line fits the pattern");
    fuzz::require(same_bits(read, expected), "a plain face line gives what the pattern gives");
}

/// The words of the text, as the numbers of otherwise plain lines.
void compare_numbers(std::string const& text) {
    std::istringstream words(text);
    std::array<std::string, 6> w;
    for (std::string& word : w) words >> word;
    compare_vertex("Vertex 0:  X:" + w[0] + "     Y:" + w[1] + "     Z:" + w[2] + "\r");
    compare_face("Face 0:    A:" + w[0] + " B:" + w[1] + " C:" + w[2] + " AB:" + w[3] + " BC:" + w[4] + " CA:" + w[5]);
}

/// The number halfway between two neighbouring floats, also cut to some number of decimals: where rounding twice, to
/// double and to float, goes wrong. Chance alone would hardly ever produce such a number.
void compare_midpoints(std::string const& text) {
    std::size_t const bits = std::hash<std::string>()(text); // most inputs start alike
    constexpr int mantissa_bits = 23;
    constexpr std::size_t exponents = 10; // numbers from 1 to 1024, as in meshes
    auto const mantissa = static_cast<float>(bits & ((std::size_t{1} << mantissa_bits) - 1));
    float const low =
        std::ldexp(1 + std::ldexp(mantissa, -mantissa_bits), static_cast<int>((bits >> mantissa_bits) % exponents));
    double const high = std::nextafter(low, std::numeric_limits<float>::infinity());
    double const middle = (static_cast<double>(low) + high) / 2;
    constexpr int most_decimals = 18;
    constexpr std::size_t longest = 32;
    for (int decimals = 0; decimals + 2 <= most_decimals; decimals += 3) {
        char numbers[3][longest];
        for (int i = 0; i < 3; ++i) std::snprintf(numbers[i], longest, "%.*f", decimals + i, middle);
        compare_vertex(std::string("Vertex 0:  X:") + numbers[0] + "     Y:" + numbers[1] + "     Z:" + numbers[2] +
                       "\r");
    }
}

bool fits_int(long long n) { return n >= std::numeric_limits<int>::min() && n <= std::numeric_limits<int>::max(); }

/// Whether a line of the text has counts that do not fit an int; for the plain reader they are undefined.
bool counts_overflow(std::string const& text) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        long long n[2] = {0, 0};
        std::sscanf(line.c_str(), "Tri-mesh, Vertices: %lld Faces: %lld", &n[0], &n[1]);
        if (!std::all_of(std::begin(n), std::end(n), fits_int)) return true;
    }
    return false;
}

/// Whether a line of the text names a vertex beyond the show's limit; the plain reader has no limit.
bool corners_beyond(std::string const& text) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        long long n[3] = {0, 0, 0};
        int index = 0;
        std::sscanf(line.c_str(), "Face %d: A:%lld B:%lld C:%lld", &index, &n[0], &n[1], &n[2]);
        auto const beyond = [](long long corner) { return corner < 0 || corner >= kore::AscFile::max_vertices; };
        if (std::any_of(std::begin(n), std::end(n), beyond)) return true;
    }
    return false;
}

/// @return whether count rows of three at a and at b hold the same bits
template<class T>
bool same_rows(T const (*a)[3], std::vector<std::array<T, 3>> const& b, int count) {
    if (static_cast<std::size_t>(count) != b.size()) return false;
    return std::memcmp(a, b.data(), b.size() * sizeof(b[0])) == 0;
}

void compare_object(kore::AscFile const& file, reference::Mesh const& expected) {
    fuzz::require(file.GetName() == expected.name, "names are equal");
    fuzz::require(same_rows(file.GetVertices(), expected.vertices, file.GetVertexCount()), "vertices are equal");
    fuzz::require(same_rows(file.GetFaces(), expected.faces, file.GetFaceCount()), "faces are equal");
    fuzz::require(same_rows(file.GetEdges(), expected.edges, file.GetFaceCount()), "edges are equal");
}

void compare_fault(std::string const& fault, reference::File const& expected, std::size_t objects,
                   std::string const& text) {
    if (fault == expected.fault && objects == expected.meshes.size()) return;
    if (fault.find(" has no vertex ") != std::string::npos) {
        fuzz::require(corners_beyond(text), "a corner is refused only where it is out of range");
    } else {
        fuzz::require(fault == "Bad file format", "faults are equal");
        fuzz::require(counts_overflow(text), "counts are refused only where they are out of range");
    }
}

void compare_file(std::string const& text) {
    static fuzz::MemoryFile const memory;
    reference::File const expected = reference::read_asc(text);
    kore::AscFile file;
    fuzz::require(file.Open(memory.Write(text.data(), text.size())), "a regular file can be opened");
    for (std::size_t objects = 0;; ++objects) {
        switch (file.Next()) {
        case kore::AscFile::Result::Object:
            fuzz::require(objects < expected.meshes.size(), "there is such an object");
            compare_object(file, expected.meshes[objects]);
            break;
        case kore::AscFile::Result::End:
            fuzz::require(expected.fault.empty() && objects == expected.meshes.size(), "both end without a fault");
            return;
        case kore::AscFile::Result::Fault:
            compare_fault(file.GetFault(), expected, objects, text);
            return;
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const text(data, data + size);
    constexpr int most_lines = 100; // the reader of whole files sees the rest
    std::istringstream lines(text);
    std::string line;
    for (int n = 0; n < most_lines && std::getline(lines, line); ++n) {
        compare_vertex(line);
        compare_face(line);
    }
    compare_numbers(text);
    compare_midpoints(text);
    compare_file(text);
    return 0;
}
