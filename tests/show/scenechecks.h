// SPDX-License-Identifier: MIT
#pragma once

#include "tests/show/stage.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <array>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// How the tests of the scenes state what is drawn at chosen beats, where, and in which colours.
namespace scenes {

using stage::beat;
using stage::Stage;

using Names = std::vector<std::string>;

/// What is drawn at a beat of a scene.
struct Moment {
    double at; ///< beats
    Names seen;
};

Names const white_wall = {"tile:1", "tile:0"};
Names const black_wall = {"tile:0", "tile:1"};

/// @param tail  drawn last at every moment
void expect_moments(SceneFunction make, std::vector<Moment> const& moments, Names const& tail);

/// The same while a strobe runs: without colours.
void expect_names(SceneFunction make, double at, Names const& names);

/// The identity, changed by these calls.
gl::Matrix matrix_of(std::function<void()> const& calls);

void expect_matrix(gl::Matrix const& actual, std::function<void()> const& calls);

/// Draws the frame.
/// @return its camera: eye and point looked at
std::vector<double> camera(Stage& s);

/// Draws the frame.
/// @return how far the pieces of a broken model are from their places at most, along the viewer's axes
std::array<double, 3> farthest(Stage& s, std::string const& name, std::function<void()> const& place);

inline testing::Matcher<std::vector<double>> near(std::vector<double> const& v, double by = 1e-4) {
    return testing::Pointwise(testing::DoubleNear(by), v);
}

inline std::vector<double> values(kore::Vector3<float> const& v) { return {v.x, v.y, v.z}; }

} // namespace scenes
