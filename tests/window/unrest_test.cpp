// SPDX-License-Identifier: MIT
// What a restless audience does to the program. With HARDSILENCE_LONG=1 for longer: some minutes.

#include "tests/support/effort.h"
#include "tests/window/playing.h"

#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using namespace std::chrono_literals;
using support::long_run;
using window::Show;
using window::small;
using window::whiteness;

namespace {

/// Keys that go down and up at random. Escape is not among them.
std::vector<std::string> random_strokes(unsigned int seed, int count) {
    static constexpr char const* keys[] = {
        "p", "r",  "c",    "t", "g", "o",   "l",      "z",      "a",     "s",     "f",  "e",    "d",     "x",
        "v", "Up", "Down", "q", "1", "Tab", "Return", "period", "comma", "space", "F1", "Left", "Right", "Shift_L"};
    std::minstd_rand generator(seed);
    std::vector<std::string> strokes;
    for (int i = 0; i < count; ++i) {
        strokes.emplace_back(generator() % 2 ? "keydown" : "keyup");
        strokes.insert(strokes.end(), {"--delay", "2", keys[generator() % std::size(keys)]});
    }
    return strokes;
}

TEST(Unrest, HammeredKeysDoNotEndTheProgram) {
    int const runs = long_run() ? 100 : 1;
    int const strokes = long_run() ? 1000 : 200;
    unsigned int const first_seed = support::seed();
    std::cout << "seed " << first_seed << std::endl;
    for (int run = 0; run < runs; ++run) {
        unsigned int const seed = first_seed + static_cast<unsigned int>(run);
        SCOPED_TRACE("seed " + std::to_string(seed));
        Show show(small({"-magic"}));
        ASSERT_TRUE(show.open);
        show.screen.Hammer(random_strokes(seed, strokes));
        EXPECT_TRUE(show.process.Running()) << show.process.Error();
        show.screen.Press("Escape");
        EXPECT_EQ(show.process.Wait(2s), 0) << show.process.Error();
    }
}

/// Resizes the window so many times, about once a frame.
void resize_again_and_again(Show& show, int times) {
    std::minstd_rand generator(132);
    for (int i = 0; i < times; ++i) {
        show.screen.Resize(1 + static_cast<unsigned int>(generator() % 800),
                           1 + static_cast<unsigned int>(generator() % 600));
        std::this_thread::sleep_for(16ms);
    }
}

TEST(Unrest, AWindowThatIsResizedAgainAndAgainIsFilledInTheEnd) {
    Show show(small());
    ASSERT_TRUE(show.open);
    resize_again_and_again(show, 120);
    show.screen.Resize(1, 1);
    std::this_thread::sleep_for(100ms);
    show.screen.Resize(400, 200);
    bool filled = false;
    for (int i = 0; i < 40 && !filled; ++i) {
        std::this_thread::sleep_for(50ms);
        auto const picture = show.screen.Look();
        filled = picture.width == 400 && picture.At(399, 0) == 0xffffff && picture.At(399, 199) == 0xffffff &&
                 picture.At(0, 0) == 0xffffff && whiteness(picture) < 1;
    }
    EXPECT_TRUE(filled);
    if (long_run()) resize_again_and_again(show, 5000); // through three scenes more
    EXPECT_TRUE(show.process.Running()) << show.process.Error();
    show.screen.Press("Escape");
    EXPECT_EQ(show.process.Wait(2s), 0);
}

/// How a show is ended from outside.
struct End {
    char const* name;
    void (*act)(Show& show);
};

constexpr End ends[] = {
    {"closed", [](Show& show) { show.screen.AskToClose(); }},
    {"interrupted", [](Show& show) { show.process.Signal(SIGINT); }},
    {"terminated", [](Show& show) { show.process.Signal(SIGTERM); }},
};

/// Plays all eight scenes at once, each in a program of its own, and ends them in turns.
/// @param turn  which end the first scene comes to
void end_in_every_scene(std::size_t turn) {
    constexpr std::size_t scenes = 8;
    std::vector<std::unique_ptr<Show>> shows;
    for (std::size_t i = 0; i < scenes; ++i) {
        shows.push_back(std::make_unique<Show>(small({"-magic", "-novsync", "-limit", "20"})));
        ASSERT_TRUE(shows.back()->open);
    }
    for (std::size_t skips = 1; skips < scenes; ++skips) {
        for (std::size_t i = skips; i < scenes; ++i) shows[i]->screen.Press("period");
        std::this_thread::sleep_for(600ms); // granted on the next beat
    }
    for (std::size_t i = 0; i < scenes; ++i) {
        End const& end = ends[(turn + i) % std::size(ends)];
        SCOPED_TRACE("scene " + std::to_string(i) + ' ' + end.name);
        ASSERT_TRUE(shows[i]->process.Running());
        end.act(*shows[i]);
        EXPECT_EQ(shows[i]->process.Wait(1s), 0) << shows[i]->process.Error();
    }
}

TEST(Unrest, EverySceneEndsWithinASecondWhenItIsClosedOrInterruptedOrTerminated) {
    for (std::size_t turn = 0; turn < std::size(ends); ++turn) end_in_every_scene(turn);
}

/// Whether nothing is on the stage.
bool empty_stage(XScreen const& screen) {
    auto const picture = screen.Look();
    return std::all_of(picture.pixels.begin(), picture.pixels.end(),
                       [&](std::uint32_t pixel) { return pixel == picture.pixels[0]; });
}

/// Waits until the stage is empty, or until it is not.
/// @return when that was; seconds
double wait_for_stage(XScreen const& screen, bool empty) {
    using namespace std::chrono;
    auto const until = steady_clock::now() + 5s;
    while (empty_stage(screen) != empty && steady_clock::now() < until) std::this_thread::sleep_for(10ms);
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

/// Stops the program in the first beats of the first scene for so long that the scene is over.
void expect_one_beat_a_frame(std::chrono::milliseconds stall) {
    constexpr double frame = 1.0 / 8; // seconds; a beat takes 0.45
    Show show(small({"-novsync", "-limit", "8"}));
    ASSERT_TRUE(show.open);
    show.process.Signal(SIGSTOP);
    std::this_thread::sleep_for(stall);
    show.process.Signal(SIGCONT);
    std::this_thread::sleep_for(200ms);
    // All words have swung away by now. The tag shows for three beats, until the white glass hides it for six; then the
    // next scene starts.
    wait_for_stage(show.screen, true);
    double const tag = wait_for_stage(show.screen, false);
    double const glass = wait_for_stage(show.screen, true);
    double const next = wait_for_stage(show.screen, false);
    EXPECT_NEAR(glass - tag, 3 * frame, 2 * frame);
    EXPECT_NEAR(next - glass, 6 * frame, 3 * frame);
    show.screen.Press("Escape");
    EXPECT_EQ(show.process.Wait(2s), 0);
}

TEST(Unrest, AStallIsCaughtUpOneBeatAFrame) {
    expect_one_beat_a_frame(7s);
    if (long_run()) expect_one_beat_a_frame(30s);
}

} // namespace
