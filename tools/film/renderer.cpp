// SPDX-License-Identifier: MIT
#include "tools/film/renderer.h"

#include "runtime/frame.h"
#include "runtime/playback.h"
#include "show/datacheck.h"
#include "tools/film/descriptors.h"
#include "tools/offscreen/offscreencontext.h"
#include "tools/record/options.h"

#include <algorithm>
#include <cstdlib>
#include <thread>

namespace {

int draw_pictures(RenderTask const& task, RenderShare const& share, FilmPlan const& plan, kore::Demo& demo,
                  Canvas& canvas) {
    Playback playback(demo, task.rate.PerSecond());
    std::size_t place = 0;
    int const step = static_cast<int>(share.jobs);
    for (int k = plan.FirstPicture() + static_cast<int>(share.number); k < plan.EndOfPictures(); k += step) {
        playback.SkipTo(k);
        playback.Draw();
        char token = 0;
        if (!read_all(share.free, &token, 1)) return 1;
        canvas.Read(share.pictures + place * task.shape.Bytes());
        if (!write_all(share.ready, "+", 1)) return 1;
        place = (place + 1) % share.places;
    }
    return 0;
}

/// Mesa's software driver starts a thread for every core in every process, unless it is told.
void share_cores(unsigned int jobs) {
    unsigned int const threads = std::max(std::thread::hardware_concurrency() / jobs, 1u);
    if (jobs > 1) setenv("LP_NUM_THREADS", std::to_string(threads).c_str(), 0); // 0: the user's own stays
}

} // namespace

int render(RenderTask const& task, RenderShare const& share) {
    share_cores(share.jobs);
    // What would be wrong in every process is said by the first.
    auto const fail = [&](std::string const& why) { return share.number == 0 ? complain(why) : 1; };
    OffscreenContext context;
    if (!context.Open()) return fail("EGL offers no OpenGL context to draw off-screen with");
    Canvas canvas;
    if (std::string const error = canvas.Create(task.shape); !error.empty()) return fail(error);
    if (std::string const wrong = check_meshes(); !wrong.empty()) return fail(wrong);
    init_gl();
    kore::Demo demo(beat_seconds);
    init_demo(demo, nullptr, beat_seconds);
    FilmPlan plan;
    std::string const error = plan_film(make_timetable(demo), task.scene, task.film, task.rate, task.music, plan);
    if (!error.empty()) return fail(error);
    if (share.number == 0 && !write_all(share.ready, &plan, sizeof plan)) return 1;
    return draw_pictures(task, share, plan, demo, canvas);
}
