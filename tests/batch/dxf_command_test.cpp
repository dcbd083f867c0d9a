// SPDX-License-Identifier: GPL-3.0-or-later
// Drawings of a position, read back entity by entity.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <sstream>

#include "batch/command_run.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// Coordinates below 32 are single precision, off by up to 1e-6 each.
constexpr double kRounding = 5e-6;

struct Entity {
    std::string type, layer;
    std::map<int, double> numbers;

    double Length() const {
        return std::hypot(numbers.at(11) - numbers.at(10), numbers.at(21) - numbers.at(20));
    }
};

struct Dxf {
    std::vector<std::string> layers;
    std::vector<Entity> entities;

    std::vector<Entity> On(const std::string& layer, const std::string& type) const {
        std::vector<Entity> found;
        for (const Entity& entity : entities)
            if (entity.layer == layer && entity.type == type) found.push_back(entity);
        return found;
    }
    /// Lengths of the lines of a layer in their order.
    std::vector<double> Lengths(const std::string& layer) const {
        std::vector<double> lengths;
        for (const Entity& line : On(layer, "LINE")) lengths.push_back(line.Length());
        return lengths;
    }
};

/// Pairs of group code and value; a file that is not made of them fails the test.
Dxf Read_Dxf(const std::string& text) {
    Dxf drawing;
    std::istringstream lines(text);
    std::string code_line, value, section, table_entry;
    while (std::getline(lines, code_line) && std::getline(lines, value)) {
        EXPECT_TRUE(code_line.ends_with('\r') && value.ends_with('\r'));
        value.pop_back();
        const int code = std::stoi(code_line);
        if (code == 0) table_entry = value;
        if (code == 0 && value == "ENDSEC") section.clear();
        if (code == 0 && section == "ENTITIES" && value != "ENDSEC")
            drawing.entities.push_back({value, {}, {}});
        if (code == 2 && table_entry == "SECTION") section = value;
        if (code == 2 && table_entry == "LAYER" && section == "TABLES") drawing.layers.push_back(value);
        if (drawing.entities.empty() || section != "ENTITIES") continue;
        if (code == 8) drawing.entities.back().layer = value;
        if (code >= 10 && code < 60) drawing.entities.back().numbers[code] = std::stod(value);
    }
    EXPECT_EQ(table_entry, "EOF");
    return drawing;
}

void Expect_Lengths(const Dxf& drawing, const std::string& layer, const std::vector<double>& expected) {
    const std::vector<double> lengths = drawing.Lengths(layer);
    ASSERT_EQ(lengths.size(), expected.size()) << layer;
    for (std::size_t i = 0; i < lengths.size(); ++i) EXPECT_NEAR(lengths[i], expected[i], kRounding) << layer;
}

/// Third side of a triangle from two sides and the angle between them.
double Third_Side(double a, double b, double degrees) {
    return std::sqrt(a * a + b * b - 2 * a * b * std::cos(degrees * std::acos(-1.0) / 180));
}

Dxf Drawn(const TemporaryFolder& folder, std::vector<std::string> words) {
    words.insert(words.begin(), "dxf");
    words.insert(words.end(), {"-o", folder / "a.dxf"});
    const CommandRun run = Batch(words);
    EXPECT_EQ(run.code, 0) << run.err;
    return Read_Dxf(Content_Of(folder / "a.dxf"));
}

TEST(Dxf, HasTheLengthsOfAWattChainAtEveryStep) {
    const TemporaryFolder folder;
    for (const char* step : {"0", "7", "23", "36"}) {
        const Dxf drawing = Drawn(folder, {"--example", "watt", "--step", step});
        Expect_Lengths(drawing, "LINK1", {9.375, std::sqrt(29.0), std::hypot(14.375, 2)});
        Expect_Lengths(drawing, "LINK2", {2});
        Expect_Lengths(drawing, "LINK3", {8.625, Third_Side(8.625, 6, 45), 6});
        Expect_Lengths(drawing, "LINK4", {7, Third_Side(7, 8, 30), 8});
        Expect_Lengths(drawing, "LINK5", {7, Third_Side(7, 6, 80), 6});
        Expect_Lengths(drawing, "LINK6", {8});
    }
}

TEST(Dxf, HasTheLengthsOfAStephensonChain) {
    const TemporaryFolder folder;
    const Dxf drawing = Drawn(folder, {"--example", "double-dwell", "--step", "40"});
    Expect_Lengths(drawing, "LINK2", {2.5});
    Expect_Lengths(drawing, "LINK3", {8.64, Third_Side(8.64, 8.75, 8), 8.75});
    Expect_Lengths(drawing, "LINK4", {7.4});
    Expect_Lengths(drawing, "LINK5", {6.1, 0.05, 6.05});  // the coupler point lies on the link
    Expect_Lengths(drawing, "LINK6", {1});
}

TEST(Dxf, DrawsTheStepThatWasAskedFor) {
    const TemporaryFolder folder;
    const Dxf drawing = Drawn(folder, {"--example", "watt", "--step", "9"});  // the crank at 90 degrees
    const Entity crank = drawing.On("LINK2", "LINE").at(0);
    EXPECT_NEAR(crank.numbers.at(11), 0, kRounding);
    EXPECT_NEAR(crank.numbers.at(21), 2, kRounding);
}

TEST(Dxf, KeepsEachPartOnItsLayer) {
    const TemporaryFolder folder;
    const Dxf drawing = Drawn(folder, {"--example", "watt"});
    EXPECT_THAT(drawing.layers, ElementsAre("LINK1", "LINK2", "LINK3", "LINK4", "LINK5", "LINK6", "PIVOTS",
                                            "PINS", "COUPLER1", "COUPLER2"));
    for (const Entity& entity : drawing.entities)
        EXPECT_EQ(std::count(drawing.layers.begin(), drawing.layers.end(), entity.layer), 1) << entity.type;
    EXPECT_EQ(drawing.On("PIVOTS", "CIRCLE").size(), 3U);
    EXPECT_EQ(drawing.On("PINS", "POINT").size(), 4U);
    for (const char* curve : {"COUPLER1", "COUPLER2"}) {
        EXPECT_EQ(drawing.On(curve, "POLYLINE").size(), 1U);
        EXPECT_EQ(drawing.On(curve, "VERTEX").size(), 37U);
    }
    const Entity O6 = drawing.On("PIVOTS", "POINT").at(2);
    EXPECT_NEAR(O6.numbers.at(10), 14.375, kRounding);
    EXPECT_NEAR(O6.numbers.at(20), 2, kRounding);
}

TEST(Dxf, HasTheCouplerCurvesOfTheTables) {
    const TemporaryFolder folder;
    const auto points = Batch({"tables", "--example", "watt"}).Json()["PointPos"];
    const auto vertices = Drawn(folder, {"--example", "watt"}).On("COUPLER2", "VERTEX");
    for (std::size_t i = 0; i <= 36; ++i) {
        EXPECT_NEAR(vertices.at(i).numbers.at(10), points[i][5][0].get<double>(), kRounding);
        EXPECT_NEAR(vertices.at(i).numbers.at(20), points[i][5][1].get<double>(), kRounding);
    }
}

TEST(Dxf, BreaksCurvesWhereStepsFail) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"dxf", Long_Crank_File(folder), "-o", folder / "a.dxf"});
    EXPECT_EQ(run.code, 3);
    EXPECT_EQ(Read_Dxf(Content_Of(folder / "a.dxf")).On("COUPLER1", "POLYLINE").size(), 2U);
}

TEST(Dxf, RefusesAStepThatDoesNotAssemble) {
    const TemporaryFolder folder;
    const CommandRun run = Batch(
        {"dxf", Long_Crank_File(folder), "--step", std::to_string(kFirstFailed), "-o", folder / "a.dxf"});
    EXPECT_EQ(run.code, 4);
    Expect_One_Line(run.err);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.dxf"));
}

TEST(Dxf, RefusesAStepBehindTheLast) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"dxf", "--example", "watt", "--step", "37", "-o", folder / "a.dxf"});
    EXPECT_EQ(run.code, 1);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("the last step of this model is 36"));
}

TEST(Dxf, CannotBeBrokenByATitle) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "t.kvl", [](Program& program) { program.model.ModelTitle = "<a>&\n0\nEOF"; });
    Expect_Lengths(Drawn(folder, {model}), "LINK2", {2});
}

TEST(Dxf, DrawsTheCamOfACamDrive) {
    const TemporaryFolder folder;
    const std::string model = Model_File(folder, "cam.kvl", [](Program& program) {
        program.model.CalcMode = 4;
        program.model.NumSteps = 1;
        program.model.CamBaseRadius = 3;
        program.model.CamRollerRadius = 0.5F;
        program.model.CamCentreX = 1;
        program.model.DriveScale = 1;
        program.model.DriveArmLength = 5;
    });
    const auto circles = Drawn(folder, {model}).On("CAM", "CIRCLE");
    ASSERT_EQ(circles.size(), 2U);
    EXPECT_EQ(circles[0].numbers.at(10), -1);
    EXPECT_EQ(circles[0].numbers.at(40), 3);
    EXPECT_EQ(circles[1].numbers.at(40), 0.5);
    EXPECT_NEAR(std::hypot(circles[1].numbers.at(10), circles[1].numbers.at(20)), 5, kRounding);
}

}  // namespace
}  // namespace kervol
