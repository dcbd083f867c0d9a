// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/print_select_events.h"

#include <cmath>
#include <filesystem>
#include <string>

#include "catalogue/data_grid.h"
#include "catalogue/tabulation.h"
#include "core/arithmetic.h"
#include "core/number_text.h"
#include "core/path_text.h"
#include "core/report.h"
#include "core/text_encoding.h"
#include "files/output_file.h"
#include "screens/printing.h"
#include "screens/selection_rules.h"
#include "screens/wiring.h"

namespace kervol {
namespace {

std::int16_t Whole_Number_In(const ComboBox& box) {
    return Int16(std::floor(Val(box.text)));
}

void Read_Settings(Program& program, PrintSelectScreen& form) {
    for (std::size_t place = 0; place < form.opt_Whereto.size(); ++place)
        if (form.opt_Whereto[place].on) program.output.OutputDest = static_cast<std::int16_t>(place);
    program.selections.LocalCoords = form.opt_Coord[1].on ? 2 : 0;
    Toggle_Coordinate(form, false);
    form.opt_Coord[0].on = true;
    form.opt_Coord[1].on = false;
    program.model.PrintStep = program.selections.SelFFT ? std::int16_t{1} : Whole_Number_In(form.cmb_Step);
    program.output.DecimalPlaces = Whole_Number_In(form.cmb_Decimal);
}

void Show_Table(Screens& screens) {
    Fill_Grid(screens.program, screens.frm_PrintSelect, screens.frm_PrintData);
    screens.program.port.Show_Screen(ScreenId::frm_PrintData, Modality::Modal);
}

void Print_Table(Screens& screens) {
    Program& program = screens.program;
    Procedure(program, "frm_PrintSelect.PrintForm", [&] {
        const auto printer = program.port.Ask_Printer();
        if (printer) Print_to_Printer(program, screens.frm_PrintSelect, *printer);
    });
}

/// Deliberate: Cancel does not keep the table from being written, to the name that was proposed.
std::string Chosen_Path(Program& program) {
    const LinkageModel& model = program.model;
    const std::string name = model.ModelName + ".dat";
    if (const auto path = program.port.Ask_File_To_Save({"Save the Data", "*.dat", name})) return *path;
    const auto folder = std::filesystem::path(model.ModelPath).parent_path();
    return std::filesystem::absolute(folder / name).string();
}

/// Deliberate: the file becomes the one in use, so that a later save writes the model over it.
void Save_Table(Screens& screens) {
    Program& program = screens.program;
    Procedure(program, "frm_PrintSelect.SaveData", [&] {
        const std::string path = Chosen_Path(program);
        program.model.ModelPath = Decoded(path);
        program.model.ModelName = StripFilename(program.model.ModelPath);
        OutputFile file(path);
        std::string text;
        Print_to_File(program, screens.frm_PrintSelect, text);
        file.Write(text);
        file.Close();
    });
}

/// In the order of `opt_Whereto`.
constexpr std::array kWriters = {Show_Table, Print_Table, Save_Table};

void cmd_Done_Click(Screens& screens) {
    Program& program = screens.program;
    Read_Settings(program, screens.frm_PrintSelect);
    kWriters.at(static_cast<std::size_t>(program.output.OutputDest))(screens);
    program.port.Set_Pointer(Pointer::Default);
}

/// The selections load their lists again, as behind every output.
void PrintData_Cancel_Click(Screens& screens) {
    screens.program.model.NewData = true;
    screens.program.port.Hide_Screen(ScreenId::frm_PrintData);
}

}  // namespace

void Print_Select_Form_Activate(Screens& screens) {
    PrintSelectScreen& form = screens.frm_PrintSelect;
    Selection_Form_Activate(screens.program, form);
    form.cmb_Step.text = std::to_string(screens.program.model.PrintStep);
}

void Wire_Print_Select_Screens(Screens& screens) {
    PrintSelectScreen& form = screens.frm_PrintSelect;
    PrintDataScreen& data = screens.frm_PrintData;
    const Wiring on(screens);
    Wire_Selection_Form(screens.program, form);
    on(form.cmd_Done.click, "frm_PrintSelect.cmd_Done", cmd_Done_Click);
    on(form.cmd_Cancel.click, "frm_PrintSelect.cmd_Cancel",
       [](Screens& all) { all.program.port.Hide_Screen(ScreenId::frm_PrintSelect); });
    on(data.cmd_PrintForm.click, "frm_PrintData.PrintForm",
       [](Screens& all) { Print_Form(all.program.port, ScreenId::frm_PrintData); });
    on(data.cmd_Copy.click, "frm_PrintData.cmd_Copy",
       [](Screens& all) { Copy_Form(all.program.port, ScreenId::frm_PrintData, Icon::None); });
    on(data.cmd_Cancel.click, "frm_PrintData.cmd_Cancel", PrintData_Cancel_Click);
}

}  // namespace kervol
