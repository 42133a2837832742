// SPDX-License-Identifier: MIT
#pragma once

#include "tools/record/options.h"

/// Makes the film that the options ask for, in a working folder that holds "data/". This process must have no OpenGL
/// context, for it starts processes that have.
/// @return exit status; after a failure an error line has been printed
int make_film(RecordOptions const& options);
