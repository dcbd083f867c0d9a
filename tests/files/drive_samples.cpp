// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/drive_samples.h"

#include <cstddef>

namespace kervol {

using M = LinkageModel;

std::span<const SampleLine> Cam_Lines() {
    // clang-format off
    static const SampleLine kLines[] = {
        { 1, "6",                     {}},  // number of links of the writer
        { 2, "1.5",                   &M::DriveScale},
        { 3, "-12.25",                &M::DriveOffset},
        { 4, "3.125",                 &M::DriveArmLength},
        { 5, "2.25",                  &M::CamBaseRadius},
        { 6, ".375",                  &M::CamRollerRadius},
        { 7, "0.125",                 &M::TimeStart},
        { 8, "2.5",                   &M::TimeEnd},
        { 9, "6.25E-02",              &M::TimeStep},
        {10, "\"Haldrix, cam 3\"", {}}, {11, "\"\"", {}}, {12, "3", {}}, {13, "text 4", {}}, {14, "", {}},
        {15, "#TRUE#", {}}, {16, "\"1\"", {}}, {17, "-8", {}}, {18, "\"9\"", {}},
        {19, "7.5",                   &M::DriveDatum},
        {20, "1",                     {}},  // Stage 1 crossed
        {21, "2.5",                   &M::Link2},
        {22, "8.5",                   &M::Link3},
        {23, "7.25",                  &M::Link4},
        {24, "10.5",                  &M::Link1},
        {25, "30",                    &M::GroundAngleDeg},
        {26, "8.660254",              &M::O4X},
        {27, "5",                     &M::O4Y},
        {28, "-1.75",                 &M::CamCentreX},
        {29, "0.5",                   &M::CamCentreY},
        {30, "-1",                    {}},  // Stage 2 open
        {31, "6.5",                   &M::LinkO4D},
        {32, "9.25",                  &M::Link5},
        {33, "4.75",                  &M::Link6},
        {34, "14",                    &M::O6LocalX},
        {35, "2.125",                 &M::O6LocalY},
        {36, "-20.5",                 &M::Delta4Deg},
        {37, "11.0619",               &M::O6X},
        {38, "8.8403",                &M::O6Y},
        {39, "-1",                    {}},  // mass data follow
        {40, "2.01", LinkPlace{&M::LinkMass, 2}}, {41, "2.02", LinkPlace{&M::LinkInertia, 2}},
        {42, "2.03", CGPlace{2, 0}},              {43, "2.04", CGPlace{2, 1}},
        {44, "3.01", LinkPlace{&M::LinkMass, 3}}, {45, "3.02", LinkPlace{&M::LinkInertia, 3}},
        {46, "3.03", CGPlace{3, 0}},              {47, "3.04", CGPlace{3, 1}},
        {48, "4.01", LinkPlace{&M::LinkMass, 4}}, {49, "4.02", LinkPlace{&M::LinkInertia, 4}},
        {50, "4.03", CGPlace{4, 0}},              {51, "4.04", CGPlace{4, 1}},
        {52, "5.01", LinkPlace{&M::LinkMass, 5}}, {53, "5.02", LinkPlace{&M::LinkInertia, 5}},
        {54, "5.03", CGPlace{5, 0}},              {55, "5.04", CGPlace{5, 1}},
        {56, "6.01", LinkPlace{&M::LinkMass, 6}}, {57, "6.02", LinkPlace{&M::LinkInertia, 6}},
        {58, "6.03", CGPlace{6, 0}},              {59, "6.04", CGPlace{6, 1}},
        {60, "\"1, of 30\"", {}}, {61, "2", {}}, {62, "\"\"", {}}, {63, "4", {}}, {64, "", {}}, {65, "x", {}},
        {66, "7", {}}, {67, "8", {}}, {68, "9", {}}, {69, "10", {}}, {70, "11", {}}, {71, "12", {}},
        {72, "13", {}}, {73, "14", {}}, {74, "15", {}}, {75, "16", {}}, {76, "17", {}}, {77, "18", {}},
        {78, "19", {}}, {79, "20", {}}, {80, "21", {}}, {81, "22", {}}, {82, "23", {}}, {83, "24", {}},
        {84, "25", {}}, {85, "26", {}}, {86, "27", {}}, {87, "28", {}}, {88, "29", {}}, {89, "\"30\"", {}},
        {90, "2",                     &M::NumSteps},
    };
    // clang-format on
    return kLines;
}

std::vector<std::string> Cam_File_Lines(const CamFile& file) {
    const auto sample = Cam_Lines();
    std::vector<std::string> lines;
    const auto append = [&](std::size_t first, std::size_t last) {
        for (std::size_t line = first; line <= last; ++line) lines.emplace_back(sample[line - 1].text);
    };
    append(1, 18);
    lines[0] = std::to_string(file.source);
    if (file.source != 1) {
        append(19, 38);
        lines[19] = std::to_string(file.assembly1);
        lines[29] = std::to_string(file.assembly2);
        lines.push_back(std::to_string(file.has_dynamics));
        for (int link = 2; link <= file.source; ++link)
            for (int part = 1; part <= 4; ++part)
                lines.push_back(file.has_dynamics == -1 ? std::to_string(link) + ".0" + std::to_string(part)
                                                        : "\"link " + std::to_string(link) + ", text\"");
        append(60, 89);
    }
    lines.push_back(std::to_string(file.count));
    for (int i = 0; i <= file.count; ++i) lines.push_back(Drive_Row(i));
    return lines;
}

std::span<const SampleLine> Link_Output_Lines() {
    static const SampleLine kLines[] = {
        {1, " 2", &M::NumSteps},
        {2, " 0.5", &M::TimeStart},
        {3, " 4.5", &M::TimeEnd},
        {4, " 0.25", &M::TimeStep},
    };
    return kLines;
}

std::vector<std::string> Link_Output_File_Lines(int count) {
    std::vector<std::string> lines;
    for (const SampleLine& line : Link_Output_Lines()) lines.emplace_back(line.text);
    lines[0] = " " + std::to_string(count);
    lines.insert(lines.end(), 12, "");
    for (int i = 0; i <= count; ++i) lines.push_back(Drive_Row(i));
    return lines;
}

std::string Drive_Row(int i) {
    return std::to_string(i) + ".5," + std::to_string(100 + i) + ".25,-" + std::to_string(i) + ".125";
}

float Row_Angle(int i) {
    return static_cast<float>(i) + 0.5F;
}

float Row_Speed(int i) {
    return static_cast<float>(i) + 100.25F;
}

float Row_Acceleration(int i) {
    return -static_cast<float>(i) - 0.125F;
}

}  // namespace kervol
