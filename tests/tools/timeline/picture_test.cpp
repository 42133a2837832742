// SPDX-License-Identifier: MIT
// docs/timeline.svg: it is what the recorder makes of the show now.

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <vector>

namespace {

std::string const waves = R"--(<path class="(peak|mean)" d="([^"]*)"/>)--";

/// The picture without its waveforms, whose last digits are the decoder's.
std::string without_waves(std::string const& svg) { return std::regex_replace(svg, std::regex(waves), "wave"); }

/// The numbers of the waveforms.
std::vector<double> numbers(std::string const& svg) {
    std::vector<double> found;
    std::regex const wave(waves);
    std::regex const number("[0-9.]+");
    for (std::sregex_iterator w(svg.begin(), svg.end(), wave), end; w != end; ++w) {
        std::string const line = (*w)[2];
        for (std::sregex_iterator n(line.begin(), line.end(), number); n != end; ++n)
            found.push_back(std::stod(n->str()));
    }
    return found;
}

support::Outcome record(std::string const& arguments, support::TempFolder const& folder) {
    return support::run_shell("'" HARDSILENCE_BINARY_DIR "/hardsilence-record' " + arguments,
                              {.folder = folder.Path("")});
}

} // namespace

TEST(TimelinePicture, IsThatOfTheShow) {
    support::TempFolder const folder;
    auto const outcome = record("--timeline made.svg", folder);
    ASSERT_EQ(outcome.status, 0) << outcome.error;
    EXPECT_EQ(outcome.output, folder.Path("made.svg") + "\n");
    std::string const made = support::read_all(folder.Path("made.svg"));
    std::string const kept = support::read_all(HARDSILENCE_SOURCE_DIR "/docs/timeline.svg");
    EXPECT_TRUE(without_waves(made) == without_waves(kept)) << "build the target timeline-picture, look and commit";
    auto const now = numbers(made);
    auto const then = numbers(kept);
    ASSERT_EQ(now.size(), then.size());
    EXPECT_GT(now.size(), 5000u);
    for (std::size_t i = 0; i < now.size(); ++i) ASSERT_NEAR(now[i], then[i], 0.25) << i;
}

TEST(TimelinePicture, IsRefusedWhereItCannotBeWritten) {
    support::TempFolder const folder;
    auto const outcome = record("--timeline missing/made.svg", folder);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.error, testing::HasSubstr("cannot write " + folder.Path("missing/made.svg")));
}
