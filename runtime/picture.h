// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/area.h"

/// The show's picture within its window, where the two need not have the same shape.
class Picture {
public:
    /// @param stretch  the picture fills the window; else it is 4:3, in the middle
    explicit Picture(bool stretch) : my_stretch(stretch) {}

    /// Sets the viewport for a window of this size, in pixels.
    void Resize(int width, int height);

    /// Blackens what the window has beside the picture, where clearing the screen and wide lines reach.
    void Frame() const;

    /// In the window's pixels.
    Area const& Place() const { return place; }

private:
    bool my_stretch;
    Area window;
    Area place;
};
