#pragma once

#include "tools/asc/canvas.h"
#include "tools/asc/mesh.h"

#include <string>
#include <vector>

namespace asc {

/// How the show looks at a model: the camera's square 90-degree frustum with its near plane at 1, stretched to the
/// picture; the model scaled, then turned about x, y and z (degrees, z innermost), then moved.
struct View {
    Vec3 camera{0, 0, 20};
    Vec3 look{0, 0, 0};
    Vec3 scale{1, 1, 1};
    Vec3 turn{0, 0, 0};
    Vec3 at{0, 0, 0};
    bool white = false;     ///< white faces and black lines on black, instead of black faces and white lines on white
    bool lines = true;      ///< draw the edges that the flags show
    bool all_lines = false; ///< draw every side of every face, as of a mesh that is taken apart
};

/// Draws the objects one over the other as a scene would, at width x height pixels.
Canvas draw_view(std::vector<Object> const& objects, View const& view, int width, int height);

/// A sheet of panels, two for each object: solid, and its lines, with name and face count below. Flat objects are seen
/// from the front, others from the upper right or from where more of them shows; all 4/3 as wide as they are, like the
/// show's picture.
Canvas draw_sheet(std::vector<Object> const& objects, int columns, int panel);

} // namespace asc
