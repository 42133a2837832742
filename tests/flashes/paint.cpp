// SPDX-License-Identifier: MIT
// Paints frames of the show and prints them as the flash meter sees them: each in one line, row by row.
//     paint full|calm FRAME...    frames in order, counted from 0, at 60 a second

#include "tests/flashes/screening.h"

#include <cstdlib>
#include <iostream>
#include <string_view>

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    constexpr float rate = 60;
    flashes::Screening screening(std::string_view(argv[1]) == "calm", rate);
    int next = 0;
    for (int i = 2; i < argc; ++i) {
        int const frame = std::atoi(argv[i]);
        screening.PlayUnseen((frame - next - 0.5) / rate); // half a frame against rounding
        if (!screening.Frame()) return 1;
        next = frame + 1;
        for (float const level : flashes::painted().luminances) std::cout << level << ' ';
        std::cout << '\n';
    }
}
