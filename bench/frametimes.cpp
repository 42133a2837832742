// SPDX-License-Identifier: MIT
// The show on the machine's driver, off-screen and as fast as it can: 60 frames for every second of the show, each of
// which is waited for. Prints what came before the first picture, and for every scene the times of its frames, each one
// measured.
//
// usage: frametimes [WIDTH HEIGHT SAMPLES]     1024 768 4

#include "bench/showrun.h"
#include "runtime/frame.h"
#include "tools/offscreen/framebuffer.h"
#include "tools/offscreen/offscreencontext.h"

#include <GL/gl.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <vector>

namespace {

template<typename Work>
double milliseconds(Work work) {
    auto const start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// Prints what a scene has taken, and forgets it.
void print_scene(char const* name, std::vector<double>& times) {
    std::sort(times.begin(), times.end());
    auto const at = [&](std::size_t percent) { return times[(times.size() - 1) * percent / 100]; };
    std::printf("%-11s %7zu %9.2f %9.2f %9.2f %9.2f\n", name, times.size(), at(0), at(50), at(99), at(100));
    std::fflush(stdout);
    times.clear();
}

} // namespace

int main(int argc, char** argv) {
    auto const number = [&](int i, int otherwise) { return argc > i ? std::atoi(argv[i]) : otherwise; };
    int const width = number(1, 1024);
    int const height = number(2, 768);
    int const samples = number(3, 4);

    OffscreenContext context;
    Framebuffer picture;
    bool open = width > 0 && height > 0 && samples >= 0;
    double const driver = milliseconds([&] {
        open = open && context.Open() &&
               picture.Create(static_cast<unsigned int>(width), static_cast<unsigned int>(height),
                              static_cast<unsigned int>(samples));
    });
    if (!open) {
        std::fprintf(stderr, "frametimes: no driver draws %d x %d pixels of %d samples\n", width, height, samples);
        return 1;
    }
    init_gl();
    std::optional<bench::ShowRun> show;
    double const construction = milliseconds([&] {
        show.emplace();
        glFinish();
    });

    std::vector<double> times;
    std::size_t scene = 0;
    while (show->Next()) {
        if (show->Scene() != scene) print_scene(show->SceneName(scene), times);
        scene = show->Scene();
        bool const first = show->FrameNumber() == 0;
        times.push_back(milliseconds([&] {
            show->Frame();
            glFinish();
        }));
        if (!first) continue;
        std::printf("%s, %d x %d, %d samples a pixel\n", OffscreenContext::Renderer().c_str(), width, height, samples);
        std::printf("opening the driver %.1f ms, the show's construction %.1f ms, its first picture %.1f ms\n", driver,
                    construction, times.front());
        std::printf("%-11s %7s %9s %9s %9s %9s   ms\n", "scene", "frames", "fastest", "median", "99th", "slowest");
    }
    print_scene(show->SceneName(scene), times);
    return 0;
}
