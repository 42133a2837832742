// SPDX-License-Identifier: MIT
#include "tools/film/film.h"

#include "tools/film/encoder.h"
#include "tools/film/interrupt.h"
#include "tools/film/progress.h"
#include "tools/film/renderers.h"
#include "tools/film/sinks.h"

#include <SFML/Audio/InputSoundFile.hpp>
#include <SFML/System/Err.hpp>
#include <algorithm>
#include <atomic>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <memory>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr unsigned int most_jobs_unasked = 4;

/// @return 0 samples if it cannot be read
Soundtrack measure_music() {
    sf::err().rdbuf(nullptr); // the caller says it
    sf::InputSoundFile file;
    if (!file.openFromFile(soundtrack_file)) return {};
    return {static_cast<long long>(file.getSampleCount() / file.getChannelCount()),
            static_cast<int>(file.getSampleRate())};
}

RenderTask render_task(RecordOptions const& options, Soundtrack const& music) {
    return {.shape = shape_of(options),
            .film = options.film,
            .scene = options.scene,
            .rate = *options.film.rate,
            .music = music};
}

EncoderTask encoder_task(RecordOptions const& options, FilmPlan const& plan, Soundtrack const& music) {
    return {.file = options.film.file,
            .format = find_format(options.film.file),
            .arguments = options.film.encoder,
            .width = options.width,
            .height = options.height,
            .plan = plan,
            .music = options.film.sound ? soundtrack_file : "",
            .sample_rate = music.rate,
            .calm = options.calm};
}

unsigned int jobs_for(FilmOptions const& film) {
    return film.jobs > 0 ? film.jobs : std::clamp(std::thread::hardware_concurrency(), 1u, most_jobs_unasked);
}

/// One film in the making.
class Production {
public:
    Production(RecordOptions const& options, Soundtrack const& music) : my_options(options), my_music(music) {}

    int Run();

private:
    std::string Open();
    std::string MakeFrames();
    std::string Write(std::span<std::uint8_t const> pixels);
    void TidyUp();

    RecordOptions const& my_options;
    Soundtrack my_music;
    Renderers renderers;
    Encoder encoder;
    std::vector<FrameSink*> sinks;
    std::unique_ptr<FrameSink> stream; ///< on standard output; null for none
    FilmPlan plan;
    std::atomic<int> done = 0; ///< frames
    std::atomic<int> all = 0;
    std::atomic<int> first = 0; ///< of the frames
    bool renderer_failed = false;
};

int Production::Run() {
    if (!renderers.Start(render_task(my_options, my_music), jobs_for(my_options.film))) return 1;
    Interrupt const interrupt([this] { TidyUp(); });
    auto const planned = renderers.Plan();
    if (!planned) return renderers.FailedStatus();
    plan = *planned;
    all = plan.Count();
    first = plan.first;
    if (my_options.film.plan) {
        EncoderTask task = encoder_task(my_options, plan, my_music);
        if (!task.music.empty()) task.music = std::filesystem::absolute(task.music).string();
        std::cout << encoder_script(task, std::filesystem::current_path().string());
        return 0;
    }
    std::string error = Open();
    if (error.empty()) error = MakeFrames();
    if (renderer_failed) return renderers.FailedStatus();
    for (FrameSink* const sink : sinks) {
        if (error.empty()) error = sink->Finish();
    }
    if (!error.empty()) return complain(error);
    if (!stream) std::cout << my_options.film.file << std::endl;
    return 0;
}

std::string Production::Open() {
    FilmOptions const& film = my_options.film;
    if (!film.raw.empty()) stream = make_raw_sink();
    if (!film.y4m.empty()) stream = make_y4m_sink(plan, my_options.width, my_options.height);
    if (film.digests) stream = make_digest_sink(plan, my_options.width, my_options.height);
    if (stream) sinks.push_back(stream.get());
    if (film.file.empty()) return "";
    sinks.push_back(&encoder);
    return encoder.Start(encoder_task(my_options, plan, my_music));
}

std::string Production::MakeFrames() {
    Progress progress(plan.Count());
    std::span<std::uint8_t const> picture;
    int of = -1; // the frame that the picture was drawn for
    std::string error;
    for (int frame = plan.first; frame < plan.end && error.empty(); ++frame) {
        if (of != plan.PictureOf(frame)) picture = renderers.Next();
        of = plan.PictureOf(frame);
        renderer_failed = picture.empty();
        if (renderer_failed) break;
        error = Write(picture);
        progress.Show(++done);
    }
    progress.End();
    return error;
}

std::string Production::Write(std::span<std::uint8_t const> pixels) {
    for (FrameSink* const sink : sinks) {
        if (std::string error = sink->Write(pixels); !error.empty()) return error;
    }
    return "";
}

void Production::TidyUp() {
    encoder.Abandon();
    renderers.Kill();
    if (isatty(STDERR_FILENO)) std::cerr << '\n'; // after the progress line
    std::string const next = std::to_string(first + done);
    std::string const go_on = my_options.film.file.empty()
                                  ? "go on with --frames " + next + ":"
                                  : "nothing of the film is kept, but tools/farm can go on with a film";
    std::string const after = "after " + std::to_string(done) + " of " + std::to_string(all) + " frames; " + go_on;
    complain("stopped " + (done == 0 ? "before the first frame" : after));
}

} // namespace

int make_film(RecordOptions const& options) {
    Soundtrack const music = measure_music();
    if (music.samples == 0 && options.film.sound && !options.film.file.empty()) {
        return complain(std::string("cannot read ") + soundtrack_file + "; --no-sound makes a silent film");
    }
    if (!options.film.file.empty() && !options.calm && isatty(STDERR_FILENO)) {
        std::cerr << film_notice(false) << " --calm has no strobes.\n";
    }
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN)); // a closed pipe is an error line
    return Production(options, music).Run();
}
