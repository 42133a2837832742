// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

/// What a signal holds in bands of frequency, frame by frame. Signals are samples at 48000 Hz, -1 to 1.
namespace measure {

/// Mean powers (squares of samples), one row per frame and one value per band.
class BandPowers {
public:
    /// `edges`: ascending, hertz, one more than there are bands. Frames of `size` samples under a Hann window start
    /// every `hop` samples; a bin that lies across an edge is shared out by its width.
    BandPowers(std::vector<float> const& signal, std::vector<double> const& edges, std::size_t size, std::size_t hop);

    [[nodiscard]] std::size_t Frames() const { return my_rows.size(); }
    [[nodiscard]] std::vector<double> const& Row(std::size_t frame) const { return my_rows[frame]; }
    /// Middle of a frame, in beats of the show.
    [[nodiscard]] double Beat(std::size_t frame) const;
    /// Mean over the frames whose middles lie in beats [from, to); all zero when there is none.
    [[nodiscard]] std::vector<double> Mean(double from, double to) const;

private:
    std::size_t my_size;
    std::size_t my_hop;
    std::vector<std::vector<double>> my_rows;
};

/// `count` + 1 edges from `low` to `high` hertz, evenly spaced by ratio.
std::vector<double> even_edges(double low, double high, std::size_t count);

/// Edges of `count` bands of one `share`-th octave each; the first band's centre is `first` hertz.
std::vector<double> octave_edges(double first, std::size_t count, int share);

/// Centre of gravity of the power in bands, hertz; 0 for silence. Each band counts at the geometric mean of its edges.
double centroid(std::vector<double> const& powers, std::vector<double> const& edges);

/// 10 log10 of a power, decibels; silence_db when there is none.
double power_db(double power);

} // namespace measure
