// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/report_page.h"

#include <cmath>
#include <vector>

#include "animation/linkage_svg.h"
#include "core/model_questions.h"
#include "core/number_text.h"
#include "core/report.h"
#include "files/output_file.h"
#include "report/html_table.h"
#include "report/limits_section.h"
#include "report/line_chart.h"
#include "report/model_words.h"
#include "report/page_parts.h"
#include "report/page_style.h"
#include "report/report_curves.h"
#include "report/torque_analysis.h"
#include "report/trust_section.h"

namespace kervol {
namespace {

constexpr int kPictureSize = 620;
constexpr double kFramesApart = 1.0 / 60;
constexpr int kDigits = 5;

std::string Number(double value) {
    return Short_Number(value, kDigits);
}

std::string With_Unit(double value, const std::string& unit) {
    return Number(value) + " " + unit;
}

class Page {
  public:
    Page(const Program& program, const ReportNotes& notes)
        : program_(program),
          model_(program.model),
          solved_steps_(notes.solved_steps),
          torque_(program, notes.solved_steps),
          boxes_(notes.boxes.begin(), notes.boxes.end()),
          abscissae_(Sweep_Abscissae(program)) {
        const auto further = torque_.Boxes();
        boxes_.insert(boxes_.end(), further.begin(), further.end());
        if (!model_.DataCalculated) return;
        check_ = Check_Of_Report(program_, notes.solved_steps);
        motion_ = Motion_Curves(program_);
        forces_ = Force_Curves(torque_.program(), notes.solved_steps);
    }

    std::string Text() const {
        const std::string title = Markup_Text(Title());
        std::string text =
            "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">\n"
            "<meta name=\"viewport\" content=\"width=device-width,initial-scale=1\">\n" +
            Element("title", title) + "<style>" + std::string(PageStyle) + "</style></head>\n<body><main>\n";
        text += Head() + Overview() + Data();
        if (model_.DataCalculated)
            text += Limits_Section(model_) + Plots() + Extremes_Section() + Flywheel() + Spectrum();
        text += Trust_Section(model_, check_, abscissae_);
        return text + Messages() + Foot() + "</main></body></html>\n";
    }

  private:
    const std::string& Title() const {
        return model_.ModelTitle.empty() ? model_.ModelName : model_.ModelTitle;
    }

    std::string Head() const {
        std::string line = "Model " + model_.ModelName + ", design " + std::to_string(model_.DesignNumber);
        if (!model_.UserName.empty()) line += ", by " + model_.UserName;
        line += ", of " + model_.DateText + " " + model_.TimeText;
        return Element("header",
                       Element("h1", Markup_Text(Title())) + Element("p class=\"soft\"", Markup_Text(line)));
    }

    std::string Overview() const {
        return "<section class=\"columns\">\n" + Figure() + Panel("At a glance", List_Table(Glance())) +
               "</section>\n";
    }

    std::string Figure() const {
        const TimedCycle cycle =
            model_.DataCalculated ? Timed_Cycle(program_, 1, kFramesApart) : TimedCycle{};
        std::string key;
        for (const LinkShape& shape : Link_Shapes(program_, 0))
            key += "<span><i style=\"background:" +
                   Colour_Text(LinkColours.at(static_cast<std::size_t>(shape.link))) + "\"></i>Link " +
                   std::to_string(shape.link) + "</span>\n";
        std::string told;
        if (cycle.seconds > 0 && cycle.speed > 0)
            told = "One cycle takes " + Fixed_Number(cycle.seconds) + " s here" +
                   (cycle.speed > 0.999 ? ", as it does in the machine. " : ", slower than in the machine. ");
        return Element("figure", Moving_Svg(program_, cycle, kPictureSize, SvgUse::Page) +
                                     Element("figcaption", told + "<span class=\"key\">" + key + "</span>"));
    }

    std::vector<NamedText> Glance() const {
        std::vector<NamedText> lines = {Geometry_Lines(model_).front()};
        for (const NamedText& line : Class_Lines(model_))
            lines.push_back({line.name, line.text.starts_with("is ") ? line.text.substr(3) : line.text});
        lines.push_back({"Drive", Drive_Text(model_)});
        if (!model_.DataCalculated) {
            lines.push_back({"State", "not calculated"});
            return lines;
        }
        const int last = Last_Step(model_);
        lines.push_back({"Steps", std::to_string(last + 1)});
        lines.push_back({"Steps not assembled", Failed_Steps(program_.tables, last)});
        for (const CurveGroup& group : motion_)
            if (group.title == TransmissionAngles)
                for (const Curve& curve : group.curves) Add_Least(lines, group, curve);
        for (const CurveGroup& group : forces_)
            if (group.title == DrivingTorque || group.title == ShakingForce) Add_Peak(lines, group);
        if (forces_.empty())
            lines.push_back({"Forces", "not calculated"});
        else if (solved_steps_ <= last)
            lines.push_back({"Forces not solved", "from step " + std::to_string(solved_steps_) + " on"});
        if (!check_.checks.empty()) lines.push_back({"Trust", Trust_In_Short(model_, check_)});
        return lines;
    }

    void Add_Least(std::vector<NamedText>& lines, const CurveGroup& group, const Curve& curve) const {
        if (const auto extremes = Extremes_Of(curve))
            lines.push_back({"Least transmission angle, " + curve.name,
                             Value_At_Crank(extremes->low, group, extremes->low_step)});
    }

    /// The greater one, by its size, of the extremes of the group's first curve.
    void Add_Peak(std::vector<NamedText>& lines, const CurveGroup& group) const {
        const auto extremes = Extremes_Of(group.curves.front());
        if (!extremes) return;
        const bool low = std::abs(extremes->low) > std::abs(extremes->high);
        lines.push_back({"Peak of the " + Lower_Case(group.title),
                         Value_At_Crank(low ? extremes->low : extremes->high, group,
                                        low ? extremes->low_step : extremes->high_step)});
    }

    std::string Value_At_Crank(double value, const CurveGroup& group, int step) const {
        return With_Unit(value, group.unit) + " at " + Crank(step) + " deg";
    }

    static std::string Lower_Case(std::string text) {
        if (!text.empty() && text[0] >= 'A' && text[0] <= 'Z')
            text[0] = static_cast<char>(text[0] - 'A' + 'a');
        return text;
    }

    std::string Crank(int step) const { return Fixed_Number(program_.tables.Theta(step, 0), 1); }

    std::string Data() const {
        return "<section><h2>Model</h2><div class=\"columns data\">\n" +
               Panel("Geometry", List_Table(Geometry_Lines(model_))) +
               Panel("Mass and loads", "<div class=\"wide\">" + Link_Data() + "</div>") +
               "</div></section>\n";
    }

    std::string Link_Data() const {
        const auto unit = [&](int code) { return " [" + model_.UnitText(code) + "]"; };
        HtmlTable table({"", "Link 2", "Link 3", "Link 4", "Link 5", "Link 6"}, 1);
        const auto add = [&](const std::string& name, int first, auto&& value) {
            std::vector<std::string> cells = {name};
            for (int link = 2; link <= NumLinks; ++link)
                cells.push_back(link < first ? "" : Plain_Number(float(value(link))));
            table.Add_Row(cells);
        };
        add("Mass" + unit(14), 2, [&](int link) { return model_.LinkMass(link); });
        add("Moment of inertia" + unit(15), 2, [&](int link) { return model_.LinkInertia(link); });
        add("Centre of gravity, distance" + unit(6), 2, [&](int link) { return model_.LinkCG(link, 0); });
        add("Centre of gravity, angle [rad]", 2, [&](int link) { return model_.LinkCG(link, 1); });
        add("External force" + unit(10), 3, [&](int link) { return model_.ForceMag(link); });
        add("its direction [deg]", 3, [&](int link) { return model_.ForceAngle(link); });
        add("its point, distance" + unit(6), 3, [&](int link) { return model_.ForcePointDist(link); });
        add("its point, angle [deg]", 3, [&](int link) { return model_.ForcePointAngle(link); });
        add("External torque" + unit(9), 3, [&](int link) { return model_.LinkTorque(link); });
        add("Friction force" + unit(10), 3, [&](int link) { return model_.LinkFriction(link); });
        return table.Text();
    }

    std::string Plots() const {
        if (Last_Step(model_) < 1) return {};
        std::string text = "<section><h2>Motion</h2><div class=\"columns\">\n" +
                           Group_Charts(motion_, abscissae_) + "</div>";
        if (!forces_.empty())
            text += "<h2>Torque and forces</h2><div class=\"columns\">\n" +
                    Group_Charts(forces_, abscissae_) + "</div>";
        return text + "</section>\n";
    }

    std::string Extremes_Section() const {
        HtmlTable table({"", "Least", "at crank angle [deg]", "Greatest", "at crank angle [deg]"}, 1);
        bool any = false;
        for (const auto* groups : {&motion_, &forces_})
            for (const CurveGroup& group : *groups) any = Add_Extremes(table, group) || any;
        if (!any) return {};
        return "<section><h2>Extremes</h2><div class=\"panel wide narrow\">\n" + table.Text() +
               "</div></section>\n";
    }

    bool Add_Extremes(HtmlTable& table, const CurveGroup& group) const {
        bool any = false;
        for (const Curve& curve : group.curves) {
            const auto extremes = Extremes_Of(curve);
            if (!extremes) continue;
            if (!any) table.Add_Group(group.title + " [" + group.unit + "]");
            any = true;
            table.Add_Row({curve.name, Number(extremes->low), Crank(extremes->low_step),
                           Number(extremes->high), Crank(extremes->high_step)});
        }
        return any;
    }

    std::string Flywheel() const {
        if (!torque_.program().model.FlywheelCalculated) return {};
        const FlywheelSizing& sizing = torque_.flywheel();
        const std::string& unit = model_.UnitText(9);
        const auto range = [&](const TorqueRange& torque) {
            return With_Unit(torque.Tmin, unit) + " to " + With_Unit(torque.Tmax, unit);
        };
        std::string lines;
        for (const std::string& line : sizing.areas.Text) lines += Markup_Text(line) + "\n";
        return "<section><h2>Flywheel</h2><div class=\"columns\">\n" +
               Panel("Sizing", List_Table({{"Coefficient of fluctuation", Plain_Number(model_.CoefFluct)},
                                           {"Average torque", With_Unit(sizing.areas.Average, unit)},
                                           {"Torque without it", range(sizing.without)},
                                           {"Torque with it", range(sizing.with)},
                                           {"Pulses in the cycle", std::to_string(sizing.areas.NPulses)}})) +
               Panel("Energy of the pulses", Element("pre", lines)) + "</div></section>\n";
    }

    std::string Spectrum() const {
        const std::vector<double>& amplitudes = torque_.spectrum();
        if (amplitudes.empty()) return {};
        LineChart chart = {.title = "Spectrum of the driving torque",
                           .x_label = "Harmonic of the range of crank angles",
                           .y_label = model_.UnitText(9),
                           .abscissae = {},
                           .curves = {{"Amplitude", {}}},
                           .kind = ChartKind::Bars};
        for (std::size_t i = 0; i < amplitudes.size(); ++i) {
            chart.abscissae.push_back(static_cast<double>(i));
            chart.curves[0].values.emplace_back(amplitudes[i]);
        }
        return "<section><h2>Spectrum of the torque</h2><div class=\"columns\">\n" +
               Element("figure", Chart_Svg(chart)) + "</div></section>\n";
    }

    std::string Messages() const {
        if (boxes_.empty()) return {};
        std::vector<std::string> texts;
        for (const MessageBox& box : boxes_) texts.push_back(box.text);
        return "<section><h2>Messages</h2><div class=\"panel\">" + Bullets(texts) + "</div></section>\n";
    }

    std::string Foot() const {
        const DateAndTime now = program_.port.Short_Date_And_Time();
        return Element("footer",
                       Markup_Text("Made by " + model_.ProgramTitle + " " + model_.VersionText + ", Rev. " +
                                   model_.ReleaseText + ", " + now.date + " " + now.time));
    }

    const Program& program_;
    const LinkageModel& model_;
    int solved_steps_;
    TorqueAnalysis torque_;
    std::vector<MessageBox> boxes_;
    Abscissae abscissae_;
    SelfCheck check_;
    std::vector<CurveGroup> motion_, forces_;
};

}  // namespace

std::string Report_Page(const Program& program, const ReportNotes& notes) {
    return Page(program, notes).Text();
}

bool Write_Report(Program& program, const std::string& path, const ReportNotes& notes) {
    return Procedure(program, "Write_Report", [&] {
        const std::string page = Report_Page(program, notes);
        OutputFile file(path);
        file.Write(page);
        file.Close();
    });
}

}  // namespace kervol
