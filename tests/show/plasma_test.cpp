// SPDX-License-Identifier: MIT
#include "tests/show/scenechecks.h"

#include <algorithm>

using namespace scenes;

namespace {

TEST(Plasma, PutsThreeTitlesInFrontOfTheMountain) {
    expect_names(plasma_scene, 10, {"QUILLONx-title", "HARD-title", "SILENCE-title", "tile"});
    Stage s(plasma_scene);
    EXPECT_THAT(camera(s.PlayTo(1)), near({0, 0, 31, 0, 0, 0}));
    auto const& calls = gl::call_list();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "Begin(POLYGON)"), 2 * 63 * 63);
    struct {
        char const* name;
        float scale, depth, y;
    } const titles[] = {
        {"QUILLONx-title", 0.5f, 0.01f, 15},
        {"HARD-title", 30, 1, 0},
        {"SILENCE-title", 6.5f, 1, -11},
    };
    for (auto const& title : titles) {
        SCOPED_TRACE(title.name);
        expect_matrix(Stage::Find(title.name).model_view, [&] {
            glTranslatef(0, title.y, 10 - 31);
            glScalef(title.scale, title.scale, title.depth);
        });
    }
}

TEST(Plasma, StrobesTheTitlesOnEveryOtherFrameAndNothingElse) {
    Stage s(plasma_scene);
    std::string titles;
    std::string wall;
    for (int frame = 0; frame < 12; ++frame) {
        s.Step();
        s.Draw();
        for (char const* name : {"HARD-title", "SILENCE-title"}) {
            EXPECT_EQ(Stage::Find(name).color, Stage::Find("QUILLONx-title").color);
        }
        titles += Stage::Find("HARD-title").color[0] == 1 ? '#' : '.';
        wall += Stage::Find("tile").color[0] == 1 ? '#' : '.';
    }
    EXPECT_EQ(titles, "#.#.#.#.#.#.");
    EXPECT_EQ(wall, "............");
    // Still at the end of the scene: 9000 flashes outlast it.
    s.PlayTo(31.8).Draw();
    auto const color = Stage::Find("HARD-title").color;
    s.Step();
    s.Draw();
    EXPECT_NE(Stage::Find("HARD-title").color, color);
}

} // namespace
