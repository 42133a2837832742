// SPDX-License-Identifier: MIT
// Prints docs/flashes.md: what the flash meter says about the full show and the calm one.

#include "show/show.h"
#include "tests/flashes/screening.h"

#include <iostream>

using flashes::Screening;
using flashes::Tally;

namespace {

constexpr float rate = 60; // frames per second

constexpr char const* head = R"(# Flashes

What the flash meter of `tests/flashes/` says about the show, full and calm, at 60 frames a second; its header states
the definitions and their sources. A frame fails where the second before it holds more than three flashes, where the
picture has been above two flashes a second for more than four of five seconds, or where regular stripes have stood for
half a second. No frame of the calm show does, and none is above two flashes a second.

| scene | frames | full: failing | above two | most transitions | calm: failing | above two | most transitions |
|---|--:|--:|--:|--:|--:|--:|--:|
)";

constexpr char const* foot = R"(
"Most transitions" are those within one second; a flash is two, and six are allowed.

`cmake --build --preset dev --target flash-report` writes this file. `ctest --preset dev -R calm` holds the calm show to
its figures at 24, 30, 50, 60, 120 and 144 frames a second, started with any scene, with scenes skipped, paused and
resumed, and with stalls of a second.
)";

void print(char const* name, Tally const& full, Tally const& calm) {
    std::cout << "| " << name << " | " << full.frames << " | " << full.failing << " | " << full.above_two << " | "
              << full.most_transitions << " | " << calm.failing << " | " << calm.above_two << " | "
              << calm.most_transitions << " |\n";
}

} // namespace

int main() {
    std::vector<Tally> tallies[2];
    Tally totals[2];
    for (bool const calm : {false, true}) {
        Screening screening(calm, rate);
        while (screening.Frame()) {
        }
        tallies[calm] = screening.Tallies();
        totals[calm] = screening.Total();
    }
    std::cout << head;
    for (std::size_t i = 0; i < running_order().size(); ++i) {
        print(running_order()[i].title, tallies[0][i], tallies[1][i]);
    }
    print("**all**", totals[0], totals[1]);
    std::cout << foot;
}
