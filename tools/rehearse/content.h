// SPDX-License-Identifier: MIT
#pragma once

#include "tools/rehearse/background.h"
#include "tools/rehearse/filewatch.h"

#include <string>

/// Renders the sources of "data/" in the background when they change, by the targets of a build folder. What comes of
/// them is written into "data/".
class Content {
public:
    /// @param build  the build folder; "" to watch nothing
    explicit Content(std::string build);

    /// To be called once a frame.
    void Poll();

    /// What is rendered, and how far that is; after a failure what the last line said; "" for nothing.
    std::string const& Progress() const { return progress; }

private:
    /// Sources and the target that renders them.
    struct Kind {
        char const* target;
        FileWatch watch;
        bool changed = false; ///< since its target was built last
    };

    void Begin();

    std::string const my_build;
    Kind kinds[2];
    Background background;
    char const* target = ""; ///< that is built
    std::string progress;
};
