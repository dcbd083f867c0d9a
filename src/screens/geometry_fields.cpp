// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/geometry_fields.h"

#include "catalogue/names.h"
#include "core/geometry.h"
#include "core/mathematics.h"
#include "core/model_questions.h"
#include "core/report.h"
#include "kinematics/sweep.h"
#include "screens/fields.h"

namespace kervol {
namespace {

/// Display codes of the fields.
constexpr std::int16_t kLengthCode = 3;
constexpr std::int16_t kAngleCode = 2;
constexpr std::int16_t kCouplerCode = 1;

/// Reads the fields of one screen into the model.
class GeometryReader {
  public:
    GeometryReader(Screens& screens, LinkageScreen& screen)
        : port_(screens.program.port), model_(screens.program.model), fields_(screen.txt_Linkout) {}

    void Length(LinkField field, float& length) {
        length = Number_In(fields_.at(field));
        Check_Positive(port_, length);
    }

    void Angle(LinkField field, float& degrees, float& radians, std::string& text) {
        degrees = Number_In(fields_.at(field));
        Set_Angle(degrees, radians, text);
    }

    /// Link 1 and the angle to ground follow from O4; a field that the user has left alone changes neither.
    void Ground() {
        TextField& x = fields_.at(Field_O4X);
        TextField& y = fields_.at(Field_O4Y);
        model_.O4X = Number_In(x);
        model_.O4Y = Number_In(y);
        ground_edited_ = Is_Edited(x) || Is_Edited(y);
        if (ground_edited_) Derive_Ground_Link(model_);
        Put_Number(fields_.at(Field_Link1), model_.Link1, kLengthCode);
        Put_Number(fields_.at(Field_Ground), model_.GroundAngleDeg, kAngleCode);
        Derive_Local_O4(model_);
    }

    /// A legacy file brings one coordinate of O6 in each frame: until the user edits a pivot the local ones
    /// stay as they are.
    void Output_Pivot() {
        const TextField& x = fields_.at(Field_O6X);
        const TextField& y = fields_.at(Field_O6Y);
        model_.O6X = Number_In(x);
        model_.O6Y = Number_In(y);
        if (!ground_edited_ && !Is_Edited(x) && !Is_Edited(y)) return;
        Derive_Local_O6(model_);
    }

  private:
    static bool Is_Edited(const TextField& field) { return !field.put_value; }

    Port& port_;
    LinkageModel& model_;
    std::array<TextField, NumLinkFields>& fields_;
    bool ground_edited_ = false;
};

void Put_Common_Fields(const LinkageModel& model, LinkageScreen& screen) {
    auto& fields = screen.txt_Linkout;
    Put_Number(fields.at(Field_Link2), model.LinkTable(2), kLengthCode);
    Put_Number(fields.at(Field_Link3), model.LinkTable(3), kLengthCode);
    Put_Number(fields.at(Field_Link4), model.LinkTable(4), kLengthCode);
    Put_Number(fields.at(Field_Link5), model.LinkTable(5), kLengthCode);
    Put_Number(fields.at(Field_Link6), model.LinkTable(6), kLengthCode);
    Put_Number(fields.at(Field_O6X), model.O6X, kLengthCode);
    Put_Number(fields.at(Field_O6Y), model.O6Y, kLengthCode);
    Put_Number(fields.at(Field_O4X), model.O4X, kLengthCode);
    Put_Number(fields.at(Field_O4Y), model.O4Y, kLengthCode);
}

void Put_Length_Units(const LinkageModel& model, LinkageScreen& screen) {
    for (Label& unit : screen.lbl_Units) unit.caption = model.UnitText(6);
}

void Close_Reading(Screens& screens, const LinkageScreen& screen) {
    LinkageModel& model = screens.program.model;
    Read_OpenCross(model, screen);
    Derive_Geometry(screens.program);
    model.StepMode = "Y";
    model.DataCalculated = false;
}

}  // namespace

void Get_Input_Geometry(Screens& screens) {
    Procedure(screens.program, "Get_Input_Geometry", [&] {
        LinkageModel& model = screens.program.model;
        GeometryReader read(screens, screens.frm_Inputnew);
        read.Length(Field_Link2, model.Link2);
        read.Length(Field_Link3, model.Link3);
        read.Length(Field_Link4, model.Link4);
        read.Length(Field_CouplerAC, model.CouplerAC);
        read.Angle(Field_Delta3, model.Delta3Deg, model.Delta3, model.Delta3Text);
        read.Length(Field_Link5, model.Link5);
        read.Length(Field_Link6, model.Link6);
        read.Length(Field_Coupler2, model.Coupler2Length);
        read.Angle(Field_Delta5, model.Delta5Deg, model.Delta5, model.Delta5Text);
        read.Length(Field_LinkO4D, model.LinkO4D);
        read.Angle(Field_Delta4, model.Delta4Deg, model.Delta4, model.Delta4Text);
        read.Ground();
        read.Output_Pivot();
        Derive_Direction_O6_O4(model);
        Close_Reading(screens, screens.frm_Inputnew);
    });
}

void Put_Input_Geometry(Screens& screens) {
    Procedure(screens.program, "Put_Input_Geometry", [&] {
        const LinkageModel& model = screens.program.model;
        InputScreen& screen = screens.frm_Inputnew;
        Put_Common_Fields(model, screen);
        auto& fields = screen.txt_Linkout;
        Put_Number(fields.at(Field_Link1), model.LinkTable(1), kLengthCode);
        Put_Number(fields.at(Field_LinkO4D), model.LinkTable(7), kLengthCode);
        Put_Number(fields.at(Field_Delta4), model.Delta4Deg, kAngleCode);
        Put_Number(fields.at(Field_CouplerAC), model.CouplerAC, kCouplerCode);
        Put_Number(fields.at(Field_Delta3), model.Delta3Deg, kAngleCode);
        Put_Number(fields.at(Field_Coupler2), model.Coupler2Length, kCouplerCode);
        Put_Number(fields.at(Field_Delta5), model.Delta5Deg, kAngleCode);
        Put_Number(fields.at(Field_Ground), model.GroundAngleDeg, kAngleCode);
        Put_Length_Units(model, screen);
        if (Has_Stage2(model)) {
            screen.opt_SteveWatt[0].on = model.LinkageType == "W";
            screen.opt_SteveWatt[1].on = model.LinkageType == "S";
        }
    });
}

void Get_Calc_Geometry(Screens& screens) {
    Procedure(screens.program, "Get_Calc_Geometry", [&] {
        LinkageModel& model = screens.program.model;
        GeometryReader read(screens, screens.frm_Animate);
        read.Length(Field_Link2, model.Link2);
        read.Length(Field_Link3, model.Link3);
        read.Length(Field_Link4, model.Link4);
        if (model.LinkageType == "W") {
            read.Length(Field_LinkO4D, model.LinkO4D);
            read.Angle(Field_Delta4, model.Delta4Deg, model.Delta4, model.Delta4Text);
        } else if (model.LinkageType == "S") {
            read.Length(Field_LinkO4D, model.CouplerAC);
            read.Angle(Field_Delta4, model.Delta3Deg, model.Delta3, model.Delta3Text);
        }
        read.Length(Field_Link5, model.Link5);
        read.Length(Field_Link6, model.Link6);
        read.Ground();
        read.Output_Pivot();
        Derive_Direction_O6_O4(model);
        Close_Reading(screens, screens.frm_Animate);
    });
}

void Put_Calc_Geometry(Screens& screens) {
    Procedure(screens.program, "Put_Calc_Geometry", [&] {
        const LinkageModel& model = screens.program.model;
        AnimateScreen& screen = screens.frm_Animate;
        const bool watt = model.LinkageType == "W";
        Put_Common_Fields(model, screen);
        auto& fields = screen.txt_Linkout;
        auto& captions = screen.lbl_Left;
        captions.at(Field_LinkO4D).caption = watt ? "Link O4-D" : "Coupler A-C";
        captions.at(Field_Delta4).caption = watt ? "Angle Delta4" : "Angle Delta3";
        captions.at(Field_Link5).caption = watt ? "Link 5 (D-E)" : "Link 5 (C-D)";
        captions.at(Field_Link6).caption = watt ? "Link 6 (O6-E)" : "Link 6 (O6-D)";
        Put_Number(fields.at(Field_Link1), model.Link1, kLengthCode);
        Put_Number(fields.at(Field_Ground), model.GroundAngleDeg, kAngleCode);
        Put_Number(fields.at(Field_LinkO4D), watt ? model.LinkTable(7) : model.CouplerAC, kLengthCode);
        Put_Number(fields.at(Field_Delta4), watt ? model.Delta4Deg : model.Delta3Deg, kLengthCode);
        Put_Length_Units(model, screen);
    });
}

void Read_OpenCross(LinkageModel& model, const LinkageScreen& screen) {
    model.OpenCross1 = screen.opt_OpenCross1[0].on ? 1 : 2;
    model.OpenCross2 = screen.opt_OpenCross2[0].on ? 1 : 2;
    Set_Open_Signs(model);
}

void Put_OpenCross(const LinkageModel& model, LinkageScreen& screen) {
    const auto put = [](std::array<OptionButton, 2>& options, std::int16_t code) {
        options[0].on = code != 2;
        options[1].on = code == 2;
    };
    put(screen.opt_OpenCross1, model.OpenCross1);
    put(screen.opt_OpenCross2, model.OpenCross2);
}

void Change_Labels(Screens& screens) {
    Procedure(screens.program, "Change_Labels", [&] {
        InputScreen& screen = screens.frm_Inputnew;
        const bool watt = screen.opt_SteveWatt[0].on;
        screens.program.model.LinkageType = watt ? "W" : "S";
        if (screen.Picture1 != nullptr) screen.Picture1->Clear();
        for (const int field : {Field_LinkO4D, Field_Delta4}) {
            const auto index = static_cast<std::size_t>(field);
            screen.txt_Linkout[index].visible = watt;
            screen.lbl_Left[index].visible = watt;
            screen.lbl_Units[index].visible = watt;
            screen.lbl_Degrees[index].visible = watt;
        }
        screen.lbl_Left.at(Field_Link5).caption = watt ? "Link 5 (D-E)" : "Link 5 (C-D)";
        screen.lbl_Left.at(Field_Link6).caption = watt ? "Link 6 (O6-E)" : "Link 6 (O6-D)";
        screen.lbl_Linkout2.caption = watt ? "Dist Coup Pt (D-F)" : "Dist Coup Pt (C-F)";
        screen.lbl_directions.caption =
            watt ? "See Figure A-12 in Mechanon for definitions of linkage nomenclature"
                 : "See Figure A-13 in Mechanon for definitions of linkage nomenclature";
        screen.Pnl_Grashof[1].visible = watt;
        screen.lbl_Chain.caption = watt ? "Watt Kervol Linkage" : "Stephenson Kervol Linkage";
        Change_Catalog_Labels(screens.program.catalogue, screens.program.model.LinkageType);
    });
}

}  // namespace kervol
