// SPDX-License-Identifier: MIT
#pragma once

namespace kore {

/// Keeps what the libraries below SFML's sound say off standard error: a device that fails would have them print
/// thousands of lines a second. To be called before sound is first asked for, on the only thread that may look at the
/// environment then.
void silence_sound_libraries();

/// From now on ALSA may say one line more.
void let_sound_say_a_line();

} // namespace kore
