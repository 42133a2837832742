// SPDX-License-Identifier: MIT
// The show as the page's script sees it: functions of plain names, numbers and texts. Times are frames of the show, 60
// a second: its strobes are made of frames, so every screen shows the same ones.

#include "show/show.h"
#include "effekt/look.h"
#include "runtime/frame.h"
#include "runtime/playback.h"
#include "web/gl/fixedgl.h"
#include "web/page/browserdriver.h"

#include <emscripten.h>
#include <emscripten/html5_webgl.h>
#include <fstream>
#include <optional>
#include <sys/stat.h>

namespace {

constexpr int frame_rate = 60;
constexpr char const* canvas = "#picture";

/// One making of the show; playing it backwards takes a new one.
struct Run {
    kore::Demo demo{beat_seconds};
    std::optional<Playback> playback;

    Run() {
        init_demo(demo, nullptr, beat_seconds);
        playback.emplace(demo, static_cast<float>(frame_rate));
    }
};

std::optional<Run> run;
EMSCRIPTEN_WEBGL_CONTEXT_HANDLE context = 0;

/// Deletes all display lists: a new run compiles its own.
void delete_lists() {
    constexpr GLsizei all = 1 << 24;
    run.reset();
    models.reset();
    glDeleteLists(1, all);
}

bool make_context() {
    EmscriptenWebGLContextAttributes wishes;
    emscripten_webgl_init_context_attributes(&wishes);
    wishes.majorVersion = 2;
    wishes.alpha = false;
    wishes.depth = true;
    wishes.stencil = false;
    wishes.antialias = true;
    wishes.powerPreference = EM_WEBGL_POWER_PREFERENCE_HIGH_PERFORMANCE;
    context = emscripten_webgl_create_context(canvas, &wishes);
    return context > 0 && emscripten_webgl_make_context_current(context) == EMSCRIPTEN_RESULT_SUCCESS;
}

} // namespace

extern "C" {

/// Stores a file that the show loads, below data/.
EMSCRIPTEN_KEEPALIVE void add_file(char const* name, char const* bytes, int size) {
    mkdir("data", 0777);
    std::ofstream(std::string("data/") + name, std::ios::binary).write(bytes, size);
}

/// Opens the canvas for drawing, once it and the files are there. Also after its context was lost and is back.
/// @return 0, or 1 where there is no WebGL 2
EMSCRIPTEN_KEEPALIVE int open_picture() {
    if (context == 0 && !make_context()) return 1;
    if (!fixedgl::open(browser_driver())) return 1;
    init_gl();
    return 0;
}

/// The canvas's context is lost: all that was made in it is gone.
EMSCRIPTEN_KEEPALIVE void lose_picture() {
    run.reset();
    models.reset();
    fixedgl::forget();
}

/// Makes the show.
/// @param calm  without strobes
EMSCRIPTEN_KEEPALIVE void make_show(bool calm) {
    delete_lists();
    effect::look = {true, calm};
    run.emplace();
}

/// @param width, height  of the canvas, pixels
/// @param scale          pixels to a dot of the page: lines are as much wider
EMSCRIPTEN_KEEPALIVE void resize_picture(int width, int height, float scale) {
    fixedgl::scale_lines(scale);
    glViewport(0, 0, width, height);
}

/// @return the frame that comes next; an earlier one takes a new show
EMSCRIPTEN_KEEPALIVE int next_frame() { return run->playback->NextFrame(); }

/// Plays up to a frame, all before it unseen, and draws it.
EMSCRIPTEN_KEEPALIVE void draw_frame_at(int frame) {
    run->playback->SkipTo(frame);
    run->playback->Draw();
    fixedgl::flush();
}

/// Draws the frame that was drawn last once more.
EMSCRIPTEN_KEEPALIVE void draw_again() {
    run->playback->DrawAgain();
    fixedgl::flush();
}

/// The scenes, first to last; the number of beats takes a show.
EMSCRIPTEN_KEEPALIVE int scene_count() { return static_cast<int>(running_order().size()); }
EMSCRIPTEN_KEEPALIVE char const* scene_title(int scene) {
    return running_order()[static_cast<std::size_t>(scene)].title;
}
EMSCRIPTEN_KEEPALIVE int scene_beats(int scene) {
    return run->demo.GetScenes()[static_cast<std::size_t>(scene)]->GetLength();
}

EMSCRIPTEN_KEEPALIVE float beat_length() { return beat_seconds; }
EMSCRIPTEN_KEEPALIVE int frames_a_second() { return frame_rate; }

} // extern "C"
