// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/command.h"
#include "tests/support/process.h"
#include "tests/support/temp.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

/// Farms make small films here, in a folder of their own: 80 frames in four chunks, unless a test asks for others.
///
/// Their recorder is a script. It notes its calls, and before it becomes the real recorder it does what the file
/// `fault` says, if there is one. There "$*" are the recorder's arguments, "$part" is the path of the lossless chunk
/// that it is to draw, "" for other work, and once NAME is true one time alone.
class FarmTest : public testing::Test {
protected:
    FarmTest();

    static constexpr char const* small_film = "--frames 300:380 --chunk 20 ";
    static constexpr char const* look = "--size 64x48 --samples 0 ";

    std::string In(std::string const& name) const { return folder.Path(name); }

    /// The command line of a farm that makes a film.
    std::string Command(std::string const& arguments) const;

    /// Runs it in the folder.
    /// @param before  of the shell, in front of it
    support::Outcome Farm(std::string const& arguments, std::vector<std::string> const& environment = {},
                          std::string const& before = "") const;

    /// Starts it, to be ended on the way.
    std::unique_ptr<Process> Start(std::string const& arguments) const;

    /// Waits until a file is there.
    /// @return false if it does not come in a minute
    bool Comes(std::string const& name) const;

    /// The recorder makes the same film in one go.
    void Record(std::string const& file, std::string const& frames = "300:380") const;

    /// Each frame's time and digest, as ffmpeg decodes the film.
    std::string Pictures(std::string const& file) const;

    /// A digest of the sound.
    std::string Sound(std::string const& file) const;

    /// Expects of two films the same frames at the same times, and the same sound.
    void ExpectSame(std::string const& file, std::string const& other) const;

    support::Outcome Shell(std::string const& line) const;

    /// The first frames of the chunks that were drawn since the last call, in order.
    std::vector<int> Drawn();

    void Fault(std::string const& script) const { folder.Write("fault", script); }

    /// A folder of programs: those on the PATH but one.
    std::string Without(std::string const& program) const;

    support::TempFolder const folder;
};
