// SPDX-License-Identifier: GPL-3.0-or-later
// One model in a run without a display: opening, calculating, and how it went.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/program.h"
#include "dynamics/crank_torque_areas.h"
#include "files/read_report.h"
#include "headless/recording_port.h"
#include "kinematics/step_count.h"

namespace kervol {

/// What `kervol-batch` returns to the system.
enum ExitCode {
    Done = 0,
    WrongUse = 1,
    Failed = 2,      ///< a file could not be read whole or written, or a numeric fault was reported
    SomeFailed = 3,  ///< done, but some step did not assemble
    GivenUp = 4,     ///< refused or abandoned
};

class BatchRun {
  public:
    explicit BatchRun(Answer on_failure);

    /// A fresh start followed by Open. False where nothing could be read.
    bool Open(const std::string& path);
    /// A fresh start followed by the example. False where there is none of that name.
    bool Load(const std::string& example);
    /// Takes an imported drive in place of the model's own. False where it could not be taken whole; the
    /// complaint then names its file.
    bool Import_Drive(const std::string& path, ReadReport (*import)(Program&, const std::string&));
    void Calculate();
    /// The forces of every step with the model's own link data; nothing where its motion was not calculated.
    void Add_Dynamics();
    /// As the field of the flywheel screen takes it: a refused one is told in a box and becomes 0.05.
    void Take_Fluctuation(float coefficient);
    /// The flywheel for the crank torque of `Add_Dynamics`.
    void Add_Flywheel();

    /// Nothing to complain about is `Done`; else the gravest of what happened.
    ExitCode Outcome() const;
    /// One line: what went wrong, where, how to mend it. Empty for `Done`.
    std::string Complaint() const;

    /// One line for a file that could not be written, after the fault was reported.
    std::string Write_Complaint(const std::string& path) const;

    /// Whether every step was swept; else the calculation was refused or given up.
    bool Is_Calculated() const { return end_ == CalculationEnd::Done; }
    /// Whether a singular step ended the forces.
    bool Forces_Stopped() const;

    Program& program() { return *program_; }
    /// How many steps `Add_Dynamics` solved; nothing before it.
    std::optional<int> solved_steps() const { return solved_steps_; }
    const CrankTorqueAreas& crank_torque_areas() const { return flywheel_.areas; }
    const RecordingPort& port() const { return port_; }

  private:
    std::string Reading_Complaint() const;
    std::string Fault_Complaint() const;
    std::string Calculation_Complaint() const;
    std::string Forces_Complaint() const;

    RecordingPort port_;
    std::unique_ptr<Program> program_;
    std::string source_;
    std::string refusal_ =
        "not a model of this program; its first line must be \"KERVOL for Windows\" or \"KERVOL\"";
    ReadReport read_{ReadEnd::Whole, 0};
    CalculationEnd end_ = CalculationEnd::Done;
    std::optional<int> solved_steps_;
    FlywheelSizing flywheel_;
};

}  // namespace kervol
