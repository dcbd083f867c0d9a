// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/tabulation.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "catalogue/table_rows.h"
#include "core/report.h"

namespace kervol {
namespace {

constexpr int kRowsPerPage = 60;
constexpr std::size_t kZoneWidth = 14;
constexpr std::string_view kTab = "\t";
constexpr std::string_view kLineEnd = "\r\n";

/// A line whose items begin at print zones, each behind at least one blank.
class ZoneLine {
  public:
    explicit ZoneLine(std::string_view first) : text_(first), end_(Width(first)) {}
    void Add(std::string_view item) {
        const std::size_t zone = (end_ / kZoneWidth + 1) * kZoneWidth;
        if (!item.empty()) text_.append(zone - Width(text_), ' ').append(item);
        end_ = zone + Width(item);
    }
    const std::string& Text() const { return text_; }

  private:
    /// Characters of a text in UTF-8: all bytes but those that go on with one.
    static std::size_t Width(std::string_view text) {
        return static_cast<std::size_t>(
            std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
    }

    std::string text_;
    std::size_t end_;  ///< where the last item ends, also an empty one
};

/// Appends to the text of a file.
class FileText {
  public:
    explicit FileText(std::string& text) : text_(text) {}
    void Put(std::initializer_list<std::string_view> pieces) {
        for (const std::string_view piece : pieces) text_ += piece;
    }
    void Put_Line(std::initializer_list<std::string_view> pieces) {
        Put(pieces);
        text_ += kLineEnd;
    }
    /// A first entry and four more, each with a tab behind it.
    void Put_Head(std::string_view first, const std::array<Label, NumSlots>& heads) {
        Put({first, kTab});
        for (const Label& head : heads) Put({head.caption, kTab});
        Put_Line({});
        Put_Line({});
    }

  private:
    std::string& text_;
};

void Put_File_Header(Program& program, const SlotLabels& labels, FileText& file) {
    const LinkageModel& model = program.model;
    const DateAndTime now = program.port.Short_Date_And_Time();
    ZoneLine title(model.ProgramTitle);
    title.Add("File ");
    file.Put_Line(
        {title.Text(), "\t", model.ModelName, "\t\tDesign #\t", std::to_string(model.DesignNumber)});
    file.Put_Line({model.UserName, "\t\t", now.date, "\t\t", now.time});
    file.Put_Line({});

    Make_Headers(program);
    const TableOutput& output = program.output;
    file.Put_Line({"   ", output.HeaderLine1});
    file.Put_Line({"   ", output.HeaderLine2});
    file.Put_Line({});
    file.Put_Head(output.HeaderLine3, labels.lbl_Function);
    file.Put_Head(output.HeaderLine4, labels.lbl_Component);
    file.Put({output.HeaderLine5, kTab});
    // Deliberate: an angle of a vector keeps the unit of its table here, and slots without a function show
    // that of the one they had.
    for (std::size_t slot = 0; slot < NumSlots; ++slot)
        file.Put({Table_Unit(program, static_cast<std::int16_t>(slot + 1)), kTab});
    file.Put_Line({});
    file.Put_Line({});
}

void Print_Heads(Printer& printer, const std::string& first, const std::array<Label, NumSlots>& heads) {
    ZoneLine line(first);
    for (const Label& head : heads) line.Add(head.caption);
    printer.Print_Line(line.Text());
}

void Print_Two_Empty_Lines(Printer& printer) {
    printer.Print_Line("");
    printer.Print_Line("");
}

void Print_Header(Program& program, const SlotLabels& labels, const DateAndTime& now, Printer& printer) {
    const LinkageModel& model = program.model;
    ZoneLine title(model.ProgramTitle);
    title.Add("File: " + model.ModelName);
    title.Add("Design #" + std::to_string(model.DesignNumber));
    title.Add("Page " + std::to_string(printer.Page()));
    printer.Print_Line(title.Text());
    ZoneLine author("By: " + model.UserName);
    author.Add(now.date);
    author.Add(now.time);
    printer.Print_Line(author.Text());

    const TableOutput& output = program.output;
    printer.Print_Line(output.HeaderLine1);
    printer.Print_Line(output.HeaderLine2);
    Print_Heads(printer, output.HeaderLine3, labels.lbl_Function);
    Print_Heads(printer, output.HeaderLine4, labels.lbl_Component);
    ZoneLine units(output.HeaderLine5);
    for (std::int16_t k = 1; k <= program.selections.NumSelected; ++k)
        units.Add(Head_Of_Column(program, labels, k).unit);
    printer.Print_Line(units.Text());
    Print_Two_Empty_Lines(printer);
}

std::string Printed_Row(const Program& program, std::int16_t step) {
    ZoneLine line(Abscissa_Text(program, step));
    for (std::int16_t k = 1; k <= program.selections.NumSelected; ++k) line.Add(Value_Text(program, step, k));
    return line.Text();
}

}  // namespace

void Make_Headers(Program& program) {
    const std::int16_t mode = program.model.CalcMode;
    const Selections& selections = program.selections;
    TableOutput& output = program.output;
    output.HeaderLine1 = "Selected Linkage Parameters";
    if (selections.SelFFT)
        output.HeaderLine2 = Transform_Title(program);
    else if (selections.LocalCoords == 0 || selections.LocalCoords == 2)
        output.HeaderLine2.clear();
    if (mode == 3)
        output.HeaderLine3 = "Angle";
    else if (mode == 1 || mode == 2 || mode == 4 || mode == 5)
        output.HeaderLine3 = "Time";
    output.HeaderLine4 = "Step";
    output.HeaderLine5 = mode == 3 ? "Deg" : "Sec";
}

void Print_to_File(Program& program, const SlotLabels& labels, std::string& text) {
    Procedure(program, "Print_to_File", [&] {
        FileText file(text);
        Put_File_Header(program, labels, file);
        For_Each_Printed_Step(program, [&](std::int16_t step) {
            file.Put({Abscissa_Text(program, step), kTab});
            for (std::int16_t k = 1; k <= program.selections.NumSelected; ++k)
                file.Put({Value_Text(program, step, k), kTab});
            file.Put_Line({});
        });
    });
}

void Print_to_Printer(Program& program, const SlotLabels& labels, Printer& printer) {
    Procedure(program, "Print_to_Printer", [&] {
        const DateAndTime now = program.port.Short_Date_And_Time();
        Make_Headers(program);
        Print_Header(program, labels, now, printer);
        int rows = 0;
        For_Each_Printed_Step(program, [&](std::int16_t step) {
            printer.Print_Line(Printed_Row(program, step));
            if (++rows < kRowsPerPage) return;
            // Deliberate: also behind the last row, which leaves a page with the header alone.
            Print_Two_Empty_Lines(printer);
            printer.New_Page();
            Print_Header(program, labels, now, printer);
            rows = 0;
        });
        printer.End_Document();
    });
}

}  // namespace kervol
