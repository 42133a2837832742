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

std::vector<Window> fountain_windows(int length) {
    // clang-format off
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
    // clang-format on
}

std::vector<Window> greets_windows() {
    std::vector<Window> windows = fountain_windows(32);
    for (int k = 0; k < 8; ++k) windows.push_back({"SimpleModel", 2 * k, 16, true});
    return windows;
}

std::vector<std::vector<Event>> fountain_blinks() {
    return {every(4, 16, 0, strobe, 4), every(4, 16, 20, strobe, 4), every(4, 16, 40, strobe, 4),
            every(4, 16, 60, strobe, 4)};
}

std::vector<Event> swapper_blinks() {
    std::vector<Event> events = {
        {1500, strobe, 16},
        {1600, strobe, 16},
    };
    for (int k = 0; k < 6; ++k) {
        events.push_back({800 * k, break_up, 1});
        events.push_back({1600 * k + 400, strobe, 4});
    }
    for (int i = 0; i < 12; ++i) events.push_back({800 * i, break_up, 1});
    return events;
}

} // namespace

std::vector<Score> const& all() {
    static std::vector<Score> const scores = {
        {"Intro",
         intro_scene,
         16,
         {
             {"Blinker", 0, 16, true},
             {"Blinker", 0, 16, true},
             {"ShowModel", 0, 2, true},
             {"ShowModel", 1, 2, true},
             {"ShowModel", 2, 2, true},
             {"ShowModel", 3, 2, true},
             {"ShowModel", 4, 2, true},
             {"ShowModel", 5, 2, true},
             {"ShowModel", 6, 1, true},
             {"SimpleModel", 7, 9, true},
             {"BrokenModel", 10, 6, true},
             {"FlashBackground", 0, 16, false},
         },
         {{{1225, break_up, 1}, {1225, strobe, 2}, {1400, strobe, 2}}, every(1, 8, 25, strobe, 6)},
         {{9, 10, 11}, {2, 3, 4, 5, 6, 7, 8}}},
        {"Gun Girl",
         gungirl_scene,
         48,
         {
             {"SimpleModel", 4, 44, true},
             {"BrokenModel", 0, 4, true},
             {"GyroFuck", 8, 40, true},
             {"FlashBackground", 0, 48, false},
             {"Blinker", 0, 48, true},
         },
         {{{0, break_up, 1}, {400, strobe, 56}, {1600, flip, 1}, {2400, flip, 0}, {3200, flip, 1}, {4000, flip, 0}}},
         {{0, 1, 2, 3}}},
        {"Swapper",
         swapper_scene,
         96,
         {
             {"BrokenModel", 0, 16, true},
             {"BrokenModel", 16, 16, true},
             {"BrokenModel", 32, 16, true},
             {"BrokenModel", 48, 16, true},
             {"BrokenModel", 64, 16, true},
             {"BrokenModel", 80, 16, true},
             {"SimpleModel", 0, 96, false},
             {"BrokenModel", 0, 96, true},
             {"FlashBackground", 0, 96, false},
             {"Blinker", 0, 96, true},
         },
         {swapper_blinks()},
         {{0, 1, 2, 3, 4, 5, 6, 7, 8}}},
        {"Credits",
         credits_scene,
         24,
         {
             {"Blinker", 0, 24, true},
             {"SimpleModel", 0, 24, true},
             {"Blinker", 0, 24, true},
             {"SimpleModel", 0, 24, true},
             {"Blinker", 0, 24, true},
             {"SimpleModel", 0, 24, true},
             {"SimpleModel", 0, 24, true},
             {"FlashBackground", 0, 24, false},
         },
         {{{5, solid, 1},
           {5, strobe, 48},
           {400, solid, 0},
           {600, solid, 1},
           {700, solid, 0},
           {1200, solid, 1},
           {1300, solid, 0},
           {1500, solid, 1},
           {1600, solid, 0},
           {2100, solid, 1},
           {2200, solid, 0}},
          {{400, solid, 1},
           {500, solid, 0},
           {700, solid, 1},
           {800, solid, 0},
           {1300, solid, 1},
           {1400, solid, 0},
           {1600, solid, 1},
           {1600, strobe, 48},
           {2000, solid, 0},
           {2200, solid, 1},
           {2300, solid, 0}},
          {{500, solid, 1},
           {600, solid, 0},
           {800, solid, 1},
           {800, strobe, 48},
           {1200, solid, 0},
           {1400, solid, 1},
           {1500, solid, 0},
           {2000, solid, 1},
           {2100, solid, 0},
           {2300, solid, 1},
           {2400, solid, 0}}},
         {{1, 7}, {3, 7}, {5, 7}}},
        {"Tunnelgate",
         wire_scene,
         72,
         {
             {"Blinker", 0, 72, true},
             {"FlashBackground", 0, 72, false},
             {"PulseWire", 0, 72, true},
             {"SimpleModel", 0, 72, true},
             {"SimpleModel", 0, 72, true},
         },
         {every(1, 80, 0, strobe, 2)},
         {{1, 2, 3, 4}}},
        {"Plasma",
         plasma_scene,
         32,
         {
             {"FlashBackground", 0, 32, false},
             {"TextureMountain", 0, 32, true},
             {"SimpleModel", 0, 32, true},
             {"SimpleModel", 0, 32, true},
             {"SimpleModel", 0, 32, true},
             {"Blinker", 0, 32, true},
         },
         {{{0, strobe, 9000}, {2800, strobe, 9000}, {0, break_up, 1}, {2800, break_up, 1}}},
         {{2, 3, 4}}},
        {"Fountain", fountain_scene, 64, fountain_windows(64), fountain_blinks(), {{5}, {6}, {7}, {8}}},
        {"Greets", greets_scene, 32, greets_windows(), fountain_blinks(), {{5}, {6}, {7}, {8}}},
    };
    return scores;
}

} // namespace scores
