// SPDX-License-Identifier: MIT
#pragma once

/// Programs that link tests/support/allocations.cpp count their allocations.
namespace allocations {

extern long made; ///< blocks so far
extern long live; ///< blocks not yet freed

} // namespace allocations
