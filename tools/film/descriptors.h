// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// Writes all of it to a file descriptor, waiting where it has to.
/// @return false, with errno set, after a failure
bool write_all(int descriptor, void const* bytes, std::size_t size);

/// Reads exactly so many bytes.
/// @return false after a failure, or where the data ends before
bool read_all(int descriptor, void* bytes, std::size_t size);
