// SPDX-License-Identifier: GPL-3.0-or-later
#include <iostream>

#include "batch/commands.h"

int main(int argc, char** argv) {
    return kervol::Run_Commands(argc, argv, std::cout, std::cerr);
}
