// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// Measurements on decoded music. Signals are samples at 48000 Hz, -1 to 1; levels are decibels of full scale.
namespace measure {

constexpr double silence_db = -200; ///< what an all-zero signal measures

/// Root mean square of samples [from, to), decibels; silence_db when the stretch is empty or all zero.
double level_db(std::vector<float> const& signal, std::size_t from, std::size_t to);

/// Largest absolute sample of [from, to), decibels; silence_db when the stretch is empty or all zero.
double peak_db(std::vector<float> const& signal, std::size_t from, std::size_t to);

/// The band between two frequencies in hertz: a fourth-order Butterworth high pass, then a low pass. A low of 0 leaves
/// the high pass out, a high of 0 the low pass. (Coefficients: Robert Bristow-Johnson, Audio EQ Cookbook.)
std::vector<float> band(std::vector<float> const& signal, double low, double high);

/// Pearson's correlation of two signals over their common length, -1 to 1; 0 when either is constant.
double correlation(std::vector<float> const& a, std::vector<float> const& b);

/// Energy per millisecond: sum of squares over each 48 samples.
std::vector<double> milliseconds(std::vector<float> const& signal);

/// Where a sound starts.
struct Onset {
    double offset_ms = 0; ///< milliseconds from the expected time
    double rise_db = 0;   ///< its peak against the 9 ms that end 3 ms before the expected time, decibels
};

/// The start of what is loudest within 2 ms of `seconds`: going back from its peak, in steps of a quarter of a
/// millisecond, the last point above the middle between the peak and what sounded before, but not more than 20 dB under
/// the peak (a codec spreads a sharp edge over some milliseconds before it). Before the first sample there is silence.
Onset find_onset(std::vector<float> const& signal, double seconds);

/// The rises (in decibels, falls count as none) of a signal at whole milliseconds round each given time, summed:
/// `2 * reach_ms + 1` values, the middle one on the times themselves.
std::vector<double> folded_rises(std::vector<double> const& energy_ms, std::vector<double> const& seconds,
                                 int reach_ms);

/// The mean of the stretches of `length` samples from each start, one value per sample: what they share stays, the rest
/// fades. Samples past the end count as 0.
std::vector<float> average(std::vector<float> const& signal, std::vector<std::size_t> const& starts,
                           std::size_t length);

/// Where a shape lies in a signal, and how well it fits.
struct Match {
    double offset_ms = 0; ///< milliseconds from the expected start
    double likeness = -1; ///< cosine between both, -1 to 1
};

/// The best place for `shape` within `reach_ms` of sample `start`, in steps of a sixth of a millisecond.
Match find_shape(std::vector<float> const& signal, std::size_t start, std::vector<float> const& shape, double reach_ms);

/// What ffmpeg's ebur128 filter says of a file.
struct Loudness {
    bool valid = false;
    double integrated_lufs = 0; ///< EBU R 128 integrated loudness
    double true_peak_dbtp = 0;  ///< the higher of both sides
};

/// Runs ffmpeg; `valid` is false when it is missing, fails or says something else.
Loudness loudness(std::string const& path);

/// Runs a shell command. Returns its exit status, or -1 when it could not be run; `output` takes what it printed.
int run(std::string const& command, std::string& output);

} // namespace measure
