// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests that run procedures: a fresh program over a recording port. A box that no test expected
// fails it.
#pragma once

#include <memory>
#include <string_view>

#include "core/program.h"
#include "headless/recording_port.h"

#include <gtest/gtest.h>

namespace kervol {

class ProgramTest : public ::testing::Test {
  protected:
    /// The program as a run without a file begins, StartingUp clear.
    ProgramTest();
    void TearDown() override;

    /// The next box that was shown must be this one.
    void Expect_Box(std::string_view text, Icon icon = Icon::None, Buttons buttons = Buttons::OK);
    /// The next box must report this fault; only the heading is compared.
    void Expect_Fault(std::int32_t number, std::string_view procedure);
    /// The next box, whatever it is.
    MessageBox Take_Box();
    std::size_t Boxes_Left() const { return port.messages.size() - taken_; }

    RecordingPort port;
    std::unique_ptr<Program> program;
    LinkageModel& model;
    ResultTables& tables;

  private:
    std::size_t taken_ = 0;
};

}  // namespace kervol
