// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/brokenmodel.h"

/// Values for the pieces of a broken model: they turn by [-turn, turn) about each axis and shift by [-shift, shift)
/// along it.
class Scatter : public effect::BrokenModel::DefaultSet {
public:
    /// @param turn_   degrees a second, at least 0.005
    /// @param shift_  units a second, at least 0.005
    Scatter(float turn_, float shift_) : turn(turn_), shift(shift_) {}

    /// @return 1 for an index outside 0 to 5
    float set(int index) override {
        if (index < 0 || index > 5) return 1.0f;
        return index < 3 ? s(turn) : s(shift);
    }

private:
    float turn;
    float shift;
};
