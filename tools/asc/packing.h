// SPDX-License-Identifier: MIT
#pragma once

#include "tools/asc/mesh.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace asc {

/// Objects as bytes, for another process of this machine; edge flags are left out.
std::string pack(std::vector<Object> const& objects);

/// @return nothing if the bytes are not what `pack` gives for objects whose faces have all of their vertices
std::optional<std::vector<Object>> unpack(std::string_view bytes);

} // namespace asc
