// SPDX-License-Identifier: MIT
#include "runtime/playback.h"

#include "kore/camera.h"
#include "runtime/environment.h"
#include "tests/support/glrecorder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr float beat = 0.5f; // seconds
constexpr float rate = 8;    // frames per second: four a beat

/// Records the frames that it gets.
class Diary final : public kore::Entity {
public:
    char const* Name() override { return "Diary"; }
    void UpdateLogic(kore::StateData const& state) override { states.push_back(state); }
    void InternalDraw() override { drawn.push_back(states.size()); }

    std::vector<kore::StateData> states;
    std::vector<std::size_t> drawn; ///< how many updates had come before
};

class Playback : public testing::Test {
protected:
    Playback() {
        gl::reset();
        auto scene = std::make_shared<kore::Scene>("one");
        scene->AddCamera(std::make_shared<kore::Enabler>(std::make_shared<effect::Camera>(), 0, 4, beat, true));
        scene->AddEnabler(std::make_shared<kore::Enabler>(diary, 0, 4, beat, true));
        demo.AddScene(scene);
    }

    std::shared_ptr<Diary> diary = std::make_shared<Diary>();
    kore::Demo demo{beat};
    ::Playback playback{demo, rate, beat};
};

TEST_F(Playback, HandsEachFrameItsTimeAndItsBeat) {
    EXPECT_EQ(playback.NextFrame(), 0);
    for (int frame = 0; frame < 16; ++frame) {
        SCOPED_TRACE(frame);
        EXPECT_EQ(playback.NextBeat(), frame / 4);
        playback.Skip();
        kore::StateData const& state = diary->states.at(static_cast<std::size_t>(frame));
        EXPECT_EQ(state.time, static_cast<float>(frame) / rate);
        EXPECT_EQ(state.beat_count, frame / 4);
        EXPECT_EQ(state.new_beat, frame % 4 == 0);
        EXPECT_EQ(state.fps, rate);
        EXPECT_EQ(playback.State().time, state.time);
        EXPECT_EQ(playback.State().beat_count, state.beat_count);
        EXPECT_EQ(playback.NextFrame(), frame + 1);
    }
    EXPECT_FALSE(demo.GetFinished());
    playback.Skip();
    EXPECT_TRUE(demo.GetFinished());
}

TEST_F(Playback, SkipsUpToAFrameWithoutDrawing) {
    playback.SkipTo(7);
    EXPECT_EQ(diary->states.size(), 7u);
    EXPECT_TRUE(diary->drawn.empty());
    EXPECT_EQ(gl::call_count(), 0u);
    playback.Draw();
    EXPECT_EQ(diary->drawn, std::vector<std::size_t>{8});
    EXPECT_EQ(playback.NextFrame(), 8);
}

TEST_F(Playback, DoesNotGoBack) {
    playback.SkipTo(7);
    playback.SkipTo(3);
    EXPECT_EQ(playback.NextFrame(), 7);
    EXPECT_EQ(diary->states.size(), 7u);
}

TEST(FrameTime, IsADivisionInFloatWhereTheRateIsAWholeNumber) {
    for (int whole = 1; whole <= 240; ++whole) {
        for (int frame = 0; frame < 100000; frame += 7) {
            ASSERT_EQ(frame_time(frame, whole), static_cast<float>(frame) / static_cast<float>(whole))
                << frame << " at " << whole;
        }
    }
}

TEST(FrameTime, IsTheNearestFloatAtTheRatesOfTelevision) {
    EXPECT_EQ(frame_time(60000, 60000 / 1001.0), 1001);
    EXPECT_EQ(frame_time(1, 60000 / 1001.0), static_cast<float>(1001 / 60000.0));
}

struct Variable {
    char const* name;
    bool effect::Look::*setting;
};

/// Restores the environment at its end.
class Environment : public testing::TestWithParam<Variable> {
protected:
    ~Environment() override { unsetenv(GetParam().name); }
};

TEST_P(Environment, AsksForASettingOfTheLookUnlessItSaysNo) {
    auto const& [name, setting] = GetParam();
    unsetenv(name);
    EXPECT_FALSE(look_from_environment().*setting);
    for (char const* const off : {"", "0"}) {
        setenv(name, off, 1);
        EXPECT_FALSE(look_from_environment().*setting) << off;
    }
    for (char const* const on : {"1", "yes", "00"}) {
        setenv(name, on, 1);
        EXPECT_TRUE(look_from_environment().*setting) << on;
    }
}

INSTANTIATE_TEST_SUITE_P(Variables, Environment,
                         testing::Values(Variable{"HARDSILENCE_WIRE", &effect::Look::standard_wire},
                                         Variable{"HARDSILENCE_CALM", &effect::Look::calm}),
                         [](testing::TestParamInfo<Variable> const& variable) { return variable.param.name; });

} // namespace
