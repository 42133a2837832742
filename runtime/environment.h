#pragma once

#include "effekt/look.h"

/// The look that the environment asks for. A variable is off where it is missing, empty or "0", and on with any other
/// value:
///
///     HARDSILENCE_WIRE   Look::standard_wire
///     HARDSILENCE_CALM   Look::calm
effect::Look look_from_environment();
