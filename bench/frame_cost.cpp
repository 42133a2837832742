// What a frame costs besides OpenGL: plays the show on an OpenGL that does nothing, and issues the very same calls
// again from flat records, frame by frame. Prints a line per scene: frames, calls a frame, then, for the show and for
// the replay, nanoseconds a frame and a call. Under callgrind the instructions of both are dumped per scene.
//
// usage: frame_cost RECORDER [STRIDE]     RECORDER: the program that writes the records
//                                         STRIDE: measure only every so manieth frame (1)

#include "bench/callstream.h"
#include "bench/showrun.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <valgrind/callgrind.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

void issue(std::vector<bench::Call> const& calls) {
    bench::Call const* const end = calls.data() + calls.size();
    for (bench::Call const* c = calls.data(); c != end; ++c) {
        float const* const v = c->value;
        switch (c->op) {
        case bench::Op::Begin:
            glBegin(c->name);
            break;
        case bench::Op::End:
            glEnd();
            break;
        case bench::Op::PushMatrix:
            glPushMatrix();
            break;
        case bench::Op::PopMatrix:
            glPopMatrix();
            break;
        case bench::Op::LoadIdentity:
            glLoadIdentity();
            break;
        case bench::Op::Clear:
            glClear(c->name);
            break;
        case bench::Op::CallList:
            glCallList(c->name);
            break;
        case bench::Op::Translate:
            glTranslatef(v[0], v[1], v[2]);
            break;
        case bench::Op::Scale:
            glScalef(v[0], v[1], v[2]);
            break;
        case bench::Op::Rotate:
            glRotatef(v[0], v[1], v[2], v[3]);
            break;
        case bench::Op::Color:
            glColor3f(v[0], v[1], v[2]);
            break;
        case bench::Op::Vertex:
            glVertex3f(v[0], v[1], v[2]);
            break;
        case bench::Op::ClearColor:
            glClearColor(v[0], v[1], v[2], v[3]);
            break;
        case bench::Op::LookAt:
            gluLookAt(v[0], v[1], v[2], c[1].value[0], c[1].value[1], c[1].value[2], c[2].value[0], c[2].value[1],
                      c[2].value[2]);
            c += 2;
            break;
        case bench::Op::Data:
            break;
        }
    }
}

/// What one scene has cost so far.
struct Cost {
    long frames = 0;
    long calls = 0;
    double show = 0;   ///< nanoseconds
    double replay = 0; ///< nanoseconds
};

template<typename Work>
double timed(Work work) {
    auto const start = Clock::now();
    work();
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

/// Callgrind's instructions since the last dump go into a file of its own, named by its trigger.
void dump(std::string const& what) { CALLGRIND_DUMP_STATS_AT(what.c_str()); }

bool read_frame(FILE* stream, bench::FrameHead& head, std::vector<bench::Call>& calls) {
    if (std::fread(&head, sizeof head, 1, stream) != 1) return false;
    calls.resize(head.calls);
    return std::fread(calls.data(), sizeof(bench::Call), calls.size(), stream) == calls.size();
}

/// Both passes over the show: what = "show" or "replay".
void measure(FILE* records, bool replay, int stride, std::vector<Cost>& costs) {
    bench::ShowRun show;
    costs.resize(show.SceneCount());
    bench::FrameHead head{};
    std::vector<bench::Call> calls;
    std::size_t scene = 0;
    auto const finish = [&] { dump(std::string(show.SceneName(scene)) + (replay ? ".replay" : ".show")); };
    while (show.Next() && read_frame(records, head, calls)) {
        if (show.Scene() != scene) finish();
        scene = show.Scene();
        Cost& cost = costs[scene];
        bool const measured = show.FrameNumber() % stride == 0;
        if (!measured || replay) show.Frame();
        if (!measured) continue;
        CALLGRIND_TOGGLE_COLLECT;
        if (replay) {
            cost.replay += timed([&] { issue(calls); });
        } else {
            cost.show += timed([&] { show.Frame(); });
            ++cost.frames;
            cost.calls += head.calls;
        }
        CALLGRIND_TOGGLE_COLLECT;
    }
    finish();
    if (replay) {
        std::printf("%-11s %7s %9s | %21s | %21s |\n", "scene", "frames", "calls", "show ns: frame / call",
                    "replay: frame / call");
        for (std::size_t i = 0; i < costs.size(); ++i) {
            Cost const& c = costs[i];
            auto const frames = static_cast<double>(c.frames);
            auto const all_calls = static_cast<double>(c.calls);
            std::printf("%-11s %7ld %9.0f | %12.0f %8.2f | %12.0f %8.2f | show/replay %.2f\n", show.SceneName(i),
                        c.frames, all_calls / frames, c.show / frames, c.show / all_calls, c.replay / frames,
                        c.replay / all_calls, c.show / c.replay);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    int const stride = argc > 2 ? std::atoi(argv[2]) : 1;
    if (argc < 2 || stride < 1) {
        std::fprintf(stderr, "usage: frame_cost RECORDER [STRIDE]\n");
        return 2;
    }
    std::vector<Cost> costs;
    for (bool const replay : {false, true}) {
        FILE* const records = popen(argv[1], "r"); // NOLINT: the caller's own recorder
        if (!records) {
            std::fprintf(stderr, "cannot run %s\n", argv[1]);
            return 1;
        }
        measure(records, replay, stride, costs);
        pclose(records);
    }
    return 0;
}
