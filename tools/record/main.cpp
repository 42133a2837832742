// SPDX-License-Identifier: MIT
#include "effekt/look.h"
#include "runtime/commandline.h"
#include "runtime/datafolder.h"
#include "runtime/frame.h"
#include "runtime/playback.h"
#include "show/datacheck.h"
#include "show/show.h"
#include "tools/files/newfile.h"
#include "tools/files/png.h"
#include "tools/files/streams.h"
#include "tools/film/canvas.h"
#include "tools/film/film.h"
#include "tools/offscreen/offscreencontext.h"
#include "tools/record/options.h"
#include "tools/record/sheet.h"
#include "tools/record/timetable.h"
#include "tools/timeline/timelinesvg.h"

#include <algorithm>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// One picture to take.
struct Shot {
    int frame;
    std::string file;  ///< name without the folder
    std::string label; ///< on the sheet
};

void print_list(Timetable const& timetable) {
    std::cout << "name       first beat  beats  title\n";
    for (ScenePlace const& place : timetable) {
        std::cout << std::left << std::setw(11) << place.name << std::right << std::setw(10) << place.first
                  << std::setw(7) << place.length << "  " << place.title << '\n';
    }
}

Shot make_shot(Timetable const& timetable, RecordOptions const& options, Millibeats asked, Millibeats at) {
    ScenePlace const& place = *scene_at(timetable, at);
    std::string const prefix = options.scene.empty() ? "beat" : place.name;
    return {frame_at(at), prefix + "_" + padded_beat(asked), place.title + " " + short_beat(at - place.Begin())};
}

/// Turns the requested beats into frames, in order.
/// @return false, after an error line, if one lies outside the scene or the show
bool plan_shots(Timetable const& timetable, RecordOptions const& options, std::vector<Shot>& shots) {
    ScenePlace const show{"", "the show", 0, timetable.back().first + timetable.back().length, {}};
    ScenePlace const* const scene = options.scene.empty() ? &show : find_scene(timetable, options.scene);
    if (!scene) {
        complain("no scene is called '" + options.scene + "'; there are " + scene_list(timetable));
        return false;
    }
    int const after = options.frame_after ? 1 : 0;
    for (Millibeats const asked : options.beats) {
        Millibeats const at = scene->Begin() + asked;
        if (at >= scene->End() || !frame_is_before(frame_at(at) + after, scene->End())) {
            complain("beat " + short_beat(asked) + " lies past the last frame of " + scene->title + ", which has " +
                     std::to_string(scene->length) + " beats");
            return false;
        }
        Shot shot = make_shot(timetable, options, asked, at);
        shots.push_back(shot);
        if (options.frame_after) shots.push_back({shot.frame + 1, shot.file + "b", shot.label + "b"});
    }
    return true;
}

bool make_folder(fs::path const& folder) {
    if (folder.empty()) return true;
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) complain("cannot make the folder " + folder.string() + ": " + error.message());
    return !error;
}

/// The caller's paths are relative to the caller's folder, not to that of the data.
bool make_absolute(std::string& path) {
    if (path.empty()) return true;
    std::error_code error;
    path = fs::absolute(path, error).lexically_normal().string();
    if (error) complain("cannot tell the working folder: " + error.message());
    return !error;
}

bool save(sf::Image const& image, fs::path const& path) {
    if (std::string const error = write_png(path.string(), image); !error.empty()) {
        complain(error);
        return false;
    }
    std::cout << (isatty(STDOUT_FILENO) ? printable(path.string()) : path.string()) << std::endl;
    return true;
}

/// Plays the show up to the last shot; writes pictures on the way and the sheet at the end.
bool take(std::vector<Shot> const& shots, RecordOptions const& options, Playback& playback, Canvas& canvas) {
    std::vector<std::size_t> in_time(shots.size());
    for (std::size_t i = 0; i < shots.size(); ++i) in_time[i] = i;
    std::stable_sort(in_time.begin(), in_time.end(),
                     [&](std::size_t a, std::size_t b) { return shots[a].frame < shots[b].frame; });

    std::vector<SheetCell> cells(shots.size());
    sf::Image picture;
    for (std::size_t const i : in_time) {
        if (playback.NextFrame() <= shots[i].frame) {
            playback.SkipTo(shots[i].frame);
            playback.Draw();
            picture = canvas.Image();
        }
        if (!options.folder.empty() && !save(picture, fs::path(options.folder) / (shots[i].file + ".png")))
            return false;
        if (!options.sheet.empty()) cells[i] = {shrink_for_sheet(picture), shots[i].label};
    }
    return options.sheet.empty() || save(make_sheet(cells, options.columns), options.sheet);
}

/// The moments of all scenes, in beats of the show.
std::vector<Millibeats> overview(Timetable const& timetable) {
    std::vector<Millibeats> beats;
    for (ScenePlace const& place : timetable) {
        for (Millibeats const moment : place.moments) beats.push_back(place.Begin() + moment);
    }
    return beats;
}

int draw_timeline(kore::Demo& demo, std::string const& path) {
    Timeline const timeline = make_timeline(demo, models.get(), beat_seconds);
    Waveform const waveform = read_waveform(soundtrack_file, static_cast<double>(beat_seconds));
    std::string const error = write_file(path, timeline_svg(timeline, waveform, window_title));
    if (!error.empty()) return complain(error);
    std::cout << printable(path) << std::endl;
    return 0;
}

int record(RecordOptions options) {
    if (std::string const wrong = check_meshes(); !wrong.empty()) return complain(wrong);
    OffscreenContext context;
    if (!context.Open()) return complain("EGL offers no OpenGL context to draw off-screen with");
    Canvas canvas;
    if (std::string const error = canvas.Create(shape_of(options)); !error.empty()) return complain(error);
    init_gl();
    kore::Demo demo(beat_seconds);
    init_demo(demo, nullptr, beat_seconds);
    Timetable const timetable = make_timetable(demo);
    if (options.list) {
        print_list(timetable);
        return 0;
    }
    if (!options.timeline.empty()) return draw_timeline(demo, options.timeline);
    if (options.overview) options.beats = overview(timetable);
    std::vector<Shot> shots;
    if (!plan_shots(timetable, options, shots)) return 1;
    if (!options.folder.empty()) {
        std::string const error = refuse_size("a picture", {options.width, options.height});
        if (!error.empty()) return complain(error);
    }
    if (!options.sheet.empty()) {
        PictureSize const size = sheet_size(shots.size(), options.columns, {options.width, options.height});
        if (std::string const error = refuse_size("the sheet", size); !error.empty()) return complain(error);
    }
    if (!make_folder(options.folder) || !make_folder(fs::path(options.sheet).parent_path())) return 1;
    if (!options.sheet.empty()) {
        if (std::string const error = refuse_target(options.sheet); !error.empty()) return complain(error);
    }
    Playback playback(demo, recorded_rate);
    return take(shots, options, playback, canvas) ? 0 : 1;
}

int run(int argc, char** argv) {
    RecordOptions options;
    if (auto const status = read_command_line(argc, argv, options)) return *status;
    effect::look = {.standard_wire = options.wire, .calm = options.calm};
    for (std::string* const path : {&options.folder, &options.sheet, &options.timeline, &options.film.file}) {
        if (!make_absolute(*path)) return 1;
    }
    if (std::string const missing = enter_data_folder(HARDSILENCE_SHARE, mesh_files().front().name); !missing.empty())
        return complain(missing);
    return options.film.Wanted() ? make_film(options) : record(options);
}

} // namespace

int main(int argc, char** argv) {
    return run_tool(recorder_name, [=] { return run(argc, argv); });
}
