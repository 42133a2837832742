// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/look.h"

namespace support {

/// Look settings for the effects made during its lifetime.
class WithLook {
public:
    explicit WithLook(effect::Look const& look) { effect::look = look; }
    ~WithLook() { effect::look = {}; }
    WithLook(WithLook const&) = delete;
    WithLook& operator=(WithLook const&) = delete;
};

constexpr effect::Look standard_wire{.standard_wire = true};

} // namespace support
