// SPDX-License-Identifier: MIT
#include "tools/record/timetable.h"

#include <cctype>
#include <cmath>

namespace {

std::string lower_case(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

Millibeats to_millibeats(float beats) { return static_cast<Millibeats>(std::lround(beats * one_beat)); }

} // namespace

Timetable make_timetable(kore::Demo& demo, std::span<SceneEntry const> scenes) {
    Timetable timetable;
    int first = 0;
    for (std::size_t i = 0; i < scenes.size(); ++i) {
        int const length = demo.GetScenes()[i]->GetLength();
        timetable.push_back({scenes[i].name, scenes[i].title, first, length, {}});
        for (float const beats : scenes[i].moments) timetable.back().moments.push_back(to_millibeats(beats));
        first += length;
    }
    return timetable;
}

ScenePlace const* find_scene(Timetable const& timetable, std::string const& name) {
    std::string const wanted = lower_case(name);
    for (ScenePlace const& place : timetable) {
        if (wanted == lower_case(place.name) || wanted == lower_case(place.title)) return &place;
    }
    return nullptr;
}

ScenePlace const* scene_at(Timetable const& timetable, Millibeats at) {
    for (ScenePlace const& place : timetable) {
        if (at < place.End()) return &place;
    }
    return nullptr;
}

std::string scene_list(Timetable const& timetable) {
    std::string list;
    for (ScenePlace const& place : timetable) list += (list.empty() ? "" : ", ") + place.name;
    return list;
}
