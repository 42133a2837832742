// SPDX-License-Identifier: MIT
// What the mesh tool does behind the library that reads models: any bytes as packed objects and as a mesh file, and any
// small mesh on its way into the show.

#include "fuzz/check.h"
#include "tools/asc/ascfile.h"
#include "tools/asc/check.h"
#include "tools/asc/finish.h"
#include "tools/asc/packing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace {

bool is_good(asc::Object const& object) {
    auto const in_range = [](double v) { return std::abs(v) <= asc::most_coordinate; };
    return std::ranges::all_of(object.vertices,
                               [&](asc::Vec3 const& p) { return in_range(p.x) && in_range(p.y) && in_range(p.z); });
}

void require_corners(asc::Object const& object) {
    for (asc::Face const& face : object.faces) {
        for (int const v : face.v) {
            fuzz::require(v >= 0 && static_cast<std::size_t>(v) < object.vertices.size(), "a corner is a vertex");
        }
    }
}

void try_text(std::string_view text) {
    asc::ReadFile const file = asc::parse(text);
    for (asc::ReadObject const& read : file.objects) {
        require_corners(read.object);
        fuzz::require(is_good(read.object), "coordinates are in range");
        asc::summary(read.object);
    }
    bool const good = file.faults.empty();
    asc::faults_of(file, true);
    if (!good) return;
    std::vector<asc::Object> objects;
    for (asc::ReadObject const& read : file.objects) objects.push_back(read.object);
    std::string const once = asc::write(objects);
    asc::ReadFile const again = asc::parse(once);
    fuzz::require(again.faults.empty(), "what is written has the layout that is read");
}

void try_packed(std::string_view bytes) {
    auto const objects = asc::unpack(bytes);
    if (!objects) return;
    for (asc::Object const& object : *objects) require_corners(object);
    fuzz::require(asc::pack(*objects) == bytes, "packing what was unpacked gives it back");
}

/// A small mesh, not refined, which is another's work in another process. The first bytes choose how it is finished,
/// three bytes are a vertex on a coarse grid, three a face.
void try_mesh(std::string_view bytes) {
    constexpr std::size_t head = 4;
    if (bytes.size() < head + 6) return;
    auto const byte = [&](std::size_t i) { return static_cast<int>(static_cast<std::uint8_t>(bytes[i])); };
    asc::Finish finish;
    finish.flat = byte(0) & 1;
    if (byte(0) & 2) finish.centre = asc::Vec3{1, -2, 0.5};
    if (byte(0) & 8) finish.weld = byte(2) / 64.0 + 1e-6;
    double const unit = byte(0) & 16 ? 0.001 : byte(0) & 32 ? 3900.0 : 0.25;
    std::size_t const count = std::min<std::size_t>(byte(3) % 40 + 3, (bytes.size() - head) / 3);
    asc::Object object;
    object.name = "mesh";
    std::size_t at = head;
    auto const next = [&] { return at < bytes.size() ? byte(at++) : 0; };
    for (std::size_t i = 0; i < count; ++i) {
        double const x = (next() - 128) * unit, y = (next() - 128) * unit, z = (next() - 128) * unit;
        object.vertices.push_back({x, y, z});
    }
    auto const corner = [&] { return next() % static_cast<int>(count); };
    while (at + 2 < bytes.size() && object.faces.size() < 80)
        object.faces.push_back({{corner(), corner(), corner()}, {}});

    if (!asc::make_ready(object, finish).empty()) return;
    require_corners(object);
    asc::ReadFile const file = asc::parse(asc::write({object}));
    fuzz::require(file.faults.empty() && file.objects.size() == 1, "a finished mesh can be read");
    for (asc::Face const& face : file.objects[0].object.faces) {
        fuzz::require(!asc::degenerate(file.objects[0].object, face), "a finished face has an area");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const bytes(reinterpret_cast<char const*>(data), size);
    try_text(bytes);
    try_packed(bytes);
    try_mesh(bytes);
    return 0;
}
