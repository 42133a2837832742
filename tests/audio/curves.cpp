// SPDX-License-Identifier: MIT
// Prints the soundtrack's curves for a plot: three blocks of columns, two blank lines between them.
//   1  beat, momentary loudness (LUFS)
//   2  beat, frequency (Hz), level (dB): one blank line after each half beat
//   3  first beat of a bar, how much it differs from the bar before (dB)

#include "measure.h"
#include "soundtrack.h"
#include "spectrum.h"
#include "variety.h"

#include <cmath>
#include <cstdio>
#include <sstream>

namespace {

/// Momentary loudness ten times a second as ffmpeg measures it: "t: SECONDS ... M: LUFS" in each line of its log.
void print_loudness() {
    std::string said;
    measure::run("ffmpeg -hide_banner -nostats -nostdin -i '" + soundtrack::path() +
                     "' -af ebur128=framelog=info -f null - 2>&1",
                 said);
    std::istringstream lines(said);
    for (std::string line; std::getline(lines, line);) {
        std::size_t const time = line.find(" t:");
        std::size_t const level = line.find(" M:");
        double seconds = 0;
        double lufs = 0;
        if (time == std::string::npos || level == std::string::npos) continue;
        if (std::sscanf(line.c_str() + time + 3, "%lf", &seconds) != 1) continue;
        if (std::sscanf(line.c_str() + level + 3, "%lf", &lufs) != 1) continue;
        // The window of 0.4 s ends at the time given
        std::printf("%.3f %.2f\n", (seconds - 0.2) / soundtrack::beat_seconds, lufs);
    }
}

void print_bands() {
    std::vector<double> const edges = measure::even_edges(30, 16000, 60);
    measure::BandPowers const powers(soundtrack::recording().Middle(), edges, 4096, 1024);
    for (double beat = 0; beat < soundtrack::show_beats; beat += 0.5) {
        std::vector<double> const mean = powers.Mean(beat, beat + 0.5);
        for (std::size_t band = 0; band < mean.size(); ++band)
            std::printf("%.2f %.1f %.1f\n", beat + 0.25, std::sqrt(edges[band] * edges[band + 1]),
                        measure::power_db(mean[band]));
        std::printf("\n");
    }
}

void print_novelty() {
    std::vector<variety::Bar> const bars = variety::bars();
    for (std::size_t i = 1; i < bars.size(); ++i)
        std::printf("%zu %.2f\n", 4 * i, variety::difference_db(bars[i - 1], bars[i]));
}

} // namespace

int main() {
    if (soundtrack::recording().Count() == 0) {
        std::fprintf(stderr, "Could not read %s\n", soundtrack::path().c_str());
        return 1;
    }
    print_loudness();
    std::printf("\n\n");
    print_bands();
    std::printf("\n");
    print_novelty();
}
