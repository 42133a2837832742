// SPDX-License-Identifier: MIT
#pragma once

namespace effect {

/// How the show looks, where that is the viewer's choice. With the defaults the stream of OpenGL calls is the exact
/// one.
struct Look {
    /// The pulse wire issues only the calls that take effect by the OpenGL standard, so that the tunnel is the same on
    /// every driver; see PulseWire.
    bool standard_wire = false;

    /// The calm mode, for everybody to watch: no strobes; see Blinking.
    bool calm = false;
};

/// Filled once by the program, before it makes the scenes; the effects read it when they are made.
inline Look look;

} // namespace effect
