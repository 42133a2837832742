// SPDX-License-Identifier: MIT
#pragma once

#include "tools/asc/mesh.h"
#include "tools/files/png.h"

#include <SFML/Graphics/Image.hpp>
#include <optional>
#include <vector>

namespace asc {

/// How the show looks at a model: the camera's frustum, kore/frustum.h, stretched to the picture; the model scaled,
/// then turned about x, y and z (degrees, z innermost), then moved.
struct View {
    Vec3 camera{0, 0, 20};
    Vec3 look{0, 0, 0};
    Vec3 scale{1, 1, 1};
    Vec3 turn{0, 0, 0};
    Vec3 at{0, 0, 0};
    bool white = false;     ///< white faces and black lines on black, instead of black faces and white lines on white
    bool lines = true;      ///< draw the edges that the flags show
    bool all_lines = false; ///< draw every side of every face instead, as in a shattered mesh
};

/// Draws the objects one over the other, off-screen, as a scene of the show does.
/// @param width, height  pixels, above 0
/// @return nothing if OpenGL cannot draw such a picture
std::optional<sf::Image> draw_view(std::vector<Object> const& objects, View const& view, unsigned int width,
                                   unsigned int height);

/// The size of a sheet of this many objects, see draw_sheet.
PictureSize sheet_size(std::size_t count, unsigned int columns, unsigned int panel);

/// A sheet of panels, two for each object: solid, and its lines (those shown black, the others grey), with name and
/// face count below. Flat objects are seen from the front, others from the upper right or from where more of them
/// shows; all are stretched to 4/3 of their width, like the show's picture. Lines are drawn clear of the faces.
/// @param objects  at least one; the sheet must not be larger than pictures may be
/// @param columns  objects in a row, above 0
/// @param panel    width and height of a panel, pixels, above 0
/// @return nothing if OpenGL cannot draw such panels
std::optional<sf::Image> draw_sheet(std::vector<Object> const& objects, unsigned int columns, unsigned int panel);

} // namespace asc
