// SPDX-License-Identifier: MIT
#include "tools/film/descriptors.h"

#include <cerrno>
#include <unistd.h>

namespace {

/// Moves bytes until all are moved.
/// @param move  as write(2) and read(2), from an offset on
template<typename Move>
bool move_all(std::size_t size, Move move) {
    for (std::size_t done = 0; done < size;) {
        ssize_t const moved = move(done);
        if (moved < 0 && errno == EINTR) continue;
        if (moved <= 0) return false;
        done += static_cast<std::size_t>(moved);
    }
    return true;
}

} // namespace

bool write_all(int descriptor, void const* bytes, std::size_t size) {
    auto const* const from = static_cast<char const*>(bytes);
    return move_all(size, [&](std::size_t done) { return write(descriptor, from + done, size - done); });
}

bool read_all(int descriptor, void* bytes, std::size_t size) {
    auto* const to = static_cast<char*>(bytes);
    return move_all(size, [&](std::size_t done) { return read(descriptor, to + done, size - done); });
}
