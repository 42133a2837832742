// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/look.h"
#include "runtime/settings.h"

#include <optional>

/// What the environment asks for. A switch is off where the variable is missing, empty or "0", and on with any other
/// value; a number is its default where the variable is missing or empty:
///
///     HARDSILENCE_WIRE      switch   Look::standard_wire
///     HARDSILENCE_CALM      switch   Look::calm
///     HARDSILENCE_CHECK     switch   Settings::check
///     HARDSILENCE_DESKTOP   switch   Settings::desktop
///     HARDSILENCE_STRETCH   switch   Settings::stretch
///     HARDSILENCE_MONITOR   1 to 99  Settings::monitor; "list" for Settings::list_monitors
///     HARDSILENCE_PACE      switch   Settings::pace
///     HARDSILENCE_SOUND     switch   Settings::sound_clock
///     HARDSILENCE_OFFSET    -2000 to 2000, Settings::offset
effect::Look look_from_environment();

/// @return nothing, after a line on standard error, where a number is none or out of its range
std::optional<Settings> settings_from_environment();
