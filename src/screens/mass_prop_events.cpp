// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/mass_prop_events.h"

#include "core/arithmetic.h"
#include "core/header.h"
#include "core/number_text.h"
#include "core/report.h"
#include "dynamics/link_data.h"
#include "dynamics/solve_forces.h"
#include "files/exchange.h"
#include "screens/fields.h"
#include "screens/home_screen.h"
#include "screens/printing.h"
#include "screens/wiring.h"

namespace kervol {
namespace {

constexpr std::int16_t kAngleCode = 2;

constexpr std::array kForceHelp = {
    " You must resolve the link's external force system to a\r"
    " single force acting at some point with respect to each link's CG.\r"
    " That force will be considered to be constant and non-rotating\r"
    " at a fixed angle with respect to the global coordinate system",

    " You must also define the Position Vector (Mag and Angle) from \r"
    " the link CG to the point of application of the force on that link. \r"
    " Note that this angle is referenced to the link's embedded, rotating \r"
    " local coordinate system whose X axis lies along its line of centers",

    " There may also be an external torque on the link, independent of \r"
    " the external forces",
};

/// A column whose fields show an array of the model as it is.
struct PlainColumn {
    LinkFields MassPropScreen::*fields;
    LinkArray LinkageModel::*values;
    int first_link;
};

constexpr auto kPlainColumns = std::to_array<PlainColumn>({
    {&MassPropScreen::txt_Mass, &LinkageModel::LinkMass, 2},
    {&MassPropScreen::txt_Inertia, &LinkageModel::LinkInertia, 2},
    {&MassPropScreen::txt_MagForce, &LinkageModel::ForceMag, 3},
    {&MassPropScreen::txt_AngForce, &LinkageModel::ForceAngle, 3},
    {&MassPropScreen::txt_DistP, &LinkageModel::ForcePointDist, 3},
    {&MassPropScreen::txt_AngP, &LinkageModel::ForcePointAngle, 3},
    {&MassPropScreen::txt_Torque, &LinkageModel::LinkTorque, 3},
    {&MassPropScreen::txt_Frict, &LinkageModel::LinkFriction, 3},
});

TextField& Field(LinkFields& fields, int link) {
    return fields.at(static_cast<std::size_t>(link));
}

/// In the order in which a field that cannot be taken leaves the ones before it taken.
void Take_Link_Data(MassPropScreen& screen, LinkageModel& model) {
    const auto take = [&](LinkFields& fields, LinkArray& values, int link) {
        values(link) = Number_In(Field(fields, link));
    };
    for (const int link : kMovingLinks) {
        take(screen.txt_Mass, model.LinkMass, link);
        take(screen.txt_Inertia, model.LinkInertia, link);
        model.LinkCG(link, 0) = Number_In(Field(screen.txt_DistCG, link));
        // On the way through degrees an angle that nobody has changed would lose its last digit.
        const TextField& angle = Field(screen.txt_AngCG, link);
        if (!angle.put_value) Set_CG_Angle(model, link, Typed_Number(angle.text));
    }
    for (int link = 3; link <= NumLinks; ++link) {
        take(screen.txt_MagForce, model.ForceMag, link);
        take(screen.txt_AngForce, model.ForceAngle, link);
        Resolve_External_Force(model, link);
        take(screen.txt_DistP, model.ForcePointDist, link);
        take(screen.txt_AngP, model.ForcePointAngle, link);
        take(screen.txt_Torque, model.LinkTorque, link);
    }
    // Deliberate: friction is felt on the couplers alone; the fields of links 4 and 6 are shown and never
    // taken.
    for (const int link : {3, 5}) take(screen.txt_Frict, model.LinkFriction, link);
}

void Put_Unit_Captions(const LinkageModel& model, MassPropScreen& screen) {
    screen.lbl_MassUnit.caption = model.UnitText(14);
    screen.lbl_InertiaUnit.caption = model.UnitText(15);
    screen.lbl_TorqueUnit.caption = model.UnitText(9);
    for (Label& unit : screen.Lbl_DistUnit) unit.caption = model.UnitText(6);
    for (Label& unit : screen.lbl_ForceUnit) unit.caption = model.UnitText(10);
    for (Label& unit : screen.lbl_AngUnit) unit.caption = model.UnitText(1);
}

std::array<Button*, 4> Result_Buttons(MassPropScreen& screen) {
    return {&screen.cmd_Done, &screen.cmd_Matrix, &screen.cmd_Print, &screen.cmd_Copy};
}

void cmd_Solve_Click(Screens& screens) {
    Program& program = screens.program;
    MassPropScreen& screen = screens.frm_MassProp;
    program.port.Set_Pointer(Pointer::Busy);
    Take_Link_Data(screen, program.model);
    Run_Dynamics(program);
    for (Button* button : Result_Buttons(screen)) button->enabled = true;
    program.port.Set_Focus(ScreenId::frm_MassProp, "cmd_Done");
    program.port.Set_Pointer(Pointer::Default);
}

/// Cancel, a refused file and one that cannot be opened clear the box again, which undoes all that setting it
/// did.
void Import_Torque_Function(Screens& screens) {
    MassPropScreen& screen = screens.frm_MassProp;
    const auto path = screens.program.port.Ask_File_To_Open(
        {"Open a Torque Data file", "Torque Import (*.trq)|*.trq|(*.*)|*.*|", "*.trq"});
    bool imported = false;
    try {
        imported = path && Import_Torque(screens.program, *path) != ReadEnd::Refused;
    } catch (const Fault&) {
        Put_Check(screen.chk_Torque, false);
        throw;
    }
    if (imported)
        screen.cmd_Solve.enabled = true;
    else
        Put_Check(screen.chk_Torque, false);
}

/// While an imported torque acts on link 6 its own field gives way.
void chk_Torque_Click(Screens& screens) {
    Announced_Procedure(screens.program, "chk_Torque_Click", [&] {
        LinkageModel& model = screens.program.model;
        MassPropScreen& screen = screens.frm_MassProp;
        TextField& torque = Field(screen.txt_Torque, 6);
        const bool imported = screen.chk_Torque.on;
        Put_Plain_Number(torque, imported ? 0 : model.LinkTorque(6));
        torque.enabled = screen.cmd_Solve.enabled = !imported;
        if (!imported) model.TorqueImported = false;
        if (imported && !model.DataFromFile) Import_Torque_Function(screens);
    });
}

void cmd_Matrix_Click(Screens& screens) {
    screens.frm_MassProp.FromMatrix = true;
    screens.frm_Matrix.lbl_Header.caption = Put_Header(screens.program.model);
    screens.program.port.Show_Screen(ScreenId::frm_Matrix, Modality::Modal);
}

void cmd_Done_Click(Screens& screens) {
    LinkageModel& model = screens.program.model;
    screens.program.port.Hide_Screen(ScreenId::frm_MassProp);
    model.DynamicsCalculated = true;
    model.NewData = true;
    Update_Home_Buttons(screens);
}

}  // namespace

void Put_Link_Data(const LinkageModel& model, MassPropScreen& screen) {
    for (const int link : kMovingLinks) {
        for (const PlainColumn& column : kPlainColumns)
            if (link >= column.first_link)
                Put_Plain_Number(Field(screen.*column.fields, link), (model.*column.values)(link));
        Put_Plain_Number(Field(screen.txt_DistCG, link), model.LinkCG(link, 0));
        const double degrees = CG_Angle_Degrees(model, link);
        Put_Number_Text(Field(screen.txt_AngCG, link), FNRoundStr(degrees, kAngleCode), Single(degrees));
    }
}

void Data_Changed(MassPropScreen& screen) {
    for (Button* button : Result_Buttons(screen)) button->enabled = false;
}

void Forcehelp(Port& port) {
    for (const char* text : kForceHelp) port.Show_Message({text});
}

void Mass_Prop_Form_Activate(Screens& screens) {
    Announced_Procedure(screens.program, "frm_massprop.activate", [&] {
        const LinkageModel& model = screens.program.model;
        MassPropScreen& screen = screens.frm_MassProp;
        screen.cmd_Solve.enabled = true;
        screen.lbl_Header.caption = Put_Header(model);
        Put_Link_Data(model, screen);
        Put_Unit_Captions(model, screen);
        if (!screen.FromMatrix) Data_Changed(screen);
        Put_Check(screen.chk_Torque, model.TorqueImported);
        screen.FromMatrix = false;
    });
}

void Wire_Mass_Prop_Screen(Screens& screens) {
    MassPropScreen& screen = screens.frm_MassProp;
    const Wiring on(screens);
    on(screen.cmd_Solve.click, "cmd_solve_Click", cmd_Solve_Click);
    on(screen.cmd_Matrix.click, "frm_MassProp.cmd_Matrix_Click", cmd_Matrix_Click);
    on(screen.cmd_Done.click, "frm_MassProp.cmd_Done_Click", cmd_Done_Click);
    on(screen.cmd_Cancel.click, "frm_MassProp.cmd_Cancel_Click",
       [](Screens& all) { all.program.port.Hide_Screen(ScreenId::frm_MassProp); });
    on(screen.cmd_Print.click, "frm_Plot1.PrintForm",
       [](Screens& all) { Print_Form(all.program.port, ScreenId::frm_MassProp); });
    on(screen.cmd_Copy.click, "frm_MassProp.cmd_Copy_Click",
       [](Screens& all) { Copy_Form(all.program.port, ScreenId::frm_MassProp); });
    on(screen.cmd_Help.click, "Forcehelp", [](Screens& all) { Forcehelp(all.program.port); });
    screen.chk_Torque.click = [&screens] { chk_Torque_Click(screens); };
    for (LinkFields* fields :
         {&screen.txt_Mass, &screen.txt_Inertia, &screen.txt_DistCG, &screen.txt_AngCG, &screen.txt_MagForce,
          &screen.txt_AngForce, &screen.txt_DistP, &screen.txt_AngP, &screen.txt_Torque, &screen.txt_Frict})
        for (TextField& field : *fields)
            on(field.change, "Data_Changed", [](Screens& all) { Data_Changed(all.frm_MassProp); });
}

}  // namespace kervol
