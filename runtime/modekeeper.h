// SPDX-License-Identifier: MIT
#pragma once

/// Gives the desktop its video mode back where the program does not come to do so: a small process of its own waits for
/// the program's end, of whatever kind, and then looks after the mode. It has a session and a name of its own, and
/// holds nothing open of the program's.
class ModeKeeper {
public:
    /// Remembers the modes of now. To be called while there is but one thread, and with a display that has RandR. If no
    /// process can be had, the show goes on without.
    ModeKeeper();

    /// The program has given the modes back itself.
    ~ModeKeeper();
    ModeKeeper(ModeKeeper const&) = delete;
    ModeKeeper& operator=(ModeKeeper const&) = delete;

private:
    int line = -1; ///< a pipe to the process
};
