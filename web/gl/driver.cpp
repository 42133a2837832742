// SPDX-License-Identifier: MIT
#include "web/gl/driver.h"

namespace fixedgl {

bool load(Driver& driver, EntryPoint (*find)(char const* name)) {
    bool complete = true;
#define FIXEDGL_LOAD(name)                                                                                             \
    driver.name = reinterpret_cast<decltype(driver.name)>(find("gl" #name)); /* NOLINT(*-reinterpret-cast) */          \
    complete = complete && driver.name;
    FIXEDGL_DRIVER_CALLS(FIXEDGL_LOAD)
#undef FIXEDGL_LOAD
    return complete;
}

} // namespace fixedgl
