// SPDX-License-Identifier: MIT
#pragma once

#include "tools/asc/mesh.h"
#include "tools/asc/repair.h"

#include <optional>
#include <string>

namespace asc {

/// What is made of an object on its way from a model file into the show.
struct Finish {
    bool flat = false; ///< keep the lowest plane alone
    double weld = weld_distance;
    std::optional<Vec3> centre;
    std::optional<double> size; ///< of the triangles to refine to
    double min_angle = 20.0;    ///< of these, degrees
};

/// Turns an object as read into one for the show: repaired, wound, refined where that is asked for, its creases
/// flagged.
/// @return "", or what is wrong, with the object somewhere on the way
std::string make_ready(Object& object, Finish const& finish);

} // namespace asc
