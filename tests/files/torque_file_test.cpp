// SPDX-License-Identifier: GPL-3.0-or-later
// The torque file: the crank torque of one linkage on link 6 of another.
#include "files/torque_file.h"

#include <algorithm>

#include "core/fault.h"
#include "dynamics/solve_forces.h"
#include "files/exchange.h"
#include "files/full_disk.h"
#include "kinematics/step_count.h"
#include "support/compare.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::IsEmpty;

const std::string kNotice = "An error has occurred in the Import_Torque_Data routine";

class TorqueFile : public ProgramTest {
  protected:
    void SetUp() override {
        Poison_Tables(tables);
        model.NumSteps = 2;
        before = model;
    }
    ReadEnd Read(const std::string& content) {
        ValueReader file(content);
        return Import_Torque_Data(*program, file);
    }
    void Expect_Rows(std::initializer_list<float> rows) {
        int i = 0;
        for (const float row : rows) EXPECT_EQ(tables.Torque21Imported(i++), row) << i - 1;
        EXPECT_EQ(tables.Torque21Imported(i), Poison);
    }
    /// The notice, then the report.
    void Expect_Torque_Fault(std::int32_t number) {
        Expect_Box(kNotice);
        Expect_Fault(number, "Import_Torque_Data");
    }

    const TemporaryFolder folder;
    LinkageModel before = model;
};

TEST_F(TorqueFile, GivesATorqueForEachStep) {
    EXPECT_EQ(Read("2\r\n1.5\r\n-2.25\r\n1E-05\r\n"), ReadEnd::Whole);
    Expect_Rows({1.5F, -2.25F, 1e-5F});
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
}

TEST_F(TorqueFile, OfAnotherCountIsRefused) {
    for (const std::string count : {"1", "3", "0", "-2", "32767"}) {
        EXPECT_EQ(Read(count + "\r\n1.5\r\n-2.25\r\n3\r\n"), ReadEnd::Refused);
        Expect_Box("This file has a different number of data than your current model and is incompatible",
                   Icon::Exclamation);
        EXPECT_EQ(std::count(tables.Torque21Imported.begin(), tables.Torque21Imported.end(), Poison), 1025);
    }
}

TEST_F(TorqueFile, IsJudgedByItsCountAndNotByItsRows) {
    model.NumSteps = 36;
    std::string rows;
    for (int i = 0; i < 37; ++i) rows += std::to_string(i) + "\r\n";
    EXPECT_EQ(Read("36\r\n" + rows), ReadEnd::Whole);
    EXPECT_EQ(tables.Torque21Imported(36), 36);
    EXPECT_EQ(Read("36\r\n" + rows + "37\r\n38\r\n"), ReadEnd::Whole) << "the rest is not looked at";
    EXPECT_EQ(Read("35\r\n" + rows), ReadEnd::Refused);
    Expect_Box("This file has a different number of data than your current model and is incompatible",
               Icon::Exclamation);
}

TEST_F(TorqueFile, OfAsManyStepsAsTheTablesHoldIsTakenWhole) {
    std::string rows;
    for (int i = 0; i <= 1025; ++i) rows += std::to_string(i) + "\r\n";
    model.NumSteps = 1024;
    EXPECT_EQ(Read("1024\r\n" + rows), ReadEnd::Whole);
    EXPECT_EQ(tables.Torque21Imported(1024), 1024);
    model.NumSteps = 1025;
    EXPECT_EQ(Read("1025\r\n" + rows), ReadEnd::Cut);
    Expect_Torque_Fault(9);
}

TEST_F(TorqueFile, ThatIsCutKeepsTheRowsReadUntilThen) {
    const std::string content = "2\r\n1.5\r\n-2.25\r\n37.5\r\n";
    for (std::size_t length = 0; length <= 15; ++length) {
        SCOPED_TRACE(length);
        Poison_Tables(tables);
        const ReadEnd end = Read(content.substr(0, length));
        EXPECT_EQ(end, length == 0 ? ReadEnd::Nothing : ReadEnd::Cut);
        Expect_Box(kNotice);
        // What is left of a number may be none.
        const std::string heading = Take_Box().text.substr(0, 8);
        EXPECT_TRUE(heading == "Error 62" || heading == "Error 13") << heading;
        EXPECT_EQ(tables.Torque21Imported(2), Poison);
        if (length >= 6) {
            EXPECT_EQ(tables.Torque21Imported(0), 1.5F);
        }
        if (length >= 13) {
            EXPECT_EQ(tables.Torque21Imported(1), -2.25F);
        }
        if (length < 3) {
            EXPECT_EQ(tables.Torque21Imported(0), Poison);
        }
    }
    for (std::size_t length = 16; length <= content.size(); ++length)
        EXPECT_EQ(Read(content.substr(0, length)), ReadEnd::Whole) << length;
}

TEST_F(TorqueFile, WithSomethingElseInPlaceOfANumberStopsThere) {
    struct Case {
        const char* text;
        std::int32_t fault;
    };
    for (const Case& c : {Case{"abc", 13}, Case{"\"1\"", 13}, Case{"", 13}, Case{"nan", 13}, Case{"-inf", 13},
                          Case{"0x1F", 13}, Case{"1,5x", 13}, Case{"1E+39", 6}, Case{"-4E+38", 6}}) {
        SCOPED_TRACE(c.text);
        Poison_Tables(tables);
        EXPECT_EQ(Read("2\r\n1.5\r\n" + std::string(c.text) + "\r\n3\r\n"), ReadEnd::Cut);
        Expect_Torque_Fault(c.fault);
        EXPECT_EQ(tables.Torque21Imported(0), 1.5F);
        EXPECT_EQ(tables.Torque21Imported(2), Poison);
    }
    for (const Case& c : {Case{"abc", 13}, Case{"32768", 6}, Case{"99999999999", 6}, Case{"1E+39", 6}}) {
        EXPECT_EQ(Read(std::string(c.text) + "\r\n1.5\r\n"), ReadEnd::Nothing);
        Expect_Torque_Fault(c.fault);
    }
}

TEST_F(TorqueFile, ByItsPathLoadsLink6) {
    model.DataSaved = model.DynamicsCalculated = true;
    const std::string path = folder.Put("press.trq", "2\r\n1.5\r\n-2.25\r\n3\r\n");
    EXPECT_EQ(Import_Torque(*program, path), ReadEnd::Whole);
    Expect_Box("File " + path + " of Torque data successfully read.");
    Expect_Rows({1.5F, -2.25F, 3});
    EXPECT_EQ(model.ModelPath, path);
    EXPECT_EQ(model.TorqueFileName, "press.trq");
    EXPECT_TRUE(model.TorqueImported);
    EXPECT_FALSE(model.DataSaved);
    EXPECT_FALSE(model.DynamicsCalculated);
    EXPECT_EQ(model.ModelName, before.ModelName);
}

TEST_F(TorqueFile, ThatIsRefusedLeavesLink6WithoutAnImportedTorque) {
    model.DataSaved = model.DynamicsCalculated = model.TorqueImported = true;
    EXPECT_EQ(Import_Torque(*program, folder.Put("press.trq", "7\r\n1\r\n")), ReadEnd::Refused);
    Take_Box();
    EXPECT_FALSE(model.TorqueImported);
    EXPECT_TRUE(model.DataSaved);
    EXPECT_TRUE(model.DynamicsCalculated);
    EXPECT_EQ(model.TorqueFileName, "press.trq");
}

TEST_F(TorqueFile, ThatIsCutIsReportedAndStillCountsAsImported) {
    EXPECT_EQ(Import_Torque(*program, folder.Put("press.trq", "2\r\n1.5\r\n")), ReadEnd::Cut);
    Expect_Torque_Fault(62);
    Expect_Box("File " + model.ModelPath + " of Torque data successfully read.");
    EXPECT_TRUE(model.TorqueImported);
}

TEST_F(TorqueFile, ThatCannotBeOpenedIsTheCallersToReport) {
    const auto number = [&](const std::string& path) {
        try {
            Import_Torque(*program, path);
            return 0;
        } catch (const Fault& fault) {
            return fault.number;
        }
    };
    EXPECT_EQ(number(folder / "none.trq"), 53);
    EXPECT_EQ(number(folder.path().string()), 75);
    EXPECT_EQ(number(""), 52);
    EXPECT_FALSE(model.TorqueImported);
}

TEST_F(TorqueFile, IsWrittenOneTorqueALine) {
    tables.TorqueTable(0, 0) = 1.5F;
    tables.TorqueTable(1, 0) = -2.25F;
    tables.TorqueTable(2, 0) = 1.5e-5F;
    const std::string path = folder.Put("crank_kvl.trq", "earlier");
    EXPECT_TRUE(Export_Torque(*program, path));
    EXPECT_EQ(Content_Of(path), "2\r\n1.5\r\n-2.25\r\n1.5E-05\r\n");
    EXPECT_EQ(Content_Of(path + "~"), "earlier");
    EXPECT_EQ(model.ModelPath, path);
    EXPECT_TRUE(model.DataSaved);
}

TEST_F(TorqueFile, ThatCannotBeWrittenIsReportedAndNotSaved) {
    EXPECT_FALSE(Export_Torque(*program, folder.path().string()));
    Expect_Fault(75, "mnu_Torque_export_Click");
    {
        const FullDisk full(10);
        EXPECT_FALSE(Export_Torque(*program, folder / "crank.trq"));
    }
    Expect_Fault(61, "Export_Torque_Data");
    model.NumSteps = 1025;
    EXPECT_FALSE(Export_Torque(*program, folder / "crank.trq"));
    Expect_Fault(9, "Export_Torque_Data");
    EXPECT_FALSE(model.DataSaved);
}

TEST_F(TorqueFile, OfOneLinkageLoadsLink6OfTheNext) {
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    ASSERT_EQ(Run_Dynamics(*program), 37);
    const std::string path = folder / "crank_kvl.trq";
    ASSERT_TRUE(Export_Torque(*program, path));
    std::vector<float> crank;
    for (int i = 0; i <= 36; ++i) crank.push_back(tables.TorqueTable(i, 0));

    ASSERT_EQ(Import_Torque(*program, path), ReadEnd::Whole);
    Take_Box();
    for (int i = 0; i <= 36; ++i)
        EXPECT_EQ(tables.Torque21Imported(i), crank[static_cast<std::size_t>(i)]) << i;
    ASSERT_EQ(Run_Dynamics(*program), 37);
    EXPECT_EQ(model.LinkTorque(6), 0) << "the import stands in its place";
    for (int i = 0; i <= 36; ++i) {
        // Work of the imported torque at link 6 is done by the crank, on top of what it did before.
        const double more = double(tables.TorqueTable(i, 0)) - crank[static_cast<std::size_t>(i)];
        const double work = -double(crank[static_cast<std::size_t>(i)]) * tables.Omega(i, 4);
        EXPECT_NEAR(more * tables.Omega(i, 0), work, 1e-4 * (1 + std::abs(work))) << i;
    }
}

TEST_F(TorqueFile, BelongsToTheSweepBeforeItsImport) {
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    model.TorqueImported = true;
    tables.Torque21Imported(3) = 5;
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    EXPECT_FALSE(model.TorqueImported) << "a sweep of angles clears the tables";
    EXPECT_EQ(tables.Torque21Imported(3), 0);
}

}  // namespace
}  // namespace kervol
