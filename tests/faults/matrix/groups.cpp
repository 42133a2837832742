#include "tests/faults/matrix/matrix.h"

std::vector<faults::Group> faults::all_groups() {
    return {
        {"commandline", "options and settings that are wrong", commandline_cells},
    };
}
