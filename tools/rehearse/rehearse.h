// SPDX-License-Identifier: MIT
#pragma once

/// The program hardsilence-rehearse, for the show that it is linked with.
/// @return the exit status
int rehearse(int argc, char** argv);
