// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/fft_events.h"

#include <algorithm>
#include <string>

#include "catalogue/lists.h"
#include "catalogue/selection.h"
#include "core/arithmetic.h"
#include "core/header.h"
#include "core/number_text.h"
#include "core/report.h"
#include "fourier/transform.h"
#include "plots/chart_plots.h"
#include "screens/printing.h"
#include "screens/wiring.h"

namespace kervol {
namespace {

constexpr std::int16_t kMostTicks = 15;
constexpr const char* kComponent = "X";

constexpr const char* kTooManyHarmonics =
    "Number of harmonics cannot exceed 1/2 the number of data points available.\r"
    "If you want more bandwidth, recalculate all data with smaller increments. \r"
    "Use the [INPUT] button from the Home Screen to do so.";

constexpr const char* kNowAvailable =
    " The FFT of the selected function is \r"
    " now available for output as \r"
    " 'Current FFT' from the Preset Format\r"
    " lists on the PRINT and PLOT screens";

/// Half as many as there are data points, to the even one of two neighbours.
std::int16_t Most_Harmonics(const LinkageModel& model) {
    return Int16(model.NumSteps / 2.0);
}

void Read_Harmonics(Screens& screens) {
    screens.program.fourier.NumHarmonics = Int16(Val(screens.frm_FFT.cmb_Harmonics.text));
}

/// A box, then back to the field that it speaks of.
void Ask_For(Screens& screens, const char* text, Icon icon, const char* control) {
    Port& port = screens.program.port;
    port.Show_Message({text, icon});
    port.Set_Focus(ScreenId::frm_FFT, control);
    port.Set_Pointer(Pointer::Default);
}

bool Check_Harmonics(Screens& screens) {
    const bool HarmonicsOK = screens.program.fourier.NumHarmonics > 0;
    if (!HarmonicsOK)
        Ask_For(screens, " Must set the number of harmonics to a value > 0", Icon::Exclamation,
                "cmb_Harmonics");
    return HarmonicsOK;
}

bool Check_Selection(Screens& screens) {
    const bool SelectionOK = !screens.program.fourier.FFTFunctionName.empty();
    if (!SelectionOK)
        Ask_For(screens, " Please select a function for FFT calculation", Icon::Question, "cmb_Var1");
    return SelectionOK;
}

/// Shows the function, which titles what the transform is given to.
void Put_Function(Screens& screens, const std::string& name) {
    screens.frm_FFT.cmb_Var1.text = screens.program.fourier.FFTFunctionName = name;
}

void Set_FFT_Buttons(FFTScreen& screen, bool enabled) {
    for (Button* button : {&screen.cmd_Done, &screen.cmd_Print, &screen.cmd_Copy}) button->enabled = enabled;
}

/// The most harmonics, then what divides them, down to 3.
void Fill_Harmonics(const LinkageModel& model, FFTScreen& screen) {
    ComboBox& box = screen.cmb_Harmonics;
    screen.Loading = true;
    const int most = Most_Harmonics(model);
    box.text = std::to_string(most);
    box.items = {box.text};
    for (int divisor = 2; divisor <= most && most >= 3 * divisor; ++divisor)
        if (most % divisor == 0) box.items.push_back(std::to_string(most / divisor));
    screen.Loading = false;
}

void FFT_Plot_Setup(Screens& screens) {
    Program& program = screens.program;
    FFTScreen& screen = screens.frm_FFT;
    Procedure(program, "FFT_Plot_Setup", [&] {
        const FourierState& fourier = program.fourier;
        for (Chart& chart : screen.grf_Plot) chart.visible = true;
        screen.lbl_Header.caption = Put_Header(program.model);
        for (std::int16_t graph = 0; graph < fourier.NumPlots; ++graph) {
            Chart& chart = screen.grf_Plot.at(static_cast<std::size_t>(graph));
            SetGridstyle(screen, {&chart, 1});
            chart.look.sticks = true;
            // A chart cannot have its ticks closer than its points.
            const double spacing = Divide(fourier.NumHarmonics, screen.MaxTicks);
            chart.look.TickEvery = std::max<std::int16_t>(Int16(spacing), 1);
            chart.look.LabelEvery = std::max<std::int16_t>(Int16(2 * spacing), 1);
            if (program.selections.PlotTypePick < 4) chart.Put_NumSets(1);
            chart.Put_NumPoints(Last_Harmonic(fourier) + 1);
            chart.look.BottomTitle = "Harmonic Number";
            Put_Chart_Fonts(chart);
        }
    });
}

void FFT_Plot(Screens& screens) {
    Program& program = screens.program;
    Procedure(program, "FFT_Plot", [&] {
        for (std::int16_t graph = 0; graph < program.fourier.NumPlots; ++graph) {
            Chart& chart = screens.frm_FFT.grf_Plot.at(static_cast<std::size_t>(graph));
            chart.look.DrawMode = 2;
            chart.Clear_Data();
            program.selections.SelCurrent = static_cast<std::int16_t>(graph + 1);
            for (std::int16_t i = 0; i <= Last_Harmonic(program.fourier); ++i) {
                chart.ThisPoint = static_cast<std::int16_t>(i + 1);
                chart.Put_GraphData(program.tables.FFTTable(i, graph));
                chart.Put_LabelText(std::to_string(i));
            }
        }
    });
}

/// Once is enough: a second drawing would show the same.
void Replot(Screens& screens) {
    FFT_Plot_Setup(screens);
    FFT_Plot(screens);
}

void cmd_Calc_Click(Screens& screens) {
    Program& program = screens.program;
    FFTScreen& screen = screens.frm_FFT;
    Read_Harmonics(screens);
    if (!Check_Harmonics(screens)) {
        Put_Function(screens, "");
        return;
    }
    // Deliberate: without a function too; what selection 1 last held is transformed then.
    Transform_Function(program, screen.cmb_Var1.text, screen.cmb_Com1.text);
    Replot(screens);
    program.port.Set_Pointer(Pointer::Default);
    Set_FFT_Buttons(screen, true);
    program.port.Set_Focus(ScreenId::frm_FFT, "cmd_Done");
}

void cmb_Harmonics_Click(Screens& screens) {
    FFTScreen& screen = screens.frm_FFT;
    if (screen.Loading) return;
    Program& program = screens.program;
    FourierState& fourier = program.fourier;
    Read_Harmonics(screens);
    if (!Check_Harmonics(screens)) return;
    fourier.FFTFunctionName = screen.cmb_Var1.text;
    if (!Check_Selection(screens)) return;
    if (program.model.NumSteps / 2.0 < fourier.NumHarmonics) {
        fourier.NumHarmonics = Most_Harmonics(program.model);
        screen.cmb_Harmonics.text = std::to_string(fourier.NumHarmonics);
        program.port.Show_Message({kTooManyHarmonics});
    }
    screen.MaxTicks = std::min(fourier.NumHarmonics, kMostTicks);
    Replot(screens);
}

void cmb_Var1_Click(Screens& screens) {
    Program& program = screens.program;
    if (screens.frm_FFT.Loading) return;
    program.fourier.FFTFunctionName = screens.frm_FFT.cmb_Var1.text;
    if (Check_Selection(screens)) return cmd_Calc_Click(screens);
    FFT_Clear_Table(program, program.model.NumSteps);
    Replot(screens);
    program.port.Set_Focus(ScreenId::frm_FFT, "cmb_Var1");
}

void cmb_Com1_Click(Screens& screens) {
    if (!screens.frm_FFT.Loading) cmd_Calc_Click(screens);
}

void cmd_Clear1_Click(Screens& screens) {
    Program& program = screens.program;
    FFTScreen& screen = screens.frm_FFT;
    screen.Loading = true;
    Put_Function(screens, "");
    FFT_Clear_Table(program, program.model.NumSteps);
    program.fourier.FFTReady = false;
    Replot(screens);
    Set_FFT_Buttons(screen, false);
    screen.Loading = false;
}

void cmd_Done_Click(Screens& screens) {
    Program& program = screens.program;
    program.fourier.FFTScreenOpen = false;
    program.port.Show_Message({kNowAvailable, Icon::Information});
    program.port.Hide_Screen(ScreenId::frm_FFT);
}

void cmd_Cancel_Click(Screens& screens) {
    FourierState& fourier = screens.program.fourier;
    fourier.FFTScreenOpen = fourier.FFTReady = false;
    screens.program.port.Hide_Screen(ScreenId::frm_FFT);
}

/// On paper the choice of the function stands, not what it is made with.
void cmd_Print_Click(Screens& screens) {
    Port& port = screens.program.port;
    FFTScreen& screen = screens.frm_FFT;
    if (!Confirm_Printing(port, ScreenId::frm_FFT)) return;
    const std::initializer_list<Control*> off_paper = {
        &screen.cmd_Clear1, &screen.cmd_Calc, &screen.cmd_Done, &screen.cmd_Cancel,
        &screen.cmd_Print,  &screen.cmd_Copy, &screen.fra_Grid, &screen.fra_Style};
    for (Control* control : off_paper) control->visible = false;
    Procedure(screens.program, "frm_FFT.PrintForm", [&] { port.Print_Screen(ScreenId::frm_FFT); });
    for (Control* control : off_paper) control->visible = true;
}

void Form_Load(Screens& screens) {
    Program& program = screens.program;
    FFTScreen& screen = screens.frm_FFT;
    for (Chart& chart : screen.grf_Plot) chart.look = Chart().look;
    Load_Components(program, screen.cmb_Com1);
    screen.cmb_Com1.text = kComponent;
    Set_Component(program.catalogue, program.selections, kComponent, 1);
    screen.cmb_Harmonics.text = "15";
    program.fourier.NumHarmonics = 15;
    screen.MaxTicks = kMostTicks;
}

}  // namespace

void FFT_Form_Activate(Screens& screens) {
    Program& program = screens.program;
    FFTScreen& screen = screens.frm_FFT;
    Form_Load(screens);
    program.fourier.FFTReady = false;
    Set_FFT_Buttons(screen, false);
    Load_Variables(program, screen.cmb_Var1);
    Put_Function(screens, "");
    program.port.Set_Focus(ScreenId::frm_FFT, "cmb_Var1");
    program.fourier.NumPlots = FFTScreen::graphs;
    program.selections.PlotTypePick = 5;
    program.selections.SelCount = 1;
    program.selections.LocalCoords = 0;
    Fill_Harmonics(program.model, screen);
    Read_Harmonics(screens);
    FFT_Clear_Table(program, program.model.NumSteps);
    FFT_Clear_Work(program, program.model.NumSteps);
    Replot(screens);
    program.fourier.FFTScreenOpen = true;
}

void Wire_FFT_Screen(Screens& screens) {
    FFTScreen& screen = screens.frm_FFT;
    const Wiring on(screens);
    on(screen.cmb_Var1.click, "frm_FFT.cmb_Var1", cmb_Var1_Click);
    on(screen.cmb_Com1.click, "frm_FFT.cmb_Com1", cmb_Com1_Click);
    on(screen.cmb_Harmonics.click, "frm_FFT.cmb_Harmonics", cmb_Harmonics_Click);
    on(screen.cmd_Clear1.click, "frm_FFT.cmd_Clear1", cmd_Clear1_Click);
    on(screen.cmd_Calc.click, "frm_FFT.cmd_Calc", cmd_Calc_Click);
    on(screen.cmd_Done.click, "frm_FFT.cmd_Done", cmd_Done_Click);
    on(screen.cmd_Cancel.click, "frm_FFT.cmd_Cancel", cmd_Cancel_Click);
    on(screen.cmd_Print.click, "frm_FFT.PrintForm", cmd_Print_Click);
    on(screen.cmd_Copy.click, "frm_FFT.cmd_Copy",
       [](Screens& all) { Copy_Form(all.program.port, ScreenId::frm_FFT); });
    for (CheckBox* box : {&screen.chk_HGrid, &screen.chk_VGrid, &screen.chk_Line, &screen.chk_Sticks})
        on(box->click, "frm_FFT.Replot", Replot);
}

}  // namespace kervol
