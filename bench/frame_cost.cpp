// What a frame costs besides OpenGL: plays the show on an OpenGL that does nothing. Prints the processor time of the
// show's construction, all of data/ loaded, and for every scene that of a frame. Under callgrind the instructions are
// dumped per scene.
//
// usage: frame_cost [EVERY]     EVERY: measure only one of so many frames (1)

#include "bench/showrun.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
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
    bench::ShowRun show;
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
            continue;
        }
        CALLGRIND_TOGGLE_COLLECT;
        took[scene] += microseconds([&] { show.Frame(); });
        CALLGRIND_TOGGLE_COLLECT;
        ++frames[scene];
    }
    dump();
    for (std::size_t i = 0; i < took.size(); ++i)
        std::printf("%s,%d,%.2f\n", show.SceneName(i), frames[i], took[i] / frames[i]);
    return 0;
}
