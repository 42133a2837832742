// SPDX-License-Identifier: MIT
// What the show costs besides OpenGL: plays it on an OpenGL that does nothing, or, built as layer_cost, on the layer of
// web/gl and a driver that does nothing. Prints how long its construction and the frames of every scene take. Under
// callgrind the instructions are dumped per scene.
//
// usage: frame_cost [EVERY]     EVERY: measure only one of so many frames (1)

#include "bench/nothing.h"
#include "bench/showrun.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <valgrind/callgrind.h>
#include <vector>

namespace {

template<typename Work>
double microseconds(Work work) {
    auto const start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv) {
    int const every = argc > 1 ? std::atoi(argv[1]) : 1;
    if (every < 1) {
        std::fprintf(stderr, "usage: frame_cost [EVERY]\n");
        return 2;
    }
    nothing::open();
    std::optional<bench::ShowRun> opened;
    double const construction = microseconds([&] { opened.emplace(); });
    bench::ShowRun& show = *opened;
    std::vector<double> took(show.SceneCount());
    std::vector<int> frames(show.SceneCount());
    std::size_t scene = 0;
    // What callgrind has counted since the last dump goes into a file of its own, named by its trigger.
    auto const dump = [&] { CALLGRIND_DUMP_STATS_AT((std::string(show.SceneName(scene)) + ".show").c_str()); };
    while (show.Next()) {
        if (show.Scene() != scene) dump();
        scene = show.Scene();
        if (show.FrameNumber() % every != 0) {
            show.Frame();
            nothing::end_frame();
            continue;
        }
        CALLGRIND_TOGGLE_COLLECT;
        took[scene] += microseconds([&] {
            show.Frame();
            nothing::end_frame();
        });
        CALLGRIND_TOGGLE_COLLECT;
        ++frames[scene];
    }
    dump();
    std::printf("construction, all of data/ loaded %7.2f ms\n", construction / 1000);
    for (std::size_t i = 0; i < took.size(); ++i) {
        std::printf("%-11s %5d frames %8.2f us a frame\n", show.SceneName(i), frames[i], took[i] / frames[i]);
    }
    return 0;
}
