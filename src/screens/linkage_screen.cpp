// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/linkage_screen.h"

namespace kervol {
namespace {

void Put_Captions(LinkageScreen& screen) {
    static constexpr std::array<const char*, NumLinkFields> kCaptions = {
        "Link 1 (O2-O4)",
        "Link 2 (O2-A)",
        "Link 3 (A-B)",
        "Link 4 (O4-B)",
        "Link O4-D",
        "Angle Delta4",
        "Link 5 (D-E)",
        "Link 6 (O6-E)",
        "X",
        "Y",
        " Dist Coup Pt (A-C)",
        "Ang to 1st Coup Pt",
        "Dist Coup Pt (D-F)",
        "Ang to 2nd Coup Pt (delta5)",
        "Angle to Ground",
        "X",
        "Y",
    };
    for (std::size_t field = 0; field < kCaptions.size(); ++field)
        screen.lbl_Left[field].caption = kCaptions[field];
    for (Label& label : screen.lbl_Degrees) label.caption = "deg";
    for (std::size_t field = 3; field < NumInitialFields; ++field)
        screen.lbl_Unit[field].caption = std::array{"rad/s", "rad/s^2", "deg"}[field - 3];
    for (auto* options : {&screen.opt_OpenCross1, &screen.opt_OpenCross2}) {
        (*options)[0].caption = "Open";
        (*options)[1].caption = "Crossed";
    }
    screen.chk_autoscale.caption = "Autoscale";
    screen.chk_autoscale.on = true;
    screen.cmd_Step.caption = "&Step";
    screen.cmd_Reset.caption = "Rese&t";
    screen.lbl_StepLabel.caption = "Theta2";
    screen.lbl_StepUnit.caption = "deg";
    screen.lbl_cw.caption = "CW";
    screen.lbl_ccw.caption = "CCW";
    screen.lbl_time.caption = "Time";
}

}  // namespace

InputScreen::InputScreen() {
    Put_Captions(*this);
    lbl_Left[Field_LinkO4D].caption = "O4D or cp3 dist";
    lbl_Left[Field_Delta4].caption = "Delta4 or Delta3";
    lbl_Linkout2.caption = lbl_Left[Field_Coupler2].caption;
    opt_SteveWatt[0].caption = "Watt";
    opt_SteveWatt[1].caption = "Stephenson";
    opt_Calctype[0].caption = "&Angle Steps";
    opt_Calctype[1].caption = "&One Position";
    opt_Calctype[2].caption = "&Time Steps";
    chk_autocalc.caption = "Autocalc On";
    cmd_Calc.caption = "&Calculate";
    cmd_Draw.caption = "&ReDraw";
    cmd_Next.caption = "&Next >";
    cmd_Animate.caption = "&Animate";
    cmd_Cancel.caption = "< &Back";
    cmd_Print.caption = "&Print";
}

AnimateScreen::AnimateScreen() {
    Put_Captions(*this);
    hsc_speed.maximum = 32767;
    chk_Showlinks.on = true;
    cmb_wait.items = {"10", "20", "40", "100", "500"};
    cmb_wait.text = "1000";
    chk_Trace.caption = "Trace";
    chk_Showlinks.caption = "Links";
    chk_Coupler.caption = "Coupler Path";
    chk_Points.caption = "Coupler Pts";
    cmd_Run.caption = "&Run";
    cmd_Recalc.caption = "&Recalc";
    cmd_Copy.caption = "&Print";
    cmd_Done.caption = "&Next >";
    cmd_Back.caption = "< &Back";
}

}  // namespace kervol
