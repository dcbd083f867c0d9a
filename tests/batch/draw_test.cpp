// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures from the command line: whole files of the size that was asked for, and clear words where there is
// none.
#include <filesystem>
#include <string_view>

#include "batch/command_run.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

/// Big-endian number of four bytes, as PNG files have them.
int Number_At(const std::string& bytes, std::size_t place) {
    int number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number = number * 256 + static_cast<unsigned char>(bytes.at(place + i));
    return number;
}

struct Pixels {
    int width, height;

    bool operator==(const Pixels&) const = default;
};

Pixels Png_Size(const std::string& path) {
    const std::string png = Content_Of(path);
    EXPECT_THAT(png, StartsWith("\x89PNG\r\n\x1A\n"));
    EXPECT_THAT(png, HasSubstr("IEND")) << "whole";
    return {Number_At(png, 16), Number_At(png, 20)};
}

int Count(const std::string& text, std::string_view part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

/// Every element that is opened is closed, in order, and nothing stands behind the root.
void Expect_Well_Formed(const std::string& xml) {
    std::vector<std::string> open;
    int roots = 0;
    for (std::size_t at = xml.find('<'); at != std::string::npos; at = xml.find('<', at + 1)) {
        const std::size_t end = xml.find('>', at);
        ASSERT_NE(end, std::string::npos);
        const std::string tag = xml.substr(at + 1, end - at - 1);
        if (tag.front() == '?' || tag.front() == '!') continue;
        if (tag.front() == '/') {
            ASSERT_FALSE(open.empty());
            EXPECT_EQ(open.back(), tag.substr(1));
            open.pop_back();
            continue;
        }
        if (open.empty()) ++roots;
        if (tag.back() != '/') open.push_back(tag.substr(0, tag.find_first_of(" \r\n\t")));
    }
    EXPECT_TRUE(open.empty());
    EXPECT_EQ(roots, 1);
}

TEST(Draw, WritesOnePositionAsSvgInTheSizeThatIsAskedFor) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"draw", "--example", "watt", "--size", "321", "-o", folder / "a.svg"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err + run.out, "");
    const std::string svg = Content_Of(folder / "a.svg");
    Expect_Well_Formed(svg);
    EXPECT_THAT(svg, HasSubstr("width=\"321\" height=\"321\""));
    EXPECT_GT(Count(svg, "<circle"), 6) << "pivots and pins";
    EXPECT_GT(Count(svg, "<path"), 4) << "links, axes and paths";
}

TEST(Draw, AStepIsAnotherPositionAndAllAreMore) {
    const TemporaryFolder folder;
    const auto svg = [&](std::vector<std::string> more) {
        std::vector<std::string> words = {"draw", "--example", "watt", "-o", folder / "a.svg"};
        words.insert(words.end(), more.begin(), more.end());
        EXPECT_EQ(Batch(words).code, 0);
        return Content_Of(folder / "a.svg");
    };
    const std::string first = svg({});
    EXPECT_EQ(svg({"--step", "0"}), first) << "the first position without a word";
    EXPECT_NE(svg({"--step", "5"}), first);
    EXPECT_GT(Count(svg({"--all"}), "<circle"), 10 * Count(first, "<circle"));
}

TEST(Draw, WritesPngAndPdfToo) {
    const TemporaryFolder folder;
    const CommandRun png = Batch({"draw", "--example", "hoeken", "--size", "300", "-o", folder / "a.PNG"});
    EXPECT_EQ(png.code, 0) << png.err;
    EXPECT_EQ(png.err, "");
    EXPECT_EQ(Png_Size(folder / "a.PNG"), (Pixels{300, 300}));
    const CommandRun pdf = Batch({"draw", "--example", "hoeken", "--all", "-o", folder / "a.pdf"});
    EXPECT_EQ(pdf.code, 0) << pdf.err;
    EXPECT_THAT(Content_Of(folder / "a.pdf"), StartsWith("%PDF-"));
    EXPECT_THAT(Content_Of(folder / "a.pdf"), HasSubstr("%%EOF"));
}

TEST(Draw, KeepsWhatItOverwrites) {
    const TemporaryFolder folder;
    folder.Put("a.png", "earlier");
    EXPECT_EQ(Batch({"draw", "--example", "watt", "-o", folder / "a.png"}).code, 0);
    EXPECT_EQ(Content_Of(folder / "a.png~"), "earlier");
}

TEST(Draw, APositionThatIsNotThereIsToldAndWritesNothing) {
    const TemporaryFolder folder;
    const CommandRun behind = Batch({"draw", "--example", "watt", "--step", "37", "-o", folder / "a.svg"});
    EXPECT_EQ(behind.code, 1);
    EXPECT_EQ(behind.err, "kervol-batch: there is no step 37; the last one is 36\n");
    const std::string model = Long_Crank_File(folder);
    const CommandRun failed = Batch({"draw", model, "--step", "10", "-o", folder / "a.svg"});
    EXPECT_EQ(failed.code, 4);
    EXPECT_EQ(failed.err, "kervol-batch: step 10 does not assemble\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "a.svg"));
    const CommandRun others = Batch({"draw", model, "--all", "-o", folder / "a.svg"});
    EXPECT_EQ(others.code, 3) << "the positions that assemble are drawn";
    Expect_Well_Formed(Content_Of(folder / "a.svg"));
}

TEST(Draw, RefusesWrongWordsInOneLine) {
    const TemporaryFolder folder;
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"draw", "--example", "watt"},
             {"draw", "-o", folder / "a.svg"},
             {"draw", "--example", "watt", "-o", folder / "a.jpg"},
             {"draw", "--example", "watt", "-o", ""},
             {"draw", "--example", "watt", "-o", folder / "a.svg", "--step", "1", "--all"},
             {"draw", "--example", "watt", "-o", folder / "a.svg", "--step", "-1"},
             {"draw", "--example", "watt", "-o", folder / "a.svg", "--size", "0"},
             {"draw", "--example", "watt", "-o", folder / "a.png", "--size", "100000"},
         }) {
        const CommandRun run = Batch(words);
        EXPECT_EQ(run.code, 1) << words.back();
        Expect_One_Line(run.err);
    }
    const CommandRun nowhere = Batch({"draw", "--example", "watt", "-o", folder / "no/a.png"});
    EXPECT_EQ(nowhere.code, 2);
    EXPECT_EQ(nowhere.err, "kervol-batch: " + (folder / "no/a.png") + ": Path not found: check the folder\n");
}

TEST(Plot, AnAnnotatedChartHasTextsAsTextsAndALegendEntryForEachFunction) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"plot", "--example", "watt", "--function", "Omega3", "Veloc CP-1:Y",
                                  "--size", "900x600", "-o", folder / "a.svg"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err + run.out, "");
    const std::string svg = Content_Of(folder / "a.svg");
    Expect_Well_Formed(svg);
    for (const char* text : {"Crank Angle (Deg)", "Omega3 Mag rad/sec", "Veloc CP-1 Y in/sec", ">120.<"})
        EXPECT_THAT(svg, HasSubstr(text));
    EXPECT_THAT(svg, HasSubstr("DejaVu Sans"));
    EXPECT_THAT(svg, HasSubstr("viewBox=\"0 0 1000"));
}

TEST(Plot, WindowsAreOneForAllOrOneForEach) {
    const TemporaryFolder folder;
    const std::vector<std::string> words = {
        "plot", "--example",     "watt", "--preset", "Omega magnitudes for links 3, 4, 5, 6",
        "-o",   folder / "a.svg"};
    EXPECT_EQ(Batch(words).code, 0);
    EXPECT_EQ(Count(Content_Of(folder / "a.svg"), "Crank Angle (Deg)"), 1);
    auto four = words;
    four.insert(four.end(), {"--windows", "4"});
    EXPECT_EQ(Batch(four).code, 0);
    EXPECT_EQ(Count(Content_Of(folder / "a.svg"), "Crank Angle (Deg)"), 4);
    auto two = words;
    two.insert(two.end(), {"--windows", "2"});
    const CommandRun run = Batch(two);
    EXPECT_EQ(run.code, 1);
    Expect_One_Line(run.err);
}

TEST(Plot, AlignedPlotsTellTheExtremesOfEachFunction) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"plot", "--example", "watt", "--style", "aligned", "--function",
                                  "Veloc CP-1:X", "Veloc CP-1:Y", "-o", folder / "a.svg"});
    EXPECT_EQ(run.code, 0) << run.err;
    const std::string svg = Content_Of(folder / "a.svg");
    Expect_Well_Formed(svg);
    EXPECT_EQ(Count(svg, "Range "), 2);
    EXPECT_EQ(Count(svg, ">360."), 2);
    const CommandRun one = Batch(
        {"plot", "--example", "watt", "--style", "aligned", "--function", "Omega3", "-o", folder / "b.svg"});
    EXPECT_EQ(one.code, 1);
    Expect_One_Line(one.err);
}

TEST(Plot, APolarPlotShowsOneVector) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"plot", "--example", "watt", "--style", "polar", "--function", "Veloc CP-1",
                                  "--size", "640x480", "-o", folder / "a.png"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Png_Size(folder / "a.png"), (Pixels{640, 480}));
    for (const std::vector<std::string>& functions :
         std::vector<std::vector<std::string>>{{"Omega3"}, {"Veloc CP-1", "Accel CP-1"}}) {
        std::vector<std::string> words = {"plot",  "--example", "watt",           "--style",
                                          "polar", "-o",        folder / "b.png", "--function"};
        words.insert(words.end(), functions.begin(), functions.end());
        const CommandRun refused = Batch(words);
        EXPECT_EQ(refused.code, 1);
        EXPECT_EQ(refused.err, "kervol-batch: a polar plot shows one vector function\n");
    }
}

TEST(Plot, ForcesAreSolvedForThoseWhoAskForThem) {
    const TemporaryFolder folder;
    const CommandRun run =
        Batch({"plot", "--example", "watt", "--function", "Torque 12", "-o", folder / "a.pdf"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(Content_Of(folder / "a.pdf"), StartsWith("%PDF-"));
}

TEST(Plot, RefusesWrongWordsInOneLine) {
    const TemporaryFolder folder;
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"plot", "--example", "watt", "-o", folder / "a.svg"},
             {"plot", "--example", "watt", "-o", folder / "a.svg", "--function", "Nothing"},
             {"plot", "--example", "watt", "-o", folder / "a.svg", "--preset", "Nothing"},
             {"plot", "--example", "watt", "-o", folder / "a.svg", "--function", "Omega3:Z"},
             {"plot", "--example", "watt", "-o", folder / "a.gif", "--function", "Omega3"},
             {"plot", "--example", "watt", "-o", folder / "a.svg", "--style", "round", "--function",
              "Omega3"},
             {"plot", "--example", "watt", "-o", folder / "a.svg", "--size", "300", "--function", "Omega3"},
             {"plot", "--example", "watt", "-o", folder / "a.svg", "--size", "0x0", "--function", "Omega3"},
             {"plot", "--example", "watt", "-o", folder / "a.svg", "--size", "300x", "--function", "Omega3"},
             {"plot", "--example", "watt", "-o", folder / "a.svg", "--size", "300x200px", "--function",
              "Omega3"},
             {"plot", "--example", "watt", "-o", folder / "a.svg", "--windows", "3", "--function", "Omega3"},
         }) {
        const CommandRun run = Batch(words);
        EXPECT_EQ(run.code, 1) << words.back();
        Expect_One_Line(run.err);
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace
}  // namespace kervol
