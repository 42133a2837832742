#pragma once

/// Programs that link tests/support/allocations.cpp allocate by operators of their own, which count.
namespace allocations {

extern long made; ///< blocks so far
extern long live; ///< blocks that have not been given back

} // namespace allocations
