// SPDX-License-Identifier: MIT
// Any bytes as the first ones of a soundtrack.

#include "fuzz/check.h"
#include "kore/soundtrackfile.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static fuzz::MemoryFile const file;
    // As large as it is and no larger, so that a byte read beyond it is found.
    auto const copy = std::make_unique<char[]>(size);
    if (size > 0) std::memcpy(copy.get(), data, size);
    bool const good = kore::is_soundtrack({copy.get(), size});
    fuzz::require(kore::may_be_soundtrack(file.Write(data, size)) == good, "a file is judged by its first bytes");
    return 0;
}
