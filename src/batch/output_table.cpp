// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_table.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <span>
#include <sstream>
#include <string_view>

#include "catalogue/catalogue_table.h"
#include "catalogue/lists.h"
#include "catalogue/preset_table.h"
#include "catalogue/table_rows.h"
#include "catalogue/tabulation.h"
#include "core/arithmetic.h"
#include "core/number_text.h"
#include "core/report.h"
#include "headless/text_printer.h"

namespace kervol {
namespace {

constexpr int kFirstOfDynamics = 36;
constexpr int kNameWidth = 17, kComponentsWidth = 14, kUnitWidth = 17;
constexpr std::string_view kSeeFunctions = "; see \"kervol-batch functions\"";

template <std::size_t N>
bool Holds(const Table<std::string, N>& texts, std::string_view text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

bool Offers(const ComboBox& list, std::string_view text) {
    return std::find(list.items.begin(), list.items.end(), text) != list.items.end();
}

std::string Not_Available(const std::string& text) {
    return "\"" + text + "\" needs results that are not there yet" + std::string(kSeeFunctions);
}

bool Is_Name_Of_One_Number(const CatalogueNames& names, std::string_view name) {
    for (int number = 1; number <= CatalogueRows; ++number)
        if (names.CatalogName(number) == name) return Is_One_Number(Catalogue_Row(number));
    return false;
}

/// Name and component of "NAME:COMPONENT", where no name of a function holds a colon. What is one number has
/// its magnitude, whatever was asked for.
SlotBoxes Boxes_Of(const CatalogueNames& names, const std::string& choice) {
    const std::size_t colon = std::min(choice.rfind(':'), choice.size());
    const bool has_component = colon < choice.size();
    SlotBoxes boxes = {choice.substr(0, colon),
                       has_component ? choice.substr(colon + 1) : names.ComponentName(component::X)};
    const bool is_component = Holds(names.ComponentName, boxes.component) && !boxes.component.empty();
    if (is_component && Is_Name_Of_One_Number(names, boxes.variable))
        boxes.component = names.ComponentName(component::Mag);
    return boxes;
}

/// What is wrong with one choice, empty if nothing is. A scalar may be asked for without a component or for
/// its magnitude, which are the same.
std::string Objection(const Program& program, const std::string& choice, const SlotBoxes& boxes) {
    const CatalogueNames& names = program.catalogue;
    ComboBox offered;
    Load_Variables(program, offered);
    if (program.fourier.FFTReady) offered.items.push_back(names.CatalogName(CatalogueRows));
    if (boxes.variable.empty() || !Holds(names.CatalogName, boxes.variable))
        return "\"" + boxes.variable + "\" is no function of this chain" + std::string(kSeeFunctions);
    if (!Offers(offered, boxes.variable)) return Not_Available(boxes.variable);
    if (boxes.component.empty() || !Holds(names.ComponentName, boxes.component))
        return "\"" + choice + "\": a component is X, Y, Mag or Ang";
    return {};
}

/// Shows what the boxes hold as the confirmed choice; the table has a column for each.
void Show_Choice(Program& program, std::span<const SlotBoxes> boxes, SlotLabels& labels) {
    for (std::size_t slot = 0; slot < boxes.size(); ++slot) {
        labels.lbl_Function.at(slot).caption = boxes[slot].variable;
        labels.lbl_Component.at(slot).caption = boxes[slot].component;
    }
    program.selections.NumSelected = Count_Slots(labels).last;
}

/// A field of comma-separated values; quoted where it has to be.
std::string Csv_Field(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

std::string Csv_Heads(Program& program, const SlotLabels& labels) {
    Make_Headers(program);
    const bool angles = program.model.CalcMode == 3;
    std::string line = program.output.HeaderLine3 + (angles ? " (deg)" : " (sec)");
    if (program.selections.SelFFT) line = "Harmonic Number";
    for (std::int16_t k = 1; k <= program.selections.NumSelected; ++k) {
        const ColumnHead head = Head_Of_Column(program, labels, k);
        const std::string unit = head.unit.empty() ? "" : " (" + head.unit + ")";
        line += "," + Csv_Field(head.function + " " + head.component + unit);
    }
    return line + "\r\n";
}

/// What has to be computed beside the motion.
std::string_view Needed_By(const CatalogueRow& row, int number) {
    if (row.code == table_code::FFTTable) return "Fourier transform";
    if (row.code == table_code::FlywheelTorque) return "flywheel";
    return number >= kFirstOfDynamics ? "dynamics" : "";
}

void Put_Function(std::ostream& out, const Program& program, int number) {
    const CatalogueRow& row = Catalogue_Row(number);
    const bool spectrum = row.code == table_code::FFTTable;
    const bool single = Is_One_Number(row);
    const std::string_view needed = Needed_By(row, number);
    out << "  " << std::left << std::setw(kNameWidth - 2) << program.catalogue.CatalogName(number)
        << std::setw(kComponentsWidth) << (single ? "Mag" : "X Y Mag Ang")
        << std::setw(needed.empty() ? 0 : kUnitWidth)
        << (spectrum ? "as transformed" : program.model.UnitText(row.code)) << needed << '\n';
}

template <std::size_t N>
void Put_Titles(std::ostream& out, const char* heading, const Table<std::string, N>& titles) {
    out << '\n' << heading << "\n\n";
    for (int row = 1; row < static_cast<int>(N); ++row) out << "  " << titles(row) << '\n';
}

}  // namespace

std::string Choose_Functions(Program& program, const std::vector<std::string>& functions,
                             SlotLabels& labels) {
    if (functions.size() > NumSlots) return "a table has four functions at most; leave some out";
    std::vector<SlotBoxes> boxes;
    for (const std::string& choice : functions) {
        boxes.push_back(Boxes_Of(program.catalogue, choice));
        std::string objection = Objection(program, choice, boxes.back());
        if (!objection.empty()) return objection;
    }
    std::int16_t k = 0;
    for (SlotBoxes& slot : boxes) Confirm_Slot(program.catalogue, program.selections, slot, ++k);
    Show_Choice(program, boxes, labels);
    return {};
}

std::string Choose_Preset(Program& program, const std::string& title, SlotLabels& labels) {
    const CatalogueNames& names = program.catalogue;
    ComboBox two, four;
    Load_Presets(program, two, 2);
    Load_Presets(program, four, 4);
    if (Offers(two, title)) {
        std::array<SlotBoxes, 2> boxes;
        Apply_Preset2(program, title, boxes);
        Show_Choice(program, boxes, labels);
    } else if (Offers(four, title)) {
        std::array<SlotBoxes, 4> boxes;
        Apply_Preset4(program, title, boxes);
        Show_Choice(program, boxes, labels);
    } else {
        const bool exists = Holds(names.PresetTitle2, title) || Holds(names.PresetTitle4, title);
        if (exists && !title.empty()) return Not_Available(title);
        return "\"" + title + "\" is no preset of this chain" + std::string(kSeeFunctions);
    }
    return {};
}

std::string Table_Csv(Program& program, const SlotLabels& labels) {
    std::string text;
    Procedure(program, "Table_Csv", [&] {
        text = Csv_Heads(program, labels);
        const std::int16_t last = Last_Row(program);
        for (int row = 0; row <= last; ++row) {
            const auto step = static_cast<std::int16_t>(row);
            text += program.selections.SelFFT ? std::to_string(row)
                                              : Plain_Number(Single(Abscissa(program, step)));
            for (std::int16_t k = 1; k <= program.selections.NumSelected; ++k) {
                program.selections.SelCurrent = k;
                text += "," + Plain_Number(Value_At(program, step, k));
            }
            text += "\r\n";
        }
    });
    return text;
}

std::string Table_Pages(Program& program, const SlotLabels& labels) {
    PrintedDocument document;
    TextPrinter printer(document);
    Print_to_Printer(program, labels, printer);
    return document.Text();
}

std::string Function_List(const Program& program) {
    std::ostringstream out;
    out << "Functions\n\n"
        << std::left << std::setw(kNameWidth) << "  Name" << std::setw(kComponentsWidth) << "Components"
        << std::setw(kUnitWidth) << "Unit"
        << "Needs\n";
    for (int number = 1; number <= CatalogueRows; ++number) Put_Function(out, program, number);
    out << "\nAng is in degrees, whatever the unit of the vector.\n";
    Put_Titles(out, "Presets of two functions", program.catalogue.PresetTitle2);
    Put_Titles(out, "Presets of four functions", program.catalogue.PresetTitle4);
    return out.str();
}

}  // namespace kervol
