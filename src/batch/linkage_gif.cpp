// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/linkage_gif.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "animation/fitted_view.h"
#include "core/model_questions.h"
#include "headless/gif_writer.h"
#include "headless/raster_canvas.h"

namespace kervol {
namespace {

constexpr Colour kWhite = {255, 255, 255}, kDark = {60, 64, 70};
constexpr double kLinkOpacity = 0.18;
/// A single position has no time of its own.
constexpr int kStandingDelay = 100;

class LinkageCanvas {
  public:
    LinkageCanvas(const Program& program, int size)
        : program_(program), view_(Motion_Extent(program), size) {}

    const FittedView& View() const { return view_; }

    RasterCanvas Standing() const {
        RasterCanvas canvas(view_.Width(), view_.Height(), kWhite);
        for (const int point : {1, 2})
            for (const Path& run : Coupler_Path(program_, point))
                canvas.Stroke(Pixels(run), false, view_.look().path,
                              PathColours.at(static_cast<std::size_t>(point) - 1));
        for (const UserPoint pivot : Fixed_Pivots(program_.model)) Put_Pivot(canvas, At(pivot));
        const LinkageModel& model = program_.model;
        if (model.CalcMode == 4)
            canvas.Ring(At({-model.CamCentreX, -model.CamCentreY}),
                        view_.Length(std::abs(double(model.CamBaseRadius))), view_.look().path,
                        LinkColours[1]);
        return canvas;
    }

    void Put_Position(RasterCanvas& canvas, std::int16_t row) const {
        for (const LinkShape& shape : Link_Shapes(program_, row)) Put_Link(canvas, shape);
        if (program_.model.CalcMode == 4)
            canvas.Ring(At(Link_Shapes(program_, row).front().corners.back()),
                        view_.Length(std::abs(double(program_.model.CamRollerRadius))), view_.look().path,
                        LinkColours[2]);
        for (const UserPoint joint : Moving_Joints(program_, row)) Put_Pin(canvas, At(joint));
        canvas.Disc(At(User_Position(program_, row, 2)), view_.look().pin * 0.75, PathColours[0]);
        if (Has_Stage2(program_.model))
            canvas.Disc(At(User_Position(program_, row, 5)), view_.look().pin * 0.75, PathColours[1]);
    }

  private:
    PixelPoint At(UserPoint point) const { return {view_.X(point.x), view_.Y(point.y)}; }

    std::vector<PixelPoint> Pixels(const std::vector<UserPoint>& points) const {
        std::vector<PixelPoint> pixels;
        pixels.reserve(points.size());
        for (const UserPoint point : points) pixels.push_back(At(point));
        return pixels;
    }

    void Put_Link(RasterCanvas& canvas, const LinkShape& shape) const {
        const Colour colour = LinkColours.at(static_cast<std::size_t>(shape.link));
        const auto corners = Pixels(shape.corners);
        canvas.Fill(corners, colour, kLinkOpacity);
        canvas.Stroke(corners, corners.size() > 2, view_.look().stroke, colour);
    }

    void Put_Pin(RasterCanvas& canvas, PixelPoint at) const {
        canvas.Disc(at, view_.look().pin * 0.75, kWhite);
        canvas.Ring(at, view_.look().pin * 0.75, view_.look().path, kDark);
    }

    void Put_Pivot(RasterCanvas& canvas, PixelPoint at) const {
        const double down = at.y + view_.look().pivot, half = view_.look().pivot * 0.6;
        const std::vector<PixelPoint> sign = {at, {at.x - half, down}, {at.x + half, down}};
        const std::vector<PixelPoint> ground = {{at.x - 1.6 * half, down}, {at.x + 1.6 * half, down}};
        canvas.Stroke(sign, true, view_.look().path, LinkColours[1]);
        canvas.Stroke(ground, false, view_.look().path, LinkColours[1]);
        canvas.Disc(at, view_.look().pin, LinkColours[1]);
    }

    const Program& program_;
    FittedView view_;
};

/// Hundredths of a second from each frame to the next: differences of rounded times, so that the whole cycle
/// keeps its time.
std::vector<int> Delays(const TimedCycle& cycle) {
    std::vector<double> ends;
    for (std::size_t i = 1; i < cycle.rows.size(); ++i) ends.push_back(cycle.rows[i].seconds);
    if (!cycle.closed) ends.push_back(cycle.seconds);
    if (cycle.seconds <= 0) return {kStandingDelay};
    std::vector<int> delays;
    long before = 0;
    for (const double end : ends) {
        const long now = std::lround(std::min(end * 100, 1e9));
        delays.push_back(static_cast<int>(now - before));
        before = now;
    }
    return delays;
}

}  // namespace

std::string Moving_Gif(const Program& program, const TimedCycle& cycle, int size) {
    if (cycle.rows.empty()) return {};
    const LinkageCanvas drawing(program, size);
    std::vector<Colour> inks(LinkColours.begin() + 1, LinkColours.end());
    inks.insert(inks.end(), PathColours.begin(), PathColours.end());
    inks.push_back(kDark);
    GifWriter file(drawing.View().Width(), drawing.View().Height(), kWhite, inks);
    const RasterCanvas standing = drawing.Standing();
    const std::vector<int> delays = Delays(cycle);
    for (std::size_t i = 0; i < delays.size(); ++i) {
        RasterCanvas canvas = standing;
        drawing.Put_Position(canvas, cycle.rows[i].row);
        file.Add(canvas, delays[i]);
    }
    return file.Finished();
}

}  // namespace kervol
