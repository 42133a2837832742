// SPDX-License-Identifier: MIT
#pragma once

/// From now on SIGHUP, SIGINT, SIGQUIT and SIGTERM ask the show to end, so that the desktop gets its video mode back;
/// it then has deadline::for_the_end. A second signal of the kind ends the program at once. Where SIGHUP is ignored, as
/// nohup has it, it stays so.
void catch_stop_signals();

/// Whether such a signal has come.
bool stop_requested();
