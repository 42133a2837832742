// SPDX-License-Identifier: MIT
#pragma once

#include "tests/tools/record/recorderrun.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

/// Films as the recorder makes them, with small pictures of one sample, so that it is quick.

inline constexpr std::size_t frame_bytes = std::size_t{3} * 64 * 48;

class Film : public RecorderRun {
protected:
    Film() : RecorderRun("--size 64x48 --samples 0 ") {}

    /// The digest of each frame, with its number.
    std::vector<std::string> Digests(std::string const& arguments) const {
        support::Outcome const outcome = Record("--md5 " + arguments);
        EXPECT_EQ(outcome.status, 0) << arguments;
        EXPECT_EQ(outcome.error, "");
        return Lines(outcome.output);
    }

    /// Those of a file, as ffmpeg prints them; it counts from 0.
    std::vector<std::string> DigestsOf(std::string const& file) const {
        return Lines(Shell("ffmpeg -v error -i " + file + " -map 0:v -pix_fmt rgb24 -f framemd5 -").output);
    }

    support::Outcome Shell(std::string const& line) const {
        return support::run_shell(line, {.folder = folder.Path("")});
    }

    static std::vector<std::string> Lines(std::string const& text) {
        std::istringstream stream(text);
        std::vector<std::string> lines;
        for (std::string line; std::getline(stream, line);) {
            if (!line.starts_with('#')) lines.push_back(line);
        }
        return lines;
    }
};

/// The digest alone, without the frame's number.
inline std::string digest(std::string const& line) { return line.substr(line.rfind(' ') + 1); }
