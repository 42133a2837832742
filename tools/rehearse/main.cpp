// SPDX-License-Identifier: MIT
#include "tools/rehearse/rehearse.h"

int main(int argc, char** argv) { return rehearse(argc, argv); }
