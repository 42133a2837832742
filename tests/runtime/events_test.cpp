// SPDX-License-Identifier: MIT
// The event table of main.cpp.

#include "kore/camera.h"
#include "main.h"
#include "tests/support/glrecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;
using Key = sf::Keyboard;

namespace {

class QuietMusic final : public kore::Music {
public:
    bool LoadFromFile(std::string const&, int const&) override { return false; }
    void SetVisualizer(std::shared_ptr<kore::MusicVisualizer>) override {}
    void Play() override { asked.push_back("play"); }
    void Pause() override { asked.push_back("pause"); }
    bool Eof() override { return false; }
    bool Ready() override { return true; }

    std::vector<std::string> asked;
};

class Prepare final : public kore::ScenePrepare {
public:
    Prepare(std::string name_, std::string& current_) : name(std::move(name_)), current(current_) {}
    void Start() override { current = name; }

private:
    std::string name;
    std::string& current;
};

class Events : public testing::Test {
protected:
    Events() {
        gl::reset();
        quit = false;
        music_enabled = true;
        mushroom_mode = true;
        for (char const* name : {"A", "B", "C"}) {
            auto scene = std::make_shared<kore::Scene>(name);
            auto camera = std::make_shared<effect::Camera>();
            scene->AddEnabler(std::make_shared<kore::Enabler>(camera, 0, 100, 1.0f, true));
            scene->AddCamera(std::make_shared<kore::Enabler>(camera, 0, 100, 1.0f, true));
            scene->SetPrepare(std::make_shared<Prepare>(name, current));
            demo.AddScene(scene);
        }
        NextBeat();
    }
    ~Events() override { quit = mushroom_mode = false; }

    void NextBeat() {
        ++state.beat_count;
        state.new_beat = true;
        demo.UpdateLogic(state);
    }
    void Press(Key::Key key) { Send(sf::Event::KeyPressed, key); }
    void Release(Key::Key key) { Send(sf::Event::KeyReleased, key); }
    void Send(sf::Event::EventType type, Key::Key key) {
        sf::Event event{};
        event.type = type;
        event.key.code = key;
        handle_event(controls, event);
    }
    void Send(sf::Event::EventType type) {
        sf::Event event{};
        event.type = type;
        handle_event(controls, event);
    }

    /// Everything that events may change, as one text to compare.
    std::string Everything() {
        auto const text = [](kore::Vector3<float> const& v) {
            return std::to_string(v.x) + "," + std::to_string(v.y) + "," + std::to_string(v.z) + " ";
        };
        DebugCamera const& v = controls.view;
        return text(v.Eye()) + text(v.Look()) + text(v.Rotation()) + std::to_string(v.Speed()) + " " +
               std::to_string(v.HeldMovement()) + (v.IsFree() ? " free" : "") +
               (controls.pauses.Paused() ? " paused" : "") + (controls.close ? " close" : "") + (quit ? " quit" : "") +
               " " + std::to_string(player->asked.size()) + " " + std::to_string(gl::call_count());
    }

    std::string current;
    kore::Demo demo{1.0f};
    kore::StateData state;
    std::shared_ptr<QuietMusic> player = std::make_shared<QuietMusic>();
    std::shared_ptr<kore::Music> music = player;
    Controls controls{demo, music, {}, {}};
};

TEST_F(Events, ResizeTheViewportAndNothingElse) {
    for (bool const magic : {false, true}) {
        mushroom_mode = magic;
        gl::clear_log();
        sf::Event event{};
        event.type = sf::Event::Resized;
        event.size.width = 640;
        event.size.height = 400;
        handle_event(controls, event);
        EXPECT_EQ(gl::calls(), "Viewport(0,0,640,400)");
    }
}

TEST_F(Events, CloseEndsTheShow) {
    for (bool const magic : {false, true}) {
        mushroom_mode = magic;
        quit = false;
        Send(sf::Event::Closed);
        EXPECT_TRUE(quit);
        EXPECT_FALSE(controls.close);
    }
}

TEST_F(Events, EscapeClosesTheWindow) {
    for (bool const magic : {false, true}) {
        mushroom_mode = magic;
        controls.close = false;
        Release(Key::Escape);
        EXPECT_FALSE(controls.close);
        Press(Key::Escape);
        EXPECT_TRUE(controls.close);
        EXPECT_FALSE(quit);
    }
}

struct HeldRow {
    Key::Key key;
    std::uint64_t bit;
};

// clang-format off
constexpr HeldRow held_rows[] = {
    {Key::Z,     movement_z_out},
    {Key::A,     movement_z_in},
    {Key::Up,    movement_y_up},
    {Key::Down,  movement_y_down},
    {Key::Right, movement_x_right},
    {Key::Left,  movement_x_left},
    {Key::S,     movement_rot_y_up},
    {Key::F,     movement_rot_y_down},
    {Key::E,     movement_rot_x_right},
    {Key::D,     movement_rot_x_left},
    {Key::X,     movement_rot_z_fw},
    {Key::V,     movement_rot_z_bw},
};
// clang-format on

TEST_F(Events, HoldMovementsFromPressToRelease) {
    for (HeldRow const& row : held_rows) {
        SCOPED_TRACE(row.bit);
        Press(row.key);
        EXPECT_EQ(controls.view.HeldMovement(), row.bit);
        Press(row.key); // as key repeat does
        EXPECT_EQ(controls.view.HeldMovement(), row.bit);
        Release(row.key);
        EXPECT_EQ(controls.view.HeldMovement(), 0u);
    }
    Press(Key::Z);
    Press(Key::Up);
    Release(Key::Z);
    EXPECT_EQ(controls.view.HeldMovement(), movement_y_up);
}

TEST_F(Events, ReleaseMovementsWhenTheKeyboardIsLost) {
    Press(Key::O);
    Press(Key::Z);
    Send(sf::Event::LostFocus);
    EXPECT_EQ(controls.view.HeldMovement(), movement_camera);
}

TEST_F(Events, PauseTheClockAndTheMusic) {
    controls.now = 5;
    Press(Key::P);
    EXPECT_TRUE(controls.pauses.Paused());
    EXPECT_THAT(player->asked, ElementsAre("pause"));
    EXPECT_EQ(controls.pauses.ShowTime(9), 5);
    controls.now = 15;
    controls.pauses.ShowTime(15);
    Press(Key::P);
    EXPECT_FALSE(controls.pauses.Paused());
    EXPECT_THAT(player->asked, ElementsAre("pause", "play"));
    EXPECT_EQ(controls.pauses.ShowTime(16), 6);
    Release(Key::P);
    EXPECT_FALSE(controls.pauses.Paused());
}

TEST_F(Events, PauseTheClockOfAMutedShow) {
    music_enabled = false;
    controls.now = 5;
    Press(Key::P);
    EXPECT_THAT(player->asked, IsEmpty());
    EXPECT_EQ(controls.pauses.ShowTime(9), 5);
}

TEST_F(Events, DriveTheFreeCamera) {
    Press(Key::C);
    EXPECT_TRUE(controls.view.IsFree());
    Press(Key::C);
    EXPECT_FALSE(controls.view.IsFree());
    Press(Key::T);
    EXPECT_FLOAT_EQ(controls.view.Speed(), 10.1f);
    Press(Key::S);
    controls.view.Step();
    EXPECT_FLOAT_EQ(controls.view.Rotation().y, 10.1f);
    Press(Key::R);
    EXPECT_EQ(controls.view.Rotation().y, 0);
    Press(Key::G);
    Press(Key::G);
    EXPECT_EQ(controls.view.Speed(), 0.1f);
    Release(Key::S);
    Press(Key::O);
    EXPECT_EQ(controls.view.HeldMovement(), movement_camera);
    Press(Key::O);
    EXPECT_EQ(controls.view.HeldMovement(), 0u);
}

TEST_F(Events, SkipScenesWhenTheKeyIsReleased) {
    Press(Key::Period);
    NextBeat();
    EXPECT_EQ(current, "A");
    Release(Key::Period);
    NextBeat();
    EXPECT_EQ(current, "B");
    Release(Key::Period);
    NextBeat();
    EXPECT_EQ(current, "C");
    Release(Key::Comma);
    NextBeat();
    EXPECT_EQ(current, "B");
    Release(Key::Period);
    NextBeat();
    Release(Key::Period); // during the last scene: on with the first
    NextBeat();
    EXPECT_EQ(current, "A");
    EXPECT_FALSE(demo.GetFinished());
}

TEST_F(Events, KnowNoOtherKey) {
    std::string const before = Everything();
    for (Key::Key const key : {Key::L, Key::B, Key::Q, Key::Space, Key::Return, Key::F1, Key::Num1, Key::Unknown}) {
        Press(key);
        Release(key);
        EXPECT_EQ(Everything(), before) << key;
    }
}

TEST_F(Events, EndTheShowByCloseByItsOwnEndOrAtBeat9999) {
    EXPECT_FALSE(show_over(9998, demo));
    EXPECT_TRUE(show_over(9999, demo)); // although there are scenes left
    quit = true;
    EXPECT_TRUE(show_over(0, demo));
    quit = false;
    state.beat_count = 100;
    demo.UpdateLogic(state);
    state.beat_count = 200;
    demo.UpdateLogic(state);
    EXPECT_FALSE(show_over(200, demo));
    state.beat_count = 300;
    demo.UpdateLogic(state);
    EXPECT_TRUE(show_over(300, demo));
}

TEST_F(Events, OfKeysDoNothingExceptEscapeWithoutMagic) {
    mushroom_mode = false;
    std::string const before = Everything();
    for (int key = Key::Unknown; key < Key::KeyCount; ++key) {
        if (key == Key::Escape) continue;
        Press(static_cast<Key::Key>(key));
        EXPECT_EQ(Everything(), before) << key;
        Release(static_cast<Key::Key>(key));
        EXPECT_EQ(Everything(), before) << key;
    }
    NextBeat();
    EXPECT_EQ(current, "A");
}

TEST_F(Events, OfOtherKindsDoNothing) {
    std::string const before = Everything();
    for (auto const type : {sf::Event::GainedFocus, sf::Event::MouseMoved, sf::Event::TextEntered,
                            sf::Event::MouseButtonPressed, sf::Event::JoystickMoved, sf::Event::LostFocus}) {
        Send(type);
        EXPECT_EQ(Everything(), before) << type;
    }
}

/// Runs the frame counter, whose counts are static, in a process of its own.
/// @param frames  frames of a tenth of an interval
void count_frames(bool print, int frames) {
    fps_counter = print;
    float fps = 0;
    for (int frame = 1; frame <= frames; ++frame) frame_counter(static_cast<float>(frame) * 0.015625f, fps);
    std::fflush(stdout);
    std::fprintf(stderr, "fps %g", static_cast<double>(fps));
    std::exit(0);
}

TEST(FrameCounterDeathTest, MeasuresOverIntervalsOfJustAboveATenthOfASecond) {
    // 64 frames per second: seven make 0.109 s.
    EXPECT_EXIT(count_frames(false, 6), testing::ExitedWithCode(0), "^fps 0$");
    EXPECT_EXIT(count_frames(false, 7), testing::ExitedWithCode(0), "^fps 64$");
}

/// The lines that the counter prints.
std::string lines_of(bool print, int frames) {
    testing::internal::CaptureStdout();
    EXPECT_EXIT(count_frames(print, frames), testing::ExitedWithCode(0), "fps 64");
    return testing::internal::GetCapturedStdout();
}

TEST(FrameCounterDeathTest, PrintsItsLineAtTheTwelfthIntervalAndThenEveryEleventh) {
    std::string const line = "Hard Silence by Quillon 2012: 7 frames in 0.109375 seconds = 64 fps\n";
    EXPECT_EQ(lines_of(true, 7 * 12 - 1), "");
    EXPECT_EQ(lines_of(true, 7 * 12), line);
    EXPECT_EQ(lines_of(true, 7 * 23 - 1), line);
    EXPECT_EQ(lines_of(true, 7 * 23), line + line);
    EXPECT_EQ(lines_of(false, 7 * 23), "");
}

} // namespace
