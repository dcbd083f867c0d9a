// SPDX-License-Identifier: GPL-3.0-or-later
#include "animation/linkage_svg.h"

#include <array>
#include <cmath>
#include <vector>

#include "core/markup_text.h"
#include "core/model_questions.h"

namespace kervol {
namespace {

constexpr int kTimeDecimals = 5;

std::string Attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + "\"";
}

std::string Attribute(const char* name, double value) {
    return Attribute(name, Fixed_Number(value));
}

std::string Position(UserPoint point, const FittedView& view, char parting) {
    return Fixed_Number(view.X(point.x)) + parting + Fixed_Number(view.Y(point.y));
}

/// What all moving parts of a picture have in common: which rows they show when.
class Timeline {
  public:
    explicit Timeline(const TimedCycle& cycle) : rows_(cycle.rows) {
        if (rows_.size() < 2) return;
        Put_Keys(cycle);
        timing_ =
            Attribute("dur", Fixed_Number(cycle.seconds, 4) + "s") + Attribute("repeatCount", "indefinite");
        if (!cycle.smooth) timing_ += Attribute("calcMode", "discrete");
        if (!cycle.smooth || !Is_Even()) timing_ += Attribute("keyTimes", Times());
    }

    bool Is_Empty() const { return rows_.empty(); }

    /// A moving element: `head` opens it, `change` names what is animated, `value` gives it at a row.
    template <class Value>
    std::string Element(const std::string& name, const std::string& head, const std::string& attribute,
                        const std::string& change, Value&& value) const {
        const std::string first = "<" + name + head + Attribute(attribute.c_str(), Wrapped(change, value));
        if (keys_.empty()) return first + "/>\n";
        const std::string type = change.empty() ? "animate" : "animateTransform";
        std::string text = first + "><" + type + Attribute("attributeName", attribute);
        if (!change.empty()) text += Attribute("type", change);
        text += timing_ + " values=\"";
        for (std::size_t i = 0; i < keys_.size(); ++i) text += (i > 0 ? ";" : "") + value(keys_[i].row);
        return text + "\"/></" + name + ">\n";
    }

  private:
    struct Key {
        double time;  ///< as a part of the cycle
        std::int16_t row;
    };

    template <class Value>
    std::string Wrapped(const std::string& change, Value&& value) const {
        const std::string first = value(rows_.front().row);
        return change.empty() ? first : change + "(" + first + ")";
    }

    void Put_Keys(const TimedCycle& cycle) {
        for (const TimedRow& row : rows_) {
            const double time = keys_.empty() ? 0 : row.seconds / cycle.seconds;
            // Over rows that failed the last position stands until the next one is there.
            if (cycle.smooth && !keys_.empty() && !row.joined) keys_.push_back({time, keys_.back().row});
            keys_.push_back({time, row.row});
        }
        if (!cycle.smooth && cycle.closed) keys_.pop_back();
        if (cycle.smooth && !cycle.closed) keys_.push_back({1, keys_.back().row});
    }

    bool Is_Even() const {
        const double count = double(keys_.size()) - 1;
        for (std::size_t i = 0; i < keys_.size(); ++i)
            if (std::abs(keys_[i].time - double(i) / count) > 1e-6) return false;
        return true;
    }

    std::string Times() const {
        std::string text;
        for (const Key& key : keys_)
            text += (text.empty() ? "" : ";") + Fixed_Number(key.time, kTimeDecimals);
        return text;
    }

    std::vector<TimedRow> rows_;
    std::vector<Key> keys_;
    std::string timing_;
};

std::string Moving_Links(const Program& program, const Timeline& timeline, const FittedView& view) {
    const auto count = Link_Shapes(program, 0).size();
    std::string text = "<g stroke-linejoin=\"round\"" + Attribute("stroke-width", view.look().stroke) +
                       " fill-opacity=\"0.18\">\n";
    for (std::size_t i = 0; i < count; ++i) {
        const auto shape = [&](std::int16_t row) { return Link_Shapes(program, row).at(i); };
        const std::string colour = Colour_Text(LinkColours.at(static_cast<std::size_t>(shape(0).link)));
        text += timeline.Element("polygon", Attribute("fill", colour) + Attribute("stroke", colour), "points",
                                 "", [&](std::int16_t row) { return Svg_Corners(shape(row), view); });
    }
    return text + "</g>\n";
}

/// Discs that follow points of the linkage; `points` gives all of them at a row.
template <class Points>
std::string Moving_Discs(const Timeline& timeline, const FittedView& view, std::size_t count,
                         const std::string& head, Points&& points) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += timeline.Element("circle", head, "transform", "translate",
                                 [&](std::int16_t row) { return Position(points(row).at(i), view, ' '); });
    return text;
}

std::string Moving_Pins(const Program& program, const Timeline& timeline, const FittedView& view) {
    const auto joints = [&](std::int16_t row) { return Moving_Joints(program, row); };
    const std::string head = Attribute("r", view.look().pin * 0.75) + " fill=\"#fff\" stroke=\"#444\"" +
                             Attribute("stroke-width", view.look().path);
    return Moving_Discs(timeline, view, joints(0).size(), head, joints);
}

std::string Moving_Coupler_Points(const Program& program, const Timeline& timeline, const FittedView& view) {
    std::string text;
    for (const int number : {1, 2}) {
        if (number == 2 && !Has_Stage2(program.model)) continue;
        const auto point = [&](std::int16_t row) {
            return std::array<UserPoint, 1>{User_Position(program, row, number == 1 ? 2 : 5)};
        };
        const std::string colour = Colour_Text(PathColours.at(static_cast<std::size_t>(number) - 1));
        text += Moving_Discs(timeline, view, 1,
                             Attribute("r", view.look().pin * 0.75) + Attribute("fill", colour), point);
    }
    return text;
}

std::string Moving_Roller(const Program& program, const Timeline& timeline, const FittedView& view) {
    if (program.model.CalcMode != 4) return {};
    const auto arm_end = [&](std::int16_t row) {
        return std::array<UserPoint, 1>{Link_Shapes(program, row).front().corners.back()};
    };
    return Moving_Discs(timeline, view, 1,
                        Attribute("r", view.Length(std::abs(double(program.model.CamRollerRadius)))) +
                            " fill=\"none\"" + Attribute("stroke", Colour_Text(LinkColours[2])) +
                            Attribute("stroke-width", view.look().path),
                        arm_end);
}

/// A pin on a triangle over hatched ground.
std::string Pivot_Sign(UserPoint pivot, const std::string& name, const FittedView& view) {
    const double size = view.look().pivot, half = size * 0.6;
    const std::string down = Fixed_Number(size), out = Fixed_Number(half);
    std::string text =
        "<g" + Attribute("transform", "translate(" + Position(pivot, view, ' ') + ")") + "><path" +
        Attribute("d", "M0 0L-" + out + " " + down + "H" + out + "ZM-" + Fixed_Number(half * 1.6) + " " +
                           down + "H" + Fixed_Number(half * 1.6)) +
        "/><circle" + Attribute("r", view.look().pin) + "/>";
    text += "<text" + Attribute("x", Fixed_Number(half * 1.9)) + Attribute("y", down) +
            " stroke=\"none\" fill=\"currentColor\" fill-opacity=\"1\"" + Attribute("font-size", size * 0.9) +
            ">" + name + "</text>";
    return text + "</g>\n";
}

}  // namespace

std::string Svg_Start(const FittedView& view, const std::string& title, SvgUse use) {
    const std::string width = std::to_string(view.Width()), height = std::to_string(view.Height());
    std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attribute("width", width) +
                       Attribute("height", height) + Attribute("viewBox", "0 0 " + width + " " + height) +
                       " role=\"img\">\n<title>" + Markup_Text(title) + "</title>\n";
    if (use == SvgUse::File) text += "<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>\n";
    return text;
}

std::string Svg_Paths(const Program& program, const FittedView& view, const std::array<Colour, 2>& colours,
                      const std::string& attributes) {
    std::string text;
    for (const int point : {1, 2}) {
        const std::string colour = Colour_Text(colours.at(static_cast<std::size_t>(point) - 1));
        for (const Path& run : Coupler_Path(program, point)) {
            text += "<polyline fill=\"none\"" + Attribute("stroke", colour) +
                    Attribute("stroke-width", view.look().path) + attributes + " points=\"";
            for (std::size_t i = 0; i < run.size(); ++i)
                text += (i > 0 ? " " : "") + Position(run[i], view, ',');
            text += "\"/>\n";
        }
    }
    return text;
}

std::string Svg_Pivots(const LinkageModel& model, const FittedView& view) {
    static constexpr std::array<const char*, 3> kNames = {"O2", "O4", "O6"};
    std::string text = "<g fill=\"#9aa0a8\" fill-opacity=\"0.35\"" +
                       Attribute("stroke", Colour_Text(LinkColours[1])) +
                       Attribute("stroke-width", view.look().path) + " font-family=\"sans-serif\">\n";
    if (model.CalcMode == 4)
        text += "<circle fill=\"none\"" + Attribute("cx", view.X(-double(model.CamCentreX))) +
                Attribute("cy", view.Y(-double(model.CamCentreY))) +
                Attribute("r", view.Length(std::abs(double(model.CamBaseRadius)))) + "/>\n";
    const auto pivots = Fixed_Pivots(model);
    for (std::size_t i = 0; i < pivots.size(); ++i) text += Pivot_Sign(pivots[i], kNames.at(i), view);
    return text + "</g>\n";
}

std::string Svg_Corners(const LinkShape& shape, const FittedView& view) {
    std::string text;
    for (const UserPoint corner : shape.corners)
        text += (text.empty() ? "" : " ") + Position(corner, view, ',');
    return text;
}

std::string Moving_Svg(const Program& program, const TimedCycle& cycle, int size, SvgUse use) {
    const FittedView view(Motion_Extent(program), size);
    const Timeline timeline(cycle);
    const std::string& title = program.model.ModelTitle;
    std::string text = Svg_Start(view, title.empty() ? program.model.ModelName : title, use);
    text += Svg_Paths(program, view, PathColours) + Svg_Pivots(program.model, view);
    if (!timeline.Is_Empty())
        text += Moving_Links(program, timeline, view) + Moving_Roller(program, timeline, view) +
                Moving_Pins(program, timeline, view) + Moving_Coupler_Points(program, timeline, view);
    return text + "</svg>\n";
}

}  // namespace kervol
