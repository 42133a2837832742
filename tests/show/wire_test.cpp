#include "tests/show/scenechecks.h"

#include <algorithm>

using namespace scenes;

namespace {

constexpr double path[9][3] = {
    {0,   0,   0   },
    {-5,  -10, -40 },
    {5,   20,  -90 },
    {-20, 30,  -140},
    {-30, 40,  -200},
    {10,  50,  -260},
    {20,  60,  -300},
    {10,  50,  -340},
    {-10, 30,  -400},
};
constexpr double aims[9][3] = {
    {-5,   -10, -40 },
    {5,    20,  -90 },
    {-20,  30,  -140},
    {-30,  40,  -200},
    {1000, 50,  -260},
    {20,   60,  -300},
    {10,   50,  -340},
    {20,   60,  -400},
    {-10,  30,  -250},
};

constexpr std::size_t tentacles = 3; // enabler

/// A point of the uniform Catmull-Rom spline through nine points, each worth eight beats.
double on_spline(double const (&points)[9][3], std::size_t axis, double beats) {
    int const p = static_cast<int>(beats / 8);
    double const u = beats / 8 - p;
    auto const at = [&](int i) { return points[std::clamp(i, 0, 8)][axis]; };
    return 0.5 *
           (2 * at(p) + (at(p + 1) - at(p - 1)) * u + (2 * at(p - 1) - 5 * at(p) + 4 * at(p + 1) - at(p + 2)) * u * u +
            (3 * at(p) - at(p - 1) - 3 * at(p + 1) + at(p + 2)) * u * u * u);
}

TEST(Tunnelgate, FliesAlongItsPathLookingAlongAnother) {
    Stage s(wire_scene);
    for (double const at : {0.0, 4.0, 8.0, 13.7, 16.0, 24.0, 32.0, 35.5, 40.0, 48.0, 56.0, 64.0, 68.0, 71.9}) {
        SCOPED_TRACE(at);
        s.PlayTo(at);
        double const b = static_cast<double>(s.Time()) / static_cast<double>(beat);
        std::vector<double> expected;
        for (std::size_t axis = 0; axis < 3; ++axis) expected.push_back(on_spline(path, axis, b));
        for (std::size_t axis = 0; axis < 3; ++axis) expected.push_back(on_spline(aims, axis, b));
        EXPECT_THAT(camera(s), near(expected, 0.01));
    }
}

TEST(Tunnelgate, FlashesTwiceOnEveryBeatButTheFirst) {
    // On the first frame nobody has started to listen: the blinker comes before what it tells.
    Stage s(wire_scene);
    std::vector<int> flashes(73, 0);
    while (s.Time() < 71.9f * beat) {
        s.Step();
        s.DrawOnly(tentacles);
        auto const b = static_cast<std::size_t>(s.Time() / beat);
        flashes[b] += Stage::Find("tentacles_silhouette").color[0] == 0 ? 1 : 0;
    }
    EXPECT_EQ(flashes[0], 0);
    for (std::size_t b = 1; b < 72; ++b) EXPECT_EQ(flashes[b], 2) << "beat " << b;
}

} // namespace
