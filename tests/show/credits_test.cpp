// SPDX-License-Identifier: MIT
#include "tests/show/scenechecks.h"

using namespace scenes;

namespace {

TEST(Credits, AlternatesItsThreeDancersInTheRhythm) {
    Names const butt = {"butt_silhouette:1", "credits:0"};
    Names const side = {"side2_silhouette:1", "credits:0"};
    Names const stretched = {"sideview_silhouette:1", "credits:0"};
    expect_moments(credits_scene,
                   {
                       {0, butt},
                       {3.9, butt},
                       {4.5, side},
                       {5.5, stretched},
                       {6.5, butt},
                       {7.5, side},
                       {11.9, stretched},
                       {12.5, butt},
                       {13.5, side},
                       {14.5, stretched},
                       {15.5, butt},
                       {19.9, side},
                       {20.5, stretched},
                       {21.5, butt},
                       {22.5, side},
                       {23.5, stretched},
                   },
                   black_wall);
    expect_names(credits_scene, 2, {"butt_silhouette", "credits", "tile"});
    expect_names(credits_scene, 10, {"sideview_silhouette", "credits", "tile"});
    expect_names(credits_scene, 18, {"side2_silhouette", "credits", "tile"});
}

TEST(Credits, StrobesTheWallWithEveryDancerAndNeverTheText) {
    Stage s(credits_scene);
    int wall = 0;
    int text = 0;
    while (s.Time() < 23.9f * beat) {
        s.Step();
        s.Draw();
        wall += Stage::Find("tile").color[0] == 1 ? 1 : 0;
        text += Stage::Find("credits").color[0] == 1 ? 1 : 0;
    }
    EXPECT_EQ(wall, 3 * 48);
    EXPECT_EQ(text, 0);
}

TEST(Credits, PutsItsDancersInOnePlaceAndTheTextInFront) {
    Stage s(credits_scene);
    EXPECT_THAT(camera(s.PlayTo(5.5)), near({0, 0, 4.8, 0, 0, 0}));
    expect_matrix(Stage::Find("sideview_silhouette").model_view, [] {
        glTranslatef(0, 0, -4.8f);
        glRotatef(180, 0, 1, 0);
    });
    expect_matrix(Stage::Find("credits").model_view, [] {
        glTranslatef(-1.5f, 1.5f, -2.8f);
        glScalef(0.3f, 0.3f, 0.3f);
    });
}

} // namespace
