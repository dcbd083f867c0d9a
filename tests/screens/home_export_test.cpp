// SPDX-License-Identifier: GPL-3.0-or-later
// Exports of the Home screen, and the way of what was exported back into the program.
#include <fstream>
#include <memory>

#include "screens/home_screen.h"
#include "screens/screens_fixture.h"
#include "support/compare.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HomeExport : public ScreensTest {
  protected:
    void Expect_Link6_Box(const std::string& path) {
        Expect_Box("The angular data for link 6 of this linkage has been written to " + path +
                       "\nThis file can be imported to program Vostrel or Kervol" + path +
                       "\nand used as input data to drive the next stage of a multibar linkage.",
                   Icon::Information);
    }

    TemporaryFolder folder;
};

TEST_F(HomeExport, Link6OfOneLinkageTurnsTheCrankOfTheNext) {
    Calculate_In_Mode(3);
    ASSERT_EQ(model.NumSteps, 36);
    const auto first = std::make_unique<ResultTables>(tables);
    port.files = {folder / "stage.out", folder / "stage.out"};
    home.mnu_Export_Link_Data.click();
    Expect_Link6_Box(folder / "stage.out");
    port.script[ScreenId::frm_Inputnew] = [&] { input.cmd_Calc.click(); };
    home.mnu_Import_Link2_Drive_Data.click();
    Expect_Box("File " + (folder / "stage.out") + " of Linkage output data successfully read.", Icon::None);
    ASSERT_EQ(model.NumSteps, 36);
    for (int i = 0; i <= 36; ++i) {
        EXPECT_NEAR(tables.Theta(i, 0), first->Theta(i, 5), 2e-5) << i;
        EXPECT_EQ(tables.Omega(i, 0), first->Omega(i, 4)) << i;
        EXPECT_EQ(tables.Alpha(i, 0), first->Alpha(i, 4)) << i;
    }
}

TEST_F(HomeExport, TheExportsProposeTheModelsName) {
    model.ModelName = "crank";
    home.mnu_Export_Link_Data.click();
    home.mnu_Export_Torque.click();
    ASSERT_EQ(port.dialogs.size(), 2U);
    EXPECT_EQ(port.dialogs[0].title, "Export Link 6 Data");
    EXPECT_EQ(port.dialogs[0].filter, "Kervol Export (*.out)|*.out|(*.*)|*.*|");
    EXPECT_EQ(port.dialogs[0].name, "crank_kvl.out");
    EXPECT_EQ(port.dialogs[1].title, "Export Link 2 Driving Torque Data");
    EXPECT_EQ(port.dialogs[1].filter, "Link 2 Torque Export (*.trq)|*.trq|(*.*)|*.*|");
    EXPECT_EQ(port.dialogs[1].name, "crank_kvl.trq");
    EXPECT_THAT(port.trace, ElementsAre("save dialog", "save dialog"));
}

TEST_F(HomeExport, CancelOfAnExportChangesNothing) {
    model.DataCalculated = true;
    const LinkageModel before = model;
    home.mnu_Export_Link_Data.click();
    home.mnu_Export_Torque.click();
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
}

TEST_F(HomeExport, AnExportBecomesTheFileInUseSoThatSaveWritesTheModelOverIt) {
    Calculate_In_Mode(3);
    struct Case {
        MenuItem& entry;
        const char* file;
        std::size_t boxes;
    };
    for (const Case& one :
         {Case{home.mnu_Export_Link_Data, "a.out", 1}, Case{home.mnu_Export_Torque, "a.trq", 0}}) {
        SCOPED_TRACE(one.file);
        model.DataSaved = false;
        port.files = {folder / one.file};
        one.entry.click();
        EXPECT_EQ(Boxes_Left(), one.boxes);
        while (Boxes_Left() > 0) Take_Box();
        EXPECT_TRUE(model.DataSaved);
        EXPECT_EQ(model.ModelPath, folder / one.file);
        EXPECT_EQ(model.ModelName, "Model_1");
        const std::string exported = Content_Of(folder / one.file);
        home.mnu_Save.click();
        Expect_Box("File was successfully written to \n" + (folder / one.file), Icon::Information);
        EXPECT_THAT(Content_Of(folder / one.file), ::testing::StartsWith("\"KERVOL for Windows\""));
        EXPECT_EQ(Content_Of((folder / one.file) + "~"), exported);
    }
}

TEST_F(HomeExport, AnExportThatCannotBeWrittenIsReportedUnderItsEntry) {
    Calculate_In_Mode(3);
    port.files = {folder / "none/a.out", folder.path().string()};
    home.mnu_Export_Link_Data.click();
    Expect_Fault(76, "mnu_link4_Click");
    home.mnu_Export_Torque.click();
    Expect_Fault(75, "mnu_Torque_export_Click");
    EXPECT_FALSE(model.DataSaved);
}

TEST_F(HomeExport, TheTorqueIsExportedOnceTheDynamicsAreThere) {
    Calculate_In_Mode(3);
    Home_Form_Activate(*screens);
    EXPECT_TRUE(home.mnu_Export.enabled);
    EXPECT_FALSE(home.mnu_Export_Torque.enabled);
    port.script[ScreenId::frm_MassProp] = [&] {
        screens->frm_MassProp.cmd_Solve.click();
        screens->frm_MassProp.cmd_Done.click();
    };
    home.cmd_Dynamics.click();
    Home_Form_Activate(*screens);
    EXPECT_TRUE(home.mnu_Export_Torque.enabled);
    port.files = {folder / "a.trq"};
    home.mnu_Export_Torque.click();
    std::ifstream file(folder / "a.trq");
    int count = 0;
    file >> count;
    EXPECT_EQ(count, 36);
    for (int i = 0; i <= 36; ++i) {
        float torque = 0;
        ASSERT_TRUE(file >> torque) << i;
        EXPECT_EQ(torque, tables.TorqueTable(i, 0)) << i;
    }
}

TEST_F(HomeExport, ATorqueOutAndInLoadsLink6AndComesBackWithTheModelWithoutAnImport) {
    MassPropScreen& dynamics = screens->frm_MassProp;
    Calculate_In_Mode(3);
    port.script[ScreenId::frm_MassProp] = [&] {
        dynamics.cmd_Solve.click();
        dynamics.cmd_Done.click();
    };
    home.cmd_Dynamics.click();
    port.files = {folder / "a.trq", folder / "a.trq", folder / "loaded.kvl", folder / "loaded.kvl"};
    home.mnu_Export_Torque.click();
    std::vector<float> torques;
    for (int i = 0; i <= 36; ++i) torques.push_back(tables.TorqueTable(i, 0));
    port.script[ScreenId::frm_MassProp] = [&] {
        dynamics.chk_Torque.on = true;
        dynamics.chk_Torque.click();
    };
    home.cmd_Dynamics.click();
    Expect_Box("File " + (folder / "a.trq") + " of Torque data successfully read.", Icon::None);
    home.mnu_Saveas.click();
    Take_Box();

    tables.Torque21Imported.Fill(0);
    Put_Check(dynamics.chk_Torque, false);
    port.trace.clear();
    home.mnu_Open.click();
    Take_Box();
    EXPECT_TRUE(dynamics.chk_Torque.on);
    EXPECT_TRUE(model.TorqueImported);
    for (int i = 0; i <= 36; ++i)
        EXPECT_EQ(tables.Torque21Imported(i), torques[static_cast<std::size_t>(i)]) << i;
    EXPECT_THAT(port.trace,
                ElementsAre("open dialog", "fill while loading", "box", "show frm_Inputnew modal"));
}

}  // namespace
}  // namespace kervol
