// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/program_test.h"

#include "startup/launch.h"

namespace kervol {

ProgramTest::ProgramTest()
    : BoxTest(port),
      program(std::make_unique<Program>(port)),
      model(program->model),
      tables(program->tables) {
    Start_Fresh(*program);
    model.StartingUp = false;
}

}  // namespace kervol
