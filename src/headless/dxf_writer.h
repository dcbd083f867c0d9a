// SPDX-License-Identifier: GPL-3.0-or-later
// Drawings in DXF, release 12, as text: what every drawing program reads.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kervol {

struct DxfPoint {
    double x, y;
};

/// Coordinates are written in full, in the unit of the drawing. Names of layers are capitals and digits.
class DxfWriter {
  public:
    /// Colours are numbers of the format: 1 red, 2 yellow, 3 green, 4 cyan, 5 blue, 6 magenta, 7 black or
    /// white, 8 grey. Entities go to layers that were added before.
    void Add_Layer(const std::string& name, int colour);

    void Line(const std::string& layer, DxfPoint from, DxfPoint to);
    void Polyline(const std::string& layer, std::span<const DxfPoint> points);
    void Circle(const std::string& layer, DxfPoint centre, double radius);
    void Point(const std::string& layer, DxfPoint point);
    /// `text` is UTF-8; what is not ASCII is written as the format's code for the character.
    void Text(const std::string& layer, DxfPoint start, double height, std::string_view text);
    /// A remark that programs pass over, before the drawing.
    void Comment(std::string_view text);

    /// The whole file, lines ended with CR LF.
    std::string Finished() const;

  private:
    struct Layer {
        std::string name;
        int colour;
    };

    void Begin(const char* entity, const std::string& layer);
    void Put_Point(DxfPoint point);

    std::vector<Layer> layers_;
    std::string comments_, entities_;
    DxfPoint low_{0, 0}, high_{0, 0};
    bool is_empty_ = true;
};

}  // namespace kervol
