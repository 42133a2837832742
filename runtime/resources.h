// SPDX-License-Identifier: MIT
#pragma once

/// Whether this process may have the files, memory, stack and threads that the libraries below the show take without a
/// word, or with a crash, where they are short. A soft limit of open files that is too low is raised.
/// @return false, after a line on standard error, where something is short
bool enough_resources();
