// SPDX-License-Identifier: MIT
#pragma once

/// From now on, a library that crashes because the display is lost ends the program with a line and status 1. Any other
/// crash is as it would be without.
void tell_a_lost_display_from_a_crash();

/// While it lives, any crash and any failed assertion ends the program with a line and status 1: it is taken for the
/// driver's.
class DriverIsAsked {
public:
    DriverIsAsked();
    ~DriverIsAsked();
    DriverIsAsked(DriverIsAsked const&) = delete;
    DriverIsAsked& operator=(DriverIsAsked const&) = delete;
};
