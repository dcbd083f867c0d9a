// SPDX-License-Identifier: GPL-3.0-or-later
// Whole tables of a Watt and a Stephenson chain in every mode: as files, as spreadsheets, as printed pages,
// as the grid shows them.
#include <cmath>
#include <string>
#include <tuple>

#include "batch/output_table.h"
#include "catalogue/data_grid.h"
#include "catalogue/names.h"
#include "catalogue/tabulation.h"
#include "dynamics/solve_forces.h"
#include "kinematics/examples.h"
#include "kinematics/step_count.h"
#include "support/golden.h"
#include "support/program_test.h"

namespace kervol {
namespace {

class GoldenTables : public ProgramTest, public ::testing::WithParamInterface<std::tuple<const char*, int>> {
  protected:
    GoldenTables() {
        const auto& [name, mode] = GetParam();
        port.clock = DateAndTime{"2026-11-21", "10:30"};
        Load_Example(model, *Find_Example(name));
        model.CalcMode = static_cast<std::int16_t>(mode);
        model.UserName = "Ann";
        model.ModelName = name;
        model.Theta2One = 75;
        model.TimeEnd = 1.25F;
        model.TimeStep = 0.02F;
        if (mode > 3) Put_Drive();
        Calculate_Model(*program);
        Run_Dynamics(*program);
        Change_Catalog_Labels(program->catalogue, model.LinkageType);
    }

    /// A crank that swings by 20 degrees about 40, two rows for each of its 31 positions.
    void Put_Drive() {
        model.NumSteps = 61;
        model.LinkDriven = model.CalcMode == 5;
        model.CamDriven = model.CalcMode == 4;
        for (int step = 0; step <= model.NumSteps; ++step) {
            const double phase = step * 6 * RadiansPerDegree;
            tables.DriveTheta(step) = static_cast<float>(40 + 20 * std::sin(phase));
            tables.Omega(step, 0) = static_cast<float>(2 * std::cos(phase));
            tables.Alpha(step, 0) = static_cast<float>(-12 * std::sin(phase));
        }
    }

    std::string Grid_Text() {
        DataView view;
        view.grd_Data.width = 900;
        Fill_Grid(*program, labels, view);
        std::string text = view.lbl_Header2.caption + "\n" + view.lbl_Header3.caption + "\n";
        for (int row = 0; row < view.grd_Data.Rows(); ++row) {
            for (int column = 0; column < view.grd_Data.Columns(); ++column)
                text += view.grd_Data(row, column) + "\t";
            text += "\n";
        }
        return text;
    }

    static std::string File_Name(const char* extension) {
        const auto& [name, mode] = GetParam();
        return std::string("tables/") + name + "_mode_" + std::to_string(mode) + "." + extension;
    }

    SlotLabels labels;
};

TEST_P(GoldenTables, AreAsAPersonHasSeenThem) {
    const std::string of_5 = model.LinkageType == "W" ? "Force 54:X" : "Force 53:X";
    ASSERT_EQ(Choose_Functions(*program, {"Theta3", "Veloc CP-1:Mag", "Accel CP-2:Ang", of_5}, labels), "");
    model.PrintStep = 1;
    std::string file;
    Print_to_File(*program, labels, file);
    Expect_Golden(File_Name("dat"), file);
    Expect_Golden(File_Name("txt"), Table_Pages(*program, labels));
    model.PrintStep = 10;
    Expect_Golden(File_Name("grid"), Grid_Text());
    program->selections.LocalCoords = 2;
    Expect_Golden(File_Name("csv"), Table_Csv(*program, labels));
}

INSTANTIATE_TEST_SUITE_P(Chains, GoldenTables,
                         ::testing::Combine(::testing::Values("watt", "hoeken"), ::testing::Range(1, 6)),
                         [](const auto& run) {
                             return std::string(std::get<0>(run.param)) + "_mode_" +
                                    std::to_string(std::get<1>(run.param));
                         });

}  // namespace
}  // namespace kervol
