// SPDX-License-Identifier: MIT
#include "tools/film/plan.h"

#include <algorithm>

namespace {

std::string plan_beats(Timetable const& timetable, std::string const& scene, FilmOptions const& options,
                       FrameGrid const& grid, FilmPlan& plan) {
    ScenePlace const show{"", "the show", 0, timetable.back().first + timetable.back().length, {}};
    ScenePlace const* const place = scene.empty() ? &show : find_scene(timetable, scene);
    if (!place) return "no scene is called '" + scene + "'; there are " + scene_list(timetable);
    Millibeats const length = place->length * one_beat;
    Millibeats const last = std::max(options.from.value_or(0), options.to.value_or(0));
    if (last > length) {
        return "beat " + short_beat(last) + " lies past the end of " + place->title + ", which has " +
               std::to_string(place->length) + " beats";
    }
    plan.first = grid.FrameAt(place->Begin() + options.from.value_or(0));
    if (options.to || !scene.empty()) plan.end = grid.FrameAt(place->Begin() + options.to.value_or(length));
    return plan.first < plan.end ? "" : "there is no frame between these beats";
}

std::string plan_frames(FrameRange const& frames, FilmPlan& plan) {
    plan.first = frames.from.value_or(0);
    plan.end = frames.to.value_or(plan.whole);
    if (plan.end <= plan.whole && plan.first < plan.end) return "";
    int const last = frames.to ? *frames.to - 1 : plan.first;
    return "there is no frame " + std::to_string(last) + ": the film has " + std::to_string(plan.whole) +
           ", counted from 0";
}

} // namespace

std::string plan_film(Timetable const& timetable, std::string const& scene, FilmOptions const& options, FrameRate rate,
                      Soundtrack const& music, FilmPlan& plan) {
    FrameGrid const grid(rate);
    FilmPlan found{.rate = rate};
    found.drawn = grid.FrameAt(timetable.back().End());
    found.whole = std::max(found.drawn, static_cast<int>(rate.FramesFor(music.samples, music.rate)));
    found.end = found.whole;
    std::string error =
        options.frames ? plan_frames(*options.frames, found) : plan_beats(timetable, scene, options, grid, found);
    if (error.empty()) plan = found;
    return error;
}
