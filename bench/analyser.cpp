// The 512-point transform of the analyser beside two libraries' complex transforms of the same length in single
// precision, and the plasma beside the bare cost of writing its picture.

#include "effekt/fft-visualizer.h"
#include "effekt/plasmatexture.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include <fftw3.h>
#include <kissfft/kiss_fft.h>
#include <random>
#include <vector>

namespace {

constexpr unsigned int points = kore::FftVisualizer::points;

std::vector<char> noise() {
    std::vector<char> bytes(points);
    std::minstd_rand generator(1);
    for (char& byte : bytes) byte = static_cast<char>(generator());
    return bytes;
}

void OursTransform(benchmark::State& state) {
    static kore::FftVisualizer fft;
    auto const bytes = noise();
    for (auto _ : state) {
        state.PauseTiming();
        fft.Prepare(bytes.data()); // in place: fresh values, lest they grow without end
        state.ResumeTiming();
        for (int i = 0; i < 8; ++i) fft.Calculate();
    }
    state.SetItemsProcessed(state.iterations() * 8);
}
BENCHMARK(OursTransform);

void KissTransform(benchmark::State& state) {
    kiss_fft_cfg const plan = kiss_fft_alloc(points, 0, nullptr, nullptr);
    std::vector<kiss_fft_cpx> in(points, {1, 0});
    std::vector<kiss_fft_cpx> out(points);
    for (auto _ : state) {
        kiss_fft(plan, in.data(), out.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations());
    kiss_fft_free(plan);
}
BENCHMARK(KissTransform);

void FftwTransform(benchmark::State& state) {
    auto* const in = fftwf_alloc_complex(points);
    auto* const out = fftwf_alloc_complex(points);
    fftwf_plan const plan = fftwf_plan_dft_1d(points, in, out, FFTW_BACKWARD, FFTW_MEASURE);
    std::memset(in, 0, points * sizeof(fftwf_complex));
    in[1][0] = 1;
    for (auto _ : state) {
        fftwf_execute(plan);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations());
    fftwf_destroy_plan(plan);
    fftwf_free(in);
    fftwf_free(out);
}
BENCHMARK(FftwTransform);

void Plasma(benchmark::State& state) {
    effect::PlasmaTexture plasma;
    plasma.Init(64, 64);
    unsigned int t = 0;
    for (auto _ : state) {
        plasma.RenderTexture(t += 8);
        benchmark::DoNotOptimize(plasma.GetPixels());
    }
    state.SetBytesProcessed(state.iterations() * 64 * 64);
}
BENCHMARK(Plasma);

/// What the plasma moves at the least: two bytes of the table in, one of the picture out.
void PlasmaTraffic(benchmark::State& state) {
    constexpr std::size_t side = 64;
    std::vector<unsigned char> table(4 * side * side, 3);
    std::vector<unsigned char> picture(side * side);
    for (auto _ : state) {
        for (std::size_t y = 0; y < side; ++y) {
            unsigned char const* a = &table[y * 2 * side + 7];
            unsigned char const* b = &table[y * 2 * side + 29];
            for (std::size_t x = 0; x < side; ++x) picture[y * side + x] = static_cast<unsigned char>(a[x] + b[x]);
        }
        benchmark::DoNotOptimize(picture.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * 64 * 64);
}
BENCHMARK(PlasmaTraffic);

} // namespace
