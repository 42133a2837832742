// SPDX-License-Identifier: MIT
#pragma once

#include "tools/asc/finish.h"
#include "tools/asc/picture.h"

#include <optional>
#include <string>
#include <vector>

namespace asc {

// Options of the commands; see the help text in main.cpp. An input path may follow a name: NAME=PATH, unless
// there is a file called that.

struct ConvertOptions {
    std::vector<std::string> inputs;
    std::string out;
    bool force = false; ///< the result may replace a file that it is made of
    Finish finish;
};

struct JoinOptions {
    std::vector<std::string> inputs;
    std::string out;
    bool force = false;
};

struct CheckOptions {
    std::vector<std::string> files;
    bool shatter = false;
};

struct PreviewOptions {
    std::string file;
    std::string out; ///< "" for the file's name with .png
    bool force = false;
    std::string object; ///< "" for all
    std::optional<Vec3> camera;
    View view; ///< its camera is not used
};

struct SheetOptions {
    std::vector<std::string> files;
    std::string out;
    bool force = false;
    unsigned int columns = 5;
    unsigned int panel = 150; ///< pixels
};

/// Each prints one line on standard error if it fails.
/// @return the exit status: 0, or 1 after a fault
int convert(ConvertOptions const& options);
int join(JoinOptions const& options);
int check(CheckOptions const& options);
int preview(PreviewOptions const& options);
int sheet(SheetOptions const& options);

} // namespace asc
