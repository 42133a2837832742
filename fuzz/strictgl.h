// SPDX-License-Identifier: MIT
#pragma once

namespace strictgl {

/// Whether a list of this name has been compiled, from NewList to EndList.
bool compiled(unsigned int list);

/// Forgets all lists; ends the run as a finding if a list or a primitive is still open.
void reset();

} // namespace strictgl
