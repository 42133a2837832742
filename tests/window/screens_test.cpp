// SPDX-License-Identifier: MIT
// The show on the screens that people have: full screen and in a window, with a window manager and without.

#include "tests/window/playing.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr std::uint32_t white = 0xffffff;
constexpr std::uint32_t black = 0;

/// Whether a picture is white up to the corners of an area, and black in the rest of another.
bool covers(XScreen::Picture const& picture, Area const& area, Area const& around) {
    Area const all{0, 0, picture.width, picture.height};
    if (shared(all, area) != area || shared(all, around) != around) return false;
    int const right = area.x + area.width - 1;
    int const bottom = area.y + area.height - 1;
    for (int const x : {area.x, right}) {
        for (int const y : {area.y, bottom}) {
            if (picture.At(x, y) != white) return false;
        }
    }
    for (int y = around.y; y < around.y + around.height; ++y) {
        for (int x = around.x; x < around.x + around.width; ++x) {
            bool const inside = x >= area.x && x <= right && y >= area.y && y <= bottom;
            if (!inside && picture.At(x, y) != black) return false;
        }
    }
    return true;
}

/// The show on a screen of this size, in the desktop's manner unless the environment says otherwise.
class OnScreen {
public:
    explicit OnScreen(std::string const& size, bool managed = true) : screen({}, size) {
        if (managed) screen.Manage();
    }
    explicit OnScreen(XScreen::Switched const& start) : screen(start) {}
    explicit OnScreen(XScreen::Wayland const& desktop) : screen(desktop), wayland(true) {}

    void Start(std::vector<std::string> options = {},
               std::vector<std::string> environment = {"HARDSILENCE_DESKTOP=1"}) {
        options.insert(options.begin(), {window::program, "-nofsaa", "-mute"});
        environment.push_back("DISPLAY=" + screen.Name());
        process = std::make_unique<Process>(options, environment);
        open = screen.FindShow();
        std::this_thread::sleep_for(400ms); // until it stands where it shall
    }

    /// Waits until the picture covers this area of the screen and no more: white up to its corners, as it is between
    /// two strobes of the first scene, and black all around.
    bool Covers(Area const& area, Area const& around) const {
        auto const until = std::chrono::steady_clock::now() + 6s;
        while (!covers(wayland ? screen.Look() : screen.LookAtAll(), area, around)) {
            if (std::chrono::steady_clock::now() > until) return false;
            std::this_thread::sleep_for(20ms);
        }
        return true;
    }

    std::optional<int> End() {
        screen.Press("Escape");
        return process->Wait(3s);
    }

    XScreen screen;
    std::unique_ptr<Process> process;
    bool open = false;
    bool wayland = false; ///< only the window can be seen
};

struct ScreenRow {
    Area screen;
    char const* depth;
    Area picture; ///< 4:3, in the middle
};

// clang-format off
constexpr ScreenRow screens[] = {
    {{0, 0, 1024, 768},  "24", {0, 0, 1024, 768}},
    {{0, 0, 1280, 720},  "24", {160, 0, 960, 720}},
    {{0, 0, 1280, 720},  "16", {160, 0, 960, 720}},
    {{0, 0, 1366, 768},  "24", {171, 0, 1024, 768}},
    {{0, 0, 1920, 1080}, "24", {240, 0, 1440, 1080}},
    {{0, 0, 3440, 1440}, "24", {760, 0, 1920, 1440}},
    {{0, 0, 3840, 2160}, "24", {480, 0, 2880, 2160}},
    {{0, 0, 1080, 1920}, "24", {0, 555, 1080, 810}},
};
// clang-format on

std::string size_of(ScreenRow const& row) {
    return std::to_string(row.screen.width) + 'x' + std::to_string(row.screen.height) + 'x' + row.depth;
}

void expect_full_screen(ScreenRow const& row, bool managed) {
    SCOPED_TRACE(size_of(row) + (managed ? ", managed" : ""));
    OnScreen show(size_of(row), managed);
    show.Start();
    ASSERT_TRUE(show.open) << show.process->Error();
    EXPECT_TRUE(show.Covers(row.picture, row.screen));
    EXPECT_EQ(show.screen.WindowPlace(), row.screen);
    EXPECT_THAT(show.process->Error(), Not(HasSubstr("X Error")));
    EXPECT_EQ(show.End(), 0);
}

TEST(FullScreen, Has43InTheMiddleAndBlackBesideItWithAWindowManager) {
    for (ScreenRow const& row : screens) expect_full_screen(row, true);
}

TEST(FullScreen, Has43InTheMiddleAndBlackBesideItWithoutAWindowManager) {
    for (ScreenRow const& row : screens) expect_full_screen(row, false);
}

TEST(FullScreen, IsFilledWhenStretched) {
    OnScreen show("1280x720x24");
    show.Start({}, {"HARDSILENCE_DESKTOP=1", "HARDSILENCE_STRETCH=1"});
    ASSERT_TRUE(show.open) << show.process->Error();
    Area const all{0, 0, 1280, 720};
    EXPECT_TRUE(show.Covers(all, all));
    EXPECT_EQ(show.End(), 0);
}

/// Two monitors beside each other, the second the primary one.
class TwoMonitors : public testing::TestWithParam<bool> {
protected:
    TwoMonitors() : show("1824x768x24", GetParam()) {
        show.screen.Randr({"--setmonitor", "left", "1024/300x768/225+0+0", "screen"});
        show.screen.Randr({"--setmonitor", "*right", "800/250x600/190+1024+0", "none"});
    }
    OnScreen show;
    Area const left{0, 0, 1024, 768};
    Area const right{1024, 0, 800, 600};
};

TEST_P(TwoMonitors, OneIsFilledAndTheOtherLeftAlone) {
    show.Start();
    ASSERT_TRUE(show.open) << show.process->Error();
    EXPECT_TRUE(show.Covers(right, right));
    EXPECT_EQ(show.screen.WindowPlace(), right);
    EXPECT_EQ(show.End(), 0);
}

TEST_P(TwoMonitors, AreChosenByNumber) {
    show.Start({}, {"HARDSILENCE_DESKTOP=1", "HARDSILENCE_MONITOR=1"});
    ASSERT_TRUE(show.open) << show.process->Error();
    EXPECT_TRUE(show.Covers(left, left));
    EXPECT_EQ(show.screen.WindowPlace(), left);
    EXPECT_EQ(show.End(), 0);
}

TEST_P(TwoMonitors, AreListed) {
    Process list({window::program}, {"DISPLAY=" + show.screen.Name(), "HARDSILENCE_MONITOR=list"});
    EXPECT_EQ(list.Wait(5s), 0);
    EXPECT_EQ(list.Output(), "1  1024x768 at 0,0  left\n2  800x600 at 1024,0  right, primary\n");
    EXPECT_EQ(list.Error(), "");
}

TEST_P(TwoMonitors, AreNotThree) {
    Process third({window::program}, {"DISPLAY=" + show.screen.Name(), "HARDSILENCE_MONITOR=3"});
    EXPECT_EQ(third.Wait(5s), 1);
    EXPECT_EQ(third.Error(), "There is no monitor 3; the last one is 2.\n");
}

INSTANTIATE_TEST_SUITE_P(Managed, TwoMonitors, testing::Bool());

/// The room between the show's window and the edges of the screen.
void expect_whole_and_centred(OnScreen const& show, int width, int height) {
    Area const place = show.screen.WindowPlace();
    int const right = width - place.x - place.width;
    int const bottom = height - place.y - place.height;
    EXPECT_GE(place.x, 0);
    EXPECT_GE(place.y, 0);
    EXPECT_NEAR(place.x, right, 2);
    EXPECT_GE(bottom, 0);
    EXPECT_NEAR(place.y, bottom, 40); // the title bar is above
}

TEST(InAWindow, TheShowOpensWholeAndInTheMiddle) {
    for (bool const managed : {true, false}) {
        for (char const* width : {"", "1024", "5000"}) {
            SCOPED_TRACE(std::string(width) + (managed ? ", managed" : ""));
            OnScreen show("1280x720x24", managed);
            std::vector<std::string> options = {"-w"};
            if (*width) options.insert(options.end(), {"-width", width});
            show.Start(options);
            ASSERT_TRUE(show.open) << show.process->Error();
            expect_whole_and_centred(show, 1280, 720);
            Area const place = show.screen.WindowPlace();
            EXPECT_EQ(place.height, place.width * 3 / 4);
            EXPECT_TRUE(show.Covers(place, place));
            EXPECT_EQ(show.End(), 0);
        }
    }
}

TEST(InAWindow, TheSizeIsThreeQuartersOfTheScreensOrAsAskedFor) {
    for (auto const& [options, width] :
         std::vector<std::pair<std::vector<std::string>, int>>{{{"-w"}, 2160}, {{"-w", "-width", "640"}, 640}}) {
        OnScreen show("3840x2160x24", false);
        show.Start(options);
        ASSERT_TRUE(show.open) << show.process->Error();
        EXPECT_EQ(show.screen.WindowPlace().width, width);
        EXPECT_EQ(show.End(), 0);
    }
}

TEST(InAWindow, ThePictureStays43WhenItIsResized) {
    OnScreen show("1280x720x24");
    show.Start({"-w", "-width", "400"});
    ASSERT_TRUE(show.open) << show.process->Error();
    show.screen.Resize(600, 300);
    std::this_thread::sleep_for(300ms);
    Area const place = show.screen.WindowPlace();
    ASSERT_EQ(place.width, 600);
    EXPECT_TRUE(show.Covers({place.x + 100, place.y, 400, 300}, place));
    EXPECT_EQ(show.End(), 0);
}

TEST(InAWindow, F11AndAltEnterFillTheScreenAndGiveItBack) {
    Area const all{0, 0, 1280, 720};
    for (bool const managed : {true, false}) {
        for (char const* keys : {"F11", "alt+Return"}) {
            SCOPED_TRACE(std::string(keys) + (managed ? ", managed" : ""));
            OnScreen show("1280x720x24", managed);
            show.Start({"-w", "-width", "400"});
            ASSERT_TRUE(show.open) << show.process->Error();
            Area const place = show.screen.WindowPlace();
            show.screen.Press(keys);
            EXPECT_TRUE(show.Covers({160, 0, 960, 720}, all));
            show.screen.Press(keys);
            std::this_thread::sleep_for(300ms);
            EXPECT_EQ(show.screen.WindowPlace(), place);
            EXPECT_TRUE(show.Covers(place, place));
            EXPECT_EQ(show.End(), 0);
        }
    }
}

TEST(Exact, AWindowOpensWholeAndInTheMiddle) {
    OnScreen show("1920x1080x24");
    show.Start({"-w"}, {});
    ASSERT_TRUE(show.open) << show.process->Error();
    expect_whole_and_centred(show, 1920, 1080);
    EXPECT_EQ(show.screen.WindowPlace().width, 1024);
    EXPECT_EQ(show.End(), 0);
}

TEST(Exact, AModeThatDoesNotFitTheDesktopIsNotSwitchedTo) {
    OnScreen show(XScreen::Switched{"1280x720"});
    show.Start({}, {});
    ASSERT_TRUE(show.open) << show.process->Error();
    EXPECT_THAT(show.process->Error(),
                HasSubstr("This screen cannot be switched to 1024x768; the show plays in a window.\n"));
    EXPECT_EQ(show.screen.WindowPlace().width, 1024);
    EXPECT_EQ(show.End(), 0);
}

TEST(Exact, AModeThatFitsIsSwitchedTo) {
    OnScreen show(XScreen::Switched{"1920x1080"});
    show.Start({}, {});
    ASSERT_TRUE(show.open) << show.process->Error();
    EXPECT_THAT(show.process->Error(), Not(HasSubstr("cannot be switched")));
    EXPECT_EQ(show.screen.WindowPlace(), (Area{0, 0, 1024, 768}));
    EXPECT_EQ(show.End(), 0);
}

TEST(FullScreen, LeavesTheVideoModeAlone) {
    OnScreen show(XScreen::Switched{"1280x720"});
    show.Start();
    ASSERT_TRUE(show.open) << show.process->Error();
    EXPECT_TRUE(show.Covers({160, 0, 960, 720}, {0, 0, 1280, 720}));
    EXPECT_EQ(show.End(), 0);
}

TEST(Wayland, HasFullScreenAsXHas) {
    OnScreen show(XScreen::Wayland{1280, 720});
    show.Start();
    ASSERT_TRUE(show.open) << show.process->Error();
    Area const all{0, 0, 1280, 720};
    EXPECT_TRUE(show.Covers({160, 0, 960, 720}, all));
    EXPECT_EQ(show.screen.WindowPlace(), all);
    show.process->Signal(SIGTERM);
    EXPECT_EQ(show.process->Wait(2s), 0);
}

TEST(Wayland, PlacesAWindowItselfAndLeavesItsSizeAlone) {
    OnScreen show(XScreen::Wayland{1280, 720});
    show.Start({"-w"});
    ASSERT_TRUE(show.open) << show.process->Error();
    EXPECT_TRUE(show.Covers({0, 0, 720, 540}, {0, 0, 720, 540}));
    show.process->Signal(SIGTERM);
    EXPECT_EQ(show.process->Wait(2s), 0);
}

TEST(Wayland, SwitchesToNoModeThatItLacks) {
    OnScreen show(XScreen::Wayland{1280, 720});
    show.Start({}, {});
    ASSERT_TRUE(show.open) << show.process->Error();
    EXPECT_THAT(show.process->Error(), HasSubstr("the show plays in a window.\n"));
    show.process->Signal(SIGTERM);
    EXPECT_EQ(show.process->Wait(2s), 0);
}

TEST(Servers, WithoutRandrGiveAWindow) {
    XScreen const old({"-extension", "RANDR"}, "1280x720x24");
    Process process({window::program, "-nofsaa", "-mute"}, {"DISPLAY=" + old.Name(), "HARDSILENCE_DESKTOP=1"});
    EXPECT_EQ(process.Wait(1500ms), std::nullopt);
    EXPECT_THAT(process.Error(), HasSubstr("This display offers no full-screen modes; the show plays in a window.\n"));
    process.Signal(SIGTERM);
    EXPECT_EQ(process.Wait(2s), 0);
}

TEST(Servers, WithoutGlxAreToldInOneLine) {
    XScreen const server({"-extension", "GLX"});
    for (char const* desktop : {"HARDSILENCE_DESKTOP=1", "HARDSILENCE_DESKTOP"}) {
        Process process({window::program, "-nofsaa", "-mute"}, {"DISPLAY=" + server.Name(), desktop});
        EXPECT_EQ(process.Wait(5s), 1);
        EXPECT_EQ(process.Error(), "This display offers no OpenGL: its X server lacks the GLX extension.\n");
    }
}

} // namespace
