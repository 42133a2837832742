#pragma once

/// From now on SIGINT and SIGTERM ask the show to end, so that the desktop gets its video mode back. A second signal of
/// the kind ends the program at once.
void catch_stop_signals();

/// Whether such a signal has come.
bool stop_requested();
