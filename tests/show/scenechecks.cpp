// SPDX-License-Identifier: MIT
#include "tests/show/scenechecks.h"

#include <algorithm>
#include <cmath>

using testing::ElementsAreArray;

namespace scenes {

void expect_moments(SceneFunction make, std::vector<Moment> const& moments, Names const& tail) {
    Stage s(make);
    for (Moment const& moment : moments) {
        SCOPED_TRACE(testing::Message() << "beat " << moment.at);
        Names expected = moment.seen;
        expected.insert(expected.end(), tail.begin(), tail.end());
        EXPECT_THAT(s.PlayTo(moment.at).Seen(), ElementsAreArray(expected));
        EXPECT_EQ(Stage::Count("tile"), 901);
    }
}

void expect_names(SceneFunction make, double at, Names const& names) {
    SCOPED_TRACE(testing::Message() << "beat " << at);
    EXPECT_THAT(Stage(make).PlayTo(at).SeenNames(), ElementsAreArray(names));
}

gl::Matrix matrix_of(std::function<void()> const& calls) {
    glPushMatrix();
    glLoadIdentity();
    calls();
    gl::Matrix const matrix = gl::model_view();
    glPopMatrix();
    return matrix;
}

void expect_matrix(gl::Matrix const& actual, std::function<void()> const& calls) {
    EXPECT_THAT(actual, testing::Pointwise(testing::DoubleNear(1e-4), matrix_of(calls)));
}

std::vector<double> camera(Stage& s) {
    s.Draw();
    std::vector<double> v(6);
    for (std::string const& call : gl::call_list()) {
        if (std::sscanf(call.c_str(), "LookAt(%lf,%lf,%lf,%lf,%lf,%lf,0,1,0)", &v[0], &v[1], &v[2], &v[3], &v[4],
                        &v[5]) == 6) {
            return v;
        }
    }
    return {};
}

std::array<double, 3> farthest(Stage& s, std::string const& name, std::function<void()> const& place) {
    s.Draw();
    gl::Matrix const at_rest = matrix_of(place);
    std::array<double, 3> most{0, 0, 0};
    for (gl::Draw const& draw : gl::draws()) {
        if (draw.name != name) continue;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            // The cameras of these scenes look along z, so that the axes are the viewer's.
            most[axis] = std::max(most[axis], std::abs(draw.model_view[12 + axis] - at_rest[12 + axis]));
        }
    }
    return most;
}

} // namespace scenes
