// SPDX-License-Identifier: MIT
#include "tests/show/scenechecks.h"

using namespace scenes;
using testing::ElementsAre;

namespace {

Names const fountain = {
    "torus2:1",        "torus2/lines:0",        "hollowsoccerball:0", "hollowsoccerball/lines:1",
    "frameoctoball:1", "frameoctoball/lines:0", "frameicosahedron:0", "frameicosahedron/lines:1",
};

TEST(Fountain, ShowsSixToriInThreeShells) {
    expect_moments(fountain_scene, {{3, fountain}, {35, fountain}, {63.9, fountain}}, white_wall);
    EXPECT_EQ(Stage::Count("torus2"), 6);
}

TEST(Fountain, TravelsInItsFirstHalfAndSettlesInTheSecond) {
    Stage s(fountain_scene);
    double const far = 1200;
    double const close = 115;
    struct {
        double at, z;
        // clang-format off
    } const rows[] = {
        {0,    far},
        {16,   (far + close) / 2},
        {32,   close},
        {48,   close + (close - far) / 16},
        {63.9, close},
    };
    // clang-format on
    for (auto const& row : rows) {
        SCOPED_TRACE(row.at);
        EXPECT_THAT(camera(s.PlayTo(row.at)), near({0, 0, row.z, 0, 0, 0}, 2));
    }
}

TEST(Fountain, TurnsTheFountainAndEachShellAtARateOfItsOwn) {
    Stage s(fountain_scene);
    s.PlayTo(3).Draw();
    auto const t = static_cast<double>(s.Time());
    // clang-format off
    double const spins[4][3] = {
        {30,  90,  50},
        {-30, -90, -50},
        {10,  30,  -20},
        {-40, -30, 20},
    };
    // clang-format on
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_THAT(values(s.Entity(5 + i).GetRot()), near({spins[i][0] * t, spins[i][1] * t, spins[i][2] * t}, 1e-3));
    }
    struct {
        char const* name;
        float scale;
        std::size_t spin;
    } const shells[] = {
        {"hollowsoccerball", 20, 1},
        {"frameoctoball", 30, 2},
        {"frameicosahedron", 150, 3},
    };
    double const z = camera(s)[2];
    for (auto const& shell : shells) {
        SCOPED_TRACE(shell.name);
        double const(&spin)[3] = spins[shell.spin];
        gl::Matrix const m = Stage::Find(shell.name).model_view;
        gl::Matrix const expected = matrix_of([&] {
            glTranslatef(0, 0, static_cast<float>(-z));
            glRotatef(static_cast<float>(spin[0] * t), 1, 0, 0);
            glRotatef(static_cast<float>(spin[1] * t), 0, 1, 0);
            glRotatef(static_cast<float>(spin[2] * t), 0, 0, 1);
            glScalef(shell.scale, shell.scale, shell.scale);
        });
        EXPECT_THAT(m, testing::Pointwise(testing::DoubleNear(0.01), expected));
    }
}

/// The frames of the fountain scene's first two seconds on which an object has the other colour.
std::vector<int> flashes(std::size_t enabler, char const* name, float flash) {
    Stage s(fountain_scene);
    std::vector<int> frames;
    for (int frame = 0; frame < 120; ++frame) {
        s.Step();
        s.DrawOnly(enabler);
        if (Stage::Find(name).color[0] == flash) frames.push_back(frame);
    }
    return frames;
}

TEST(Fountain, FlashesItsShellsOneAfterTheOther) {
    // Four flashes on every other frame. An event reaches what has started: on the first frame nothing has, since the
    // blinkers come first.
    EXPECT_THAT(flashes(6, "hollowsoccerball", 1), ElementsAre(6, 8, 10, 12, 115, 117, 119));
    EXPECT_THAT(flashes(7, "frameoctoball", 0), ElementsAre(11, 13, 15, 17));
    EXPECT_THAT(flashes(8, "frameicosahedron", 1), ElementsAre(17, 19, 21, 23));
    EXPECT_THAT(flashes(5, "torus2", 0), ElementsAre(110, 112, 114, 116));
}

Names greets_at(std::vector<std::string> const& greetings) {
    Names names = fountain;
    for (std::string const& greeting : greetings) {
        names.push_back(greeting + ":1");
        names.push_back(greeting + "/lines:0");
    }
    return names;
}

constexpr char const* greetings[] = {"Arbalest",  "Pixelherds", "Lanternfly", "Mirevolt",
                                     "Quartzine", "Tundrabeat", "Obelisk_K",  "Heavy_Cart"};

TEST(Greets, SendsOneGreetingOffEveryTwoBeats) {
    std::vector<Moment> moments;
    for (int const at : {1, 3, 7, 15, 16, 19, 27, 29, 30, 31}) {
        std::vector<std::string> on;
        for (int k = 0; k < 8; ++k) {
            if (at >= 2 * k && at < 2 * k + 16) on.push_back(greetings[k]);
        }
        EXPECT_TRUE(at != 15 || on.size() == 8);
        EXPECT_TRUE(at != 31 || on.empty());
        moments.push_back({at == 16 ? 16.9 : at + 0.0, greets_at(on)});
    }
    expect_moments(greets_scene, moments, white_wall);
}

TEST(Greets, SendsThemAlongTheCamerasLineOfSight) {
    Stage s(greets_scene);
    EXPECT_THAT(camera(s.PlayTo(0)), near({-0.2, -33.8, 0.1, -0.4, 24.8, -1.9}));
    double const from[3] = {2, -30, 0};
    double const to[3] = {-0.4, 224.8, -1.9};
    for (double const at : {3.0, 9.5, 14.5, 20.0, 29.9}) {
        SCOPED_TRACE(at);
        s.PlayTo(at);
        for (std::size_t k = 0; k < 8; ++k) {
            double const f =
                (static_cast<double>(s.Time()) / static_cast<double>(beat) - 2 * static_cast<double>(k)) / 16;
            if (f < 0.02 || f >= 1) continue; // the jump takes the first frame
            std::vector<double> expected;
            for (std::size_t axis = 0; axis < 3; ++axis) expected.push_back(from[axis] + f * (to[axis] - from[axis]));
            EXPECT_THAT(values(s.Entity(9 + k).GetPos()), near(expected, 1e-2)) << greetings[k];
        }
    }
}

TEST(Greets, TumblesThemFromTheirOwnFirstFrame) {
    Stage s(greets_scene);
    s.PlayTo(4);
    float const first = s.Time();
    s.PlayTo(9);
    auto const t = static_cast<double>(s.Time() - first);
    EXPECT_THAT(values(s.Entity(11).GetRot()), near({100 * t, 10 * t, 0}, 1e-2)); // and not from 90 degrees
}

TEST(Greets, KeepsTheFountainStill) {
    Stage s(greets_scene);
    s.PlayTo(20);
    EXPECT_THAT(values(s.Entity(5).GetRot()), ElementsAre(0, 0, 0));
    EXPECT_THAT(values(s.Entity(6).GetRot()), testing::Not(ElementsAre(0, 0, 0)));
}

} // namespace
