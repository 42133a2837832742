#include "runtime/environment.h"

#include <cstdlib>
#include <string_view>

namespace {

bool is_on(char const* variable) {
    char const* const value = std::getenv(variable);
    return value && *value != 0 && std::string_view(value) != "0";
}

} // namespace

effect::Look look_from_environment() {
    effect::Look look;
    look.standard_wire = is_on("HARDSILENCE_WIRE");
    look.calm = is_on("HARDSILENCE_CALM");
    return look;
}
