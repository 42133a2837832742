// SPDX-License-Identifier: MIT
#include "tests/show/scores.h"

#include <ostream>

namespace scores {

std::ostream& operator<<(std::ostream& out, Window const& w) {
    return out << w.name << ' ' << w.start << " for " << w.length << (w.relative ? " in view" : " fixed");
}

std::ostream& operator<<(std::ostream& out, Event const& e) {
    return out << e.at / 100.0 << " beats: " << e.type << ' ' << e.value;
}

namespace {

constexpr Type strobe = kore::BlinkerInterface::Strobe;
constexpr Type break_up = kore::BlinkerInterface::Break;
constexpr Type flip = kore::BlinkerInterface::Flip;
constexpr Type solid = kore::BlinkerInterface::Solid;

std::vector<Event> every(int beats, int count, int offset, Type type, int value) {
    std::vector<Event> events;
    for (int i = 0; i < count; ++i) events.push_back({100 * beats * i + offset, type, value});
    return events;
}

std::vector<Event> swapper_blinks() {
    std::vector<Event> events = {{1500, strobe, 16}, {1600, strobe, 16}};
    for (int k = 0; k < 6; ++k) {
        events.push_back({800 * k, break_up, 1});
        events.push_back({1600 * k + 400, strobe, 4});
    }
    for (int i = 0; i < 12; ++i) events.push_back({800 * i, break_up, 1});
    return events;
}

// clang-format off
Score intro() {
    std::vector<Window> const windows = {
        {"Blinker",         0,  16, true},
        {"Blinker",         0,  16, true},
        {"ShowModel",       0,  2,  true},
        {"ShowModel",       1,  2,  true},
        {"ShowModel",       2,  2,  true},
        {"ShowModel",       3,  2,  true},
        {"ShowModel",       4,  2,  true},
        {"ShowModel",       5,  2,  true},
        {"ShowModel",       6,  1,  true},
        {"SimpleModel",     7,  9,  true},
        {"BrokenModel",     10, 6,  true},
        {"FlashBackground", 0,  16, false},
    };
    return {"Intro", intro_scene, 16, 3183245, 0xf0dcf25fa892f92b, windows,
            {
             {
                 {1225, break_up, 1},
                 {1225, strobe,   2},
                 {1400, strobe,   2},
             },
             every(1, 8, 25, strobe, 6)
            },
            {{9, 10, 11}, {2, 3, 4, 5, 6, 7, 8}}};
}

Score gungirl() {
    std::vector<Window> const windows = {
        {"SimpleModel",     4, 44, true},
        {"BrokenModel",     0, 4,  true},
        {"GyroFuck",        8, 40, true},
        {"FlashBackground", 0, 48, false},
        {"Blinker",         0, 48, true},
    };
    return {"Gun Girl", gungirl_scene, 48, 10349809, 0xc9fe65ac673843ec, windows,
            {
             {
                 {0,    break_up, 1},
                 {400,  strobe,   56},
                 {1600, flip,     1},
                 {2400, flip,     0},
                 {3200, flip,     1},
                 {4000, flip,     0},
             }
            },
            {{0, 1, 2, 3}}};
}

Score swapper() {
    std::vector<Window> const windows = {
        {"BrokenModel",     0,  16, true},
        {"BrokenModel",     16, 16, true},
        {"BrokenModel",     32, 16, true},
        {"BrokenModel",     48, 16, true},
        {"BrokenModel",     64, 16, true},
        {"BrokenModel",     80, 16, true},
        {"SimpleModel",     0,  96, false},
        {"BrokenModel",     0,  96, true},
        {"FlashBackground", 0,  96, false},
        {"Blinker",         0,  96, true},
    };
    return {"Swapper", swapper_scene, 96, 43864768, 0x6152d300a124db2, windows,
            {
             swapper_blinks()
            },
            {{0, 1, 2, 3, 4, 5, 6, 7, 8}}};
}

Score credits() {
    std::vector<Window> const windows = {
        {"Blinker",         0, 24, true},
        {"SimpleModel",     0, 24, true},
        {"Blinker",         0, 24, true},
        {"SimpleModel",     0, 24, true},
        {"Blinker",         0, 24, true},
        {"SimpleModel",     0, 24, true},
        {"SimpleModel",     0, 24, true},
        {"FlashBackground", 0, 24, false},
    };
    return {"Credits", credits_scene, 24, 4166455, 0x36ef6470f4fc0b2, windows,
            {
             {
                 {5,    solid,  1},
                 {5,    strobe, 48},
                 {400,  solid,  0},
                 {600,  solid,  1},
                 {700,  solid,  0},
                 {1200, solid,  1},
                 {1300, solid,  0},
                 {1500, solid,  1},
                 {1600, solid,  0},
                 {2100, solid,  1},
                 {2200, solid,  0},
             },
             {
                 {400,  solid,  1},
                 {500,  solid,  0},
                 {700,  solid,  1},
                 {800,  solid,  0},
                 {1300, solid,  1},
                 {1400, solid,  0},
                 {1600, solid,  1},
                 {1600, strobe, 48},
                 {2000, solid,  0},
                 {2200, solid,  1},
                 {2300, solid,  0},
             },
             {
                 {500,  solid,  1},
                 {600,  solid,  0},
                 {800,  solid,  1},
                 {800,  strobe, 48},
                 {1200, solid,  0},
                 {1400, solid,  1},
                 {1500, solid,  0},
                 {2000, solid,  1},
                 {2100, solid,  0},
                 {2300, solid,  1},
                 {2400, solid,  0},
             }
            },
            {{1, 7}, {3, 7}, {5, 7}}};
}

Score tunnelgate() {
    std::vector<Window> const windows = {
        {"Blinker",         0, 72, true},
        {"FlashBackground", 0, 72, false},
        {"PulseWire",       0, 72, true},
        {"SimpleModel",     0, 72, true},
        {"SimpleModel",     0, 72, true},
    };
    return {"Tunnelgate", wire_scene, 72, 14406457, 0xf6f726097935d2c4, windows,
            {
             every(1, 80, 0, strobe, 2)
            },
            {{1, 2, 3, 4}}};
}

Score plasma() {
    std::vector<Window> const windows = {
        {"FlashBackground", 0, 32, false},
        {"TextureMountain", 0, 32, true},
        {"SimpleModel",     0, 32, true},
        {"SimpleModel",     0, 32, true},
        {"SimpleModel",     0, 32, true},
        {"Blinker",         0, 32, true},
    };
    return {"Plasma", plasma_scene, 32, 81782640, 0xfacdb72f66d57675, windows,
            {
             {
                 {0,    strobe,   9000},
                 {2800, strobe,   9000},
                 {0,    break_up, 1},
                 {2800, break_up, 1},
             }
            },
            {{2, 3, 4}}};
}

/// What the fountain and the greetings share.
std::vector<Window> shell_windows(int length) {
    return {
        {"Blinker",         0, length, true},
        {"Blinker",         0, length, true},
        {"Blinker",         0, length, true},
        {"Blinker",         0, length, true},
        {"FlashBackground", 0, length, false},
        {"TorusFountain",   0, length, true},
        {"SimpleModel",     0, length, true},
        {"SimpleModel",     0, length, true},
        {"SimpleModel",     0, length, true},
    };
}

std::vector<std::vector<Event>> shell_blinks() {
    return {every(4, 16, 0, strobe, 4), every(4, 16, 20, strobe, 4), every(4, 16, 40, strobe, 4),
            every(4, 16, 60, strobe, 4)};
}

Score fountain() {
    return {"Fountain", fountain_scene, 64, 11229075, 0x575a8dfb5551baa9, shell_windows(64),
            shell_blinks(),
            {{5}, {6}, {7}, {8}}};
}

Score greets() {
    std::vector<Window> windows = shell_windows(32);
    for (int k = 0; k < 8; ++k) windows.push_back({"SimpleModel", 2 * k, 16, true});
    return {"Greets", greets_scene, 32, 5670121, 0xfddd8a77217ab8b3, windows,
            shell_blinks(),
            {{5}, {6}, {7}, {8}}};
}
// clang-format on

} // namespace

std::vector<Score> const& all() {
    static std::vector<Score> const scores = {
        intro(), gungirl(), swapper(), credits(), tunnelgate(), plasma(), fountain(), greets(),
    };
    return scores;
}

int first_beat(std::size_t scene) {
    int beats = 0;
    for (std::size_t i = 0; i < scene; ++i) beats += all().at(i).length;
    return beats;
}

} // namespace scores
