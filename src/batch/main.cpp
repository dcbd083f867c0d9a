// SPDX-License-Identifier: GPL-3.0-or-later
#include <csignal>
#include <iostream>

#include "batch/commands.h"

int main(int argc, char** argv) {
    // A closed pipe or a size limit is then a failed write, which is told, and not the end of the program.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
    return kervol::Run_Commands(argc, argv, std::cout, std::cerr);
}
