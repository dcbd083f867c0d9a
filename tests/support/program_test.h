// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests that run procedures: a fresh program over a recording port.
#pragma once

#include <memory>

#include "core/program.h"
#include "support/box_test.h"

namespace kervol {

class ProgramTest : public BoxTest {
  protected:
    /// The program as a run without a file begins, StartingUp clear.
    ProgramTest();

    RecordingPort port;
    std::unique_ptr<Program> program;
    LinkageModel& model;
    ResultTables& tables;
};

}  // namespace kervol
