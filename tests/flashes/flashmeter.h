// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <vector>

/// Tells whether a film is one that everybody may watch.
///
/// Sources: WCAG 2.2, success criterion 2.3.1 "Three Flashes or Below Threshold", with its definitions of general flash
/// and relative luminance; Recommendation ITU-R BT.1702, "Guidance for the reduction of photosensitive epileptic
/// seizures caused by television".
///
/// - Relative luminance: of the linear red, green and blue of an sRGB colour; 0 black, 1 white.
/// - A transition: a rise or a fall by 0.1 or more from the last turning point, however slow it is, where the darker
/// end
///   is below 0.8. A flash is a pair of opposing transitions.
/// - The picture is looked at in blocks, and a quarter of it counts. It makes a transition when a quarter of the blocks
///   have made one in the same direction between two frames, or between several that are no farther apart than
///   `together`, and more of them than in the other direction. Changes that sweep or fade over the picture are found in
///   its mean luminance: its transitions are counted besides, those for which a quarter of the blocks have changed. The
///   higher number of the two holds.
/// - Too fast: more than three flashes, which is six transitions, within one second.
/// - Too long: above two flashes a second for more than four of any five seconds.
/// - Striped: a regular pattern of more than five light-dark pairs over a quarter of the picture, for half a second.
///
/// Only luminance is looked at: a saturated red, which both sources treat by itself, is for the caller to rule out.
/// WCAG's quarter is one of any 10 degrees of the field of view; here, as in BT.1702, it is one of the picture.
namespace flashes {

constexpr float least_change = 0.1f;   ///< of relative luminance
constexpr float brightest_dark = 0.8f; ///< darker ends at this luminance or above make no transition
constexpr double least_share = 0.25;   ///< of the picture
constexpr double together = 0.04;      ///< seconds
constexpr int most_transitions = 6;    ///< within a second
constexpr int calm_transitions = 4;    ///< within a second: two flashes
constexpr double long_span = 5;        ///< seconds
constexpr double longest = 4;          ///< seconds above two flashes in any long span
constexpr std::size_t most_pairs = 5;  ///< of a regular pattern
constexpr double pattern_time = 0.5;   ///< seconds

/// Relative luminance of an sRGB colour.
/// @param red, green, blue  0 to 255
float luminance(unsigned char red, unsigned char green, unsigned char blue);

/// A picture as relative luminances.
struct Picture {
    std::size_t width = 0;
    std::size_t height = 0;
    std::vector<float> luminances; ///< width x height of them, row by row

    float At(std::size_t x, std::size_t y) const { return luminances[y * width + x]; }
};

/// The share of a picture that regular stripes cover. Along every row, column and diagonal the places are found where
/// the luminance begins to rise; where more than most_pairs of their distances follow each other and the longest is at
/// most one and a half times the shortest, there is a pattern.
/// @return 0 to 1
double striped_share(Picture const& picture);

/// What there is to say about a frame and the second that ends with it.
struct Verdict {
    int transitions = 0;
    bool too_fast = false;
    bool too_long = false;
    bool striped = false;

    bool Fails() const { return too_fast || too_long || striped; }
    bool AboveTwoFlashes() const { return transitions > calm_transitions; }
};

/// Watches a film from its first frame on.
class FlashMeter {
public:
    /// @param time     at which the frame appears, to stay until the next: seconds, later than the one before
    /// @param picture  of the size of the first one
    Verdict Watch(double time, Picture const& picture);

private:
    /// The luminance of a block.
    struct Block {
        float low = 0; ///< since the last turning point
        float high = 0;
        int direction = 0; ///< of the last transition: 1 up, -1 down, 0 before the first
        double from = 0;   ///< the two frames, in seconds, between which it was made
        double to = 0;

        void Watch(double frame_before, double time, float luminance);
    };
    /// A picture at which the mean turned round.
    struct Extreme {
        float mean = 0;
        std::vector<float> luminances;
    };
    struct Stretch {
        double from;
        double to;
    };

    void WatchTogether(double time);
    bool WatchMean(float mean, Picture const& picture);
    bool TooLong(double time);
    bool Striped(double time, Picture const& picture);

    std::vector<Block> blocks;
    Extreme lowest; ///< since the mean's last turning point
    Extreme highest;
    int mean_direction = 0;
    std::deque<double> together_transitions; ///< their times, within the last second
    std::deque<double> mean_transitions;
    int together_direction = 0;
    std::deque<Stretch> above_two; ///< when it was, within the long span
    double last_time = 0;
    bool was_above_two = false;
    double striped_since = -1; ///< below 0: is not
};

} // namespace flashes
