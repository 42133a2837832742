#include "effekt/fft-visualizer.h"

#include "kore/report.h"

#include <cmath>
#include <cstring>

namespace kore {

namespace {

// The butterflies of one stage are independent of each other, so several are done at once without changing a rounding:
// the values are those of the plain loop, bit by bit. The processor's widest suitable form is chosen at start-up.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define FOR_EACH_PROCESSOR __attribute__((target_clones("avx2", "default")))
#else
#define FOR_EACH_PROCESSOR
#endif

constexpr unsigned int lanes = 8;
using Lanes = float __attribute__((vector_size(lanes * sizeof(float))));

/// The real and the imaginary parts of eight values.
struct Values {
    Lanes re;
    Lanes im;
};

#define SHUFFLED(values, ...)                                                                                          \
    Values {                                                                                                           \
        __builtin_shufflevector((values).re, (values).re, __VA_ARGS__),                                                \
            __builtin_shufflevector((values).im, (values).im, __VA_ARGS__)                                             \
    }

[[gnu::always_inline]] inline void load(Lanes& to, float const* from) { std::memcpy(&to, from, sizeof to); }

[[gnu::always_inline]] inline void load(Values& to, float const* re, float const* im) {
    load(to.re, re);
    load(to.im, im);
}

[[gnu::always_inline]] inline void store(Values const& from, float* re, float* im) {
    std::memcpy(re, &from.re, sizeof from.re);
    std::memcpy(im, &from.im, sizeof from.im);
}

/// Eight butterflies: both ends in place.
[[gnu::always_inline]] inline void butterflies(Values& lower, Values& upper, Values const& factor) {
    Lanes const tr = upper.re * factor.re - upper.im * factor.im;
    Lanes const ti = upper.re * factor.im + upper.im * factor.re;
    upper.re = lower.re - tr;
    upper.im = lower.im - ti;
    lower.re += tr;
    lower.im += ti;
}

/// Four butterflies with both ends in one register: each lane computes its butterfly's product, and the lanes of the
/// upper ends subtract it (a product with -1 is exact).
[[gnu::always_inline]] inline Values inner_butterflies(Values const& lower, Values const& upper, Values const& factor,
                                                       Lanes const& sign) {
    Lanes const tr = upper.re * factor.re - upper.im * factor.im;
    Lanes const ti = upper.re * factor.im + upper.im * factor.re;
    return {lower.re + sign * tr, lower.im + sign * ti};
}

/// The three stages whose butterflies have both ends among eight neighbours.
FOR_EACH_PROCESSOR void first_stages(float* re, float* im, float const* cosine, float const* sine) {
    constexpr Lanes sign1 = {1, -1, 1, -1, 1, -1, 1, -1};
    constexpr Lanes sign2 = {1, 1, -1, -1, 1, 1, -1, -1};
    constexpr Lanes sign4 = {1, 1, 1, 1, -1, -1, -1, -1};
    // Of the first eight entries stage 1 has the second, stage 2 the next two, stage 4 the rest.
    Values factors;
    load(factors, cosine, sine);
    Values const factor1 = SHUFFLED(factors, 1, 1, 1, 1, 1, 1, 1, 1);
    Values const factor2 = SHUFFLED(factors, 2, 3, 2, 3, 2, 3, 2, 3);
    Values const factor4 = SHUFFLED(factors, 4, 5, 6, 7, 4, 5, 6, 7);

    for (unsigned int i = 0; i < FftVisualizer::points; i += lanes) {
        Values v;
        load(v, re + i, im + i);
        v = inner_butterflies(SHUFFLED(v, 0, 0, 2, 2, 4, 4, 6, 6), SHUFFLED(v, 1, 1, 3, 3, 5, 5, 7, 7), factor1, sign1);
        v = inner_butterflies(SHUFFLED(v, 0, 1, 0, 1, 4, 5, 4, 5), SHUFFLED(v, 2, 3, 2, 3, 6, 7, 6, 7), factor2, sign2);
        v = inner_butterflies(SHUFFLED(v, 0, 1, 2, 3, 0, 1, 2, 3), SHUFFLED(v, 4, 5, 6, 7, 4, 5, 6, 7), factor4, sign4);
        store(v, re + i, im + i);
    }
}

/// Two stages in one pass over the memory: the one of this half, at least eight, and the next.
FOR_EACH_PROCESSOR void two_stages(float* re, float* im, float const* cosine, float const* sine, std::size_t half) {
    for (std::size_t block = 0; block < FftVisualizer::points; block += 4 * half) {
        for (std::size_t j = block; j < block + half; j += lanes) {
            Values v0;
            Values v1;
            Values v2;
            Values v3;
            load(v0, re + j, im + j);
            load(v1, re + j + half, im + j + half);
            load(v2, re + j + 2 * half, im + j + 2 * half);
            load(v3, re + j + 3 * half, im + j + 3 * half);
            std::size_t const first = half + (j - block);
            std::size_t const second = 2 * half + (j - block);
            Values factor;
            load(factor, cosine + first, sine + first);
            butterflies(v0, v1, factor);
            butterflies(v2, v3, factor);
            load(factor, cosine + second, sine + second);
            butterflies(v0, v2, factor);
            load(factor, cosine + second + half, sine + second + half);
            butterflies(v1, v3, factor);
            store(v0, re + j, im + j);
            store(v1, re + j + half, im + j + half);
            store(v2, re + j + 2 * half, im + j + 2 * half);
            store(v3, re + j + 3 * half, im + j + 3 * half);
        }
    }
}

} // namespace

FftVisualizer::FftVisualizer() : re{}, im{}, power{}, stage_cosine{}, stage_sine{} {
    constexpr double two_pi = 6.283185307179588; // twice the engine's PI
    for (unsigned int i = 0; i < points; ++i) reversed[i] = ReverseBits(i);
    for (unsigned int k = 0; k < points / 2; ++k) {
        auto const angle = static_cast<float>(two_pi * k / points);
        sine[k] = static_cast<float>(std::sin(static_cast<double>(angle)));
        cosine[k] = static_cast<float>(std::cos(static_cast<double>(angle)));
    }
    for (std::size_t half = 1, step = points / 2; half < points; half *= 2, step /= 2) {
        for (std::size_t j = 0; j < half; ++j) {
            stage_cosine[half + j] = cosine[j * step];
            stage_sine[half + j] = sine[j * step];
        }
    }
}

unsigned int FftVisualizer::ReverseBits(unsigned int i) {
    unsigned int r = 0;
    for (unsigned int bit = 1; bit < points; bit <<= 1) {
        r = (r << 1) | (i & 1);
        i >>= 1;
    }
    return r;
}

void FftVisualizer::Process(char const* data, unsigned int length) {
    // Deliberate: a throttle for diagnostics that nothing prints any more.
    static unsigned int calls = 0;
    if (++calls > 1000) calls = 0;

    if (length < points) {
        KORE_ERROR("jee");
        return;
    }
    Prepare(data);
    Calculate();
    Output();
}

void FftVisualizer::Prepare(char const* data) {
    for (unsigned int i = 0; i < points; ++i) {
        re[i] = static_cast<float>(static_cast<signed char>(data[reversed[i]]));
        im[i] = 0;
    }
}

void FftVisualizer::Calculate() {
    first_stages(re, im, stage_cosine, stage_sine);
    for (std::size_t half = lanes; half < points; half *= 4) two_stages(re, im, stage_cosine, stage_sine, half);
}

void FftVisualizer::Output() {
    for (unsigned int i = 0; i < bins; ++i) power[i] = im[i] * im[i] + re[i] * re[i];
    power[0] /= 4;
    power[bins - 1] /= 4;
}

} // namespace kore
