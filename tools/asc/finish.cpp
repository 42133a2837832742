// SPDX-License-Identifier: MIT
#include "tools/asc/finish.h"

#include "tools/asc/apart.h"
#include "tools/asc/creases.h"
#include "tools/asc/packing.h"
#include "tools/asc/refine.h"

namespace asc {

namespace {

constexpr int most_refined = 50000; ///< triangles, which takes seconds

/// The mesher is another's, runs without its checks, and dies of some outlines that cross themselves.
/// @return "", or why the object stays as it is
std::string refine_apart(Object& object, double size, double min_angle) {
    constexpr Limits limits{std::chrono::seconds(60), std::size_t{2} << 30, std::size_t{256} << 20};
    Result const result = run_apart(
        [&] {
            Object cut = object;
            return refine(cut, size, min_angle) ? pack({cut}) : "";
        },
        limits);
    if (!result.failure.empty()) return "object '" + object.name + "' cannot be refined: " + result.failure;
    auto refined = unpack(result.bytes);
    if (!refined) return "the facets of object '" + object.name + "' cannot be made to fit each other";
    object = std::move(refined->front());
    return "";
}

} // namespace

std::string make_ready(Object& object, Finish const& finish) {
    if (finish.flat) keep_lowest_plane(object);
    if (finish.centre) centre(object, *finish.centre);
    clean(object, finish.weld);
    wind(object);
    if (object.faces.empty()) return "nothing is left of object '" + object.name + "'";
    if (finish.size && least_refined(object, *finish.size) > most_refined) {
        return "--refine would cut object '" + object.name + "' into more than " + std::to_string(most_refined) +
               " triangles";
    }
    if (finish.size) {
        if (std::string error = refine_apart(object, *finish.size, finish.min_angle); !error.empty()) return error;
    }
    flag_creases(object);
    return "";
}

} // namespace asc
