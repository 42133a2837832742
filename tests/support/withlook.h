#pragma once

#include "effekt/look.h"

namespace support {

/// A look of the effects that are made while it lives.
class WithLook {
public:
    explicit WithLook(effect::Look const& look) { effect::look = look; }
    ~WithLook() { effect::look = {}; }
    WithLook(WithLook const&) = delete;
    WithLook& operator=(WithLook const&) = delete;
};

constexpr effect::Look standard_wire{.standard_wire = true};

} // namespace support
