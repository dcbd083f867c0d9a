// SPDX-License-Identifier: GPL-3.0-or-later
// Two models side by side.
#include <cmath>
#include <functional>
#include <map>
#include <sstream>

#include "batch/command_run.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ContainsRegex;
using ::testing::HasSubstr;
using ::testing::Not;

/// "Function Component" of each line of changes, with its largest change and rms.
std::map<std::string, std::pair<double, double>> Changes(const std::string& out) {
    std::map<std::string, std::pair<double, double>> changes;
    std::istringstream lines(out.substr(std::min(out.find("Changes, B less A"), out.size())));
    std::string line;
    while (std::getline(lines, line)) {
        if (line.size() < 60 || line.find("Function") != std::string::npos) continue;
        std::istringstream name(line.substr(2, 15)), component(line.substr(17, 11));
        std::string words, word, part;
        while (name >> word) words += (words.empty() ? "" : " ") + word;
        component >> part;
        changes[words + " " + part] = {std::stod(line.substr(28, 14)), std::stod(line.substr(54, 14))};
    }
    return changes;
}

class Compare : public ::testing::Test {
  protected:
    std::string Model(const std::string& name, const std::function<void(LinkageModel&)>& edit = {}) {
        return Model_File(folder, name, [&](Program& program) {
            if (edit) edit(program.model);
        });
    }
    TemporaryFolder folder;
};

TEST_F(Compare, FindsNothingBetweenAModelAndItsCopy) {
    const CommandRun run = Batch({"compare", Model("a.kvl"), Model("b.kvl")});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("No field is different.\n"));
    EXPECT_THAT(run.out, HasSubstr("Compared at 37 steps.\n"));
    const auto changes = Changes(run.out);
    // Angles, speeds and accelerations of links, four ratios, six torques and the flywheel's in one
    // component, the other 37 functions in four.
    EXPECT_EQ(changes.size(), 17U + 4U + 6U + 1U + 4 * 37U);
    for (const auto& [name, change] : changes) EXPECT_EQ(change, std::make_pair(0.0, 0.0)) << name;
}

TEST_F(Compare, NamesTheFieldsThatChanged) {
    const CommandRun run = Batch({"compare", Model("a.kvl"), Model("b.kvl", [](LinkageModel& model) {
                                      model.Link2 = 2.5F;
                                      model.LinkMass(3) = 0.5F;
                                      model.LinkCG(4, 1) = 0.25F;
                                      model.ModelTitle = "Other";
                                      model.AnimCycles = 7;
                                  })});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out, ContainsRegex("\n  Link2 +2 +2\\.5\n"));
    EXPECT_THAT(run.out, ContainsRegex("\n  LinkMass\\[3\\] +0\\.01 +0\\.5\n"));
    EXPECT_THAT(run.out, ContainsRegex("\n  LinkCG\\[4\\]\\[1\\] +0 +0\\.25\n"));
    EXPECT_THAT(run.out, ContainsRegex("\n  AnimCycles +1 +7\n"));
    EXPECT_THAT(run.out, ContainsRegex("\n  ModelTitle +\"Kervol Watts .*\" \"Other\"\n"));
    EXPECT_THAT(run.out, Not(HasSubstr("ModelName")));
    EXPECT_THAT(run.out, Not(HasSubstr("Delta3 ")));
}

/// Twice the crank speed doubles every velocity and makes accelerations four times as large; positions stay.
TEST_F(Compare, TellsLargestAndRmsChangeOfEveryFunction) {
    const std::string slow = Model("a.kvl"),
                      fast = Model("b.kvl", [](LinkageModel&model) { model.Omega2Start *= 2; });
    const auto changes = Changes(Batch({"compare", slow, fast}).out);
    const auto tables = Batch({"tables", slow}).Json();
    const auto expect = [&](const std::string& function, double factor, auto&& value) {
        double largest = 0, squares = 0;
        for (std::size_t step = 0; step <= 36; ++step) {
            const double change = factor * value(step);
            if (std::abs(change) > std::abs(largest)) largest = change;
            squares += change * change;
        }
        ASSERT_EQ(changes.count(function), 1U) << function;
        // The numbers are written with five digits.
        EXPECT_NEAR(changes.at(function).first, largest, 1e-4 * std::abs(largest)) << function;
        EXPECT_NEAR(changes.at(function).second, std::sqrt(squares / 37), 1e-4 * std::sqrt(squares / 37))
            << function;
    };
    expect("Omega6 Mag", 1, [&](std::size_t step) { return tables["Omega"][step][4].get<double>(); });
    expect("Alpha6 Mag", 3, [&](std::size_t step) { return tables["Alpha"][step][4].get<double>(); });
    expect("Veloc CP-1 Y", 1, [&](std::size_t step) { return tables["PointVel"][step][2][1].get<double>(); });
    EXPECT_EQ(changes.at("Theta6 Mag").first, 0);
    EXPECT_EQ(changes.at("Cpler Pt-2 X").first, 0);
}

TEST_F(Compare, TakesAnglesTheShortWayRound) {
    // A turned ground turns every link by 20 degrees, some of them over 360.
    const auto changes = Changes(Batch({"compare", Model("a.kvl"),
                                        Model("b.kvl",
                                              [](LinkageModel& model) {
                                                  model.ThetaMinDeg = 20;
                                                  model.ThetaMaxDeg = 380;
                                              })})
                                     .out);
    EXPECT_NEAR(changes.at("Theta2 Mag").first, 20, 1e-3);
    EXPECT_NEAR(changes.at("Theta2 Mag").second, 20, 1e-3);
}

TEST_F(Compare, PairsStepsByTheCrankWhereTheirNumbersDiffer) {
    const CommandRun run = Batch(
        {"compare", Model("a.kvl"), Model("b.kvl", [](LinkageModel& model) { model.ThetaStepDeg = 15; })});
    EXPECT_EQ(run.code, 0) << run.err;
    // 0, 30, 60 ... 360 degrees.
    EXPECT_THAT(run.out, HasSubstr("A has 37 steps, B 25: compared at 13 crank angles that both have.\n"));
    for (const auto& [name, change] : Changes(run.out)) {
        if (name.starts_with("Theta")) {
            EXPECT_NEAR(change.first, 0, 1e-3) << name;
        }
    }
}

TEST_F(Compare, RefusesStepsThatHaveNothingInCommon) {
    const CommandRun run = Batch({"compare", Model("a.kvl"), Model("b.kvl", [](LinkageModel& model) {
                                      model.ThetaMinDeg = 5;
                                      model.ThetaMaxDeg = 95;
                                  })});
    EXPECT_EQ(run.code, 4);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("no crank angle is common to both"));
    EXPECT_THAT(run.out, ContainsRegex("\n  ThetaMinDeg +0 +5\n"));
}

TEST_F(Compare, TellsWhatAssemblesInOneAlone) {
    const CommandRun run = Batch({"compare", Model("a.kvl"), Long_Crank_File(folder)});
    EXPECT_EQ(run.code, 3);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.out, HasSubstr("Compared at 20 steps; 17 steps more in A alone.\n"));
}

TEST_F(Compare, DrawsBothOverEachOther) {
    const std::string file = folder.Put("o.svg", "older");
    const CommandRun run = Batch({"compare", Model("a.kvl"),
                                  Model("b.kvl",
                                        [](LinkageModel& model) {
                                            model.Link2 = 2.5F;
                                            model.ModelTitle = "<B> & co";
                                        }),
                                  "-o", file});
    EXPECT_EQ(run.code, 0) << run.err;
    const std::string svg = Content_Of(file);
    const auto count = [&](const std::string& piece) {
        std::size_t found = 0;
        for (std::size_t at = svg.find(piece); at != std::string::npos; at = svg.find(piece, at + 1)) ++found;
        return found;
    };
    EXPECT_EQ(count("<polygon"), 6U);                 // links 3, 4 and 5 of both
    EXPECT_EQ(count("<polyline points"), 4U);         // cranks and links 6
    EXPECT_EQ(count("<polyline fill=\"none\""), 4U);  // coupler curves
    EXPECT_THAT(svg, HasSubstr("B: b  &lt;B&gt; &amp; co"));
    EXPECT_THAT(svg, Not(HasSubstr("<B>")));
    EXPECT_EQ(Content_Of(file + "~"), "older");
}

TEST_F(Compare, NeedsTwoModels) {
    const std::string model = Model("a.kvl");
    EXPECT_EQ(Batch({"compare", model}).code, 1);
    const CommandRun run = Batch({"compare", model, folder / "none.kvl"});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("none.kvl"));
}

}  // namespace
}  // namespace kervol
