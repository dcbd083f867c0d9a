// SPDX-License-Identifier: GPL-3.0-or-later
// One run of the program: its records and its port. `main` makes one on the heap; a test makes a fresh one a
// case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/animation_state.h"
#include "core/catalogue_names.h"
#include "core/fourier_state.h"
#include "core/matrix_display.h"
#include "core/model.h"
#include "core/plot_state.h"
#include "core/port.h"
#include "core/result_tables.h"
#include "core/selections.h"
#include "core/table_output.h"

namespace kervol {

struct ReportedFault {
    std::int32_t number;
    std::string procedure;

    bool operator==(const ReportedFault&) const = default;
};

/// The faults of this run, in the order in which they were reported.
struct FaultLog {
    std::vector<ReportedFault> entries;
    /// Where the running sweep's begin; nothing outside a sweep.
    std::optional<std::size_t> sweep_start;
};

struct Program {
    explicit Program(Port& the_port) : port(the_port) {}

    LinkageModel model;
    ResultTables tables;
    AnimationState animation;
    CatalogueNames catalogue;
    MatrixDisplay matrix;  ///< filled by `Matrix_Fill`
    Selections selections;
    TableOutput output;
    FourierState fourier;
    PlotState plots;
    FaultLog faults;
    Port& port;
};

}  // namespace kervol
