// SPDX-License-Identifier: GPL-3.0-or-later
// The copy of linkage, drive and frame beside plots and tables.
#include "catalogue/state_labels.h"

#include <vector>

#include "support/program_test.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

template <std::size_t N>
std::vector<std::string> Captions(const std::array<Label, N>& labels) {
    std::vector<std::string> captions;
    for (const Label& label : labels) captions.push_back(label.caption);
    return captions;
}

class StateLabelsTest : public ProgramTest {
  protected:
    void Expect_Shown(int first, int last) const {
        for (int field = 0; field < 6; ++field) {
            const auto i = static_cast<std::size_t>(field);
            const bool shown = field >= first && field <= last;
            EXPECT_EQ(labels.lbl_Initial[i].visible, shown) << field;
            EXPECT_EQ(labels.lbl_Linkout2[i].visible, shown) << field;
            EXPECT_EQ(labels.lbl_Unit[i].visible, shown) << field;
        }
    }

    StateLabels labels;
};

TEST_F(StateLabelsTest, CallTheLinksByBothNamesAtFirst) {
    EXPECT_THAT(
        Captions(labels.lbl_Left),
        ElementsAre("Link 1 (O2-O4)", "Link 2 (O2-A)", "Link 3 (A-B)", "Link 4 (O4-B)", "O4D or cp3 dist",
                    "delta4 or delta3", "Link 5 (D-E or C-D)", "Link 6 (O6-E or O6-D)", "Coords of O6"));
    EXPECT_EQ(labels.frm_initial.caption, "Initial Conditions");
}

TEST_F(StateLabelsTest, ShowTheArmOfAWattChain) {
    Put_Link_Labels(model, labels);
    EXPECT_THAT(Captions(labels.lbl_Left),
                ElementsAre("Link 1 (O2-O4)", "Link 2 (O2-A)", "Link 3 (A-B)", "Link 4 (O4-B)", "Link O4-D",
                            "Angle Delta4", "Link 5 (D-E)", "Link 6 (O6-E)", "Coords of O6"));
    EXPECT_THAT(Captions(labels.lbl_Links), ElementsAre("9.375", "2.000", "8.625", "7.000", "8.000",
                                                        "-30.000", "7.000", "8.000", "14.375", "2.000"));
}

TEST_F(StateLabelsTest, ShowTheCouplerOfAStephensonChain) {
    model.LinkageType = "S";
    Put_Link_Labels(model, labels);
    EXPECT_THAT(Captions(labels.lbl_Left),
                ElementsAre("Link 1 (O2-O4)", "Link 2 (O2-A)", "Link 3 (A-B)", "Link 4 (O4-B)", "Coupler A-C",
                            "Angle Delta3", "Link 5 (C-D)", "Link 6 (O6-D)", "Coords of O6"));
    EXPECT_THAT(Captions(labels.lbl_Links), ElementsAre("9.375", "2.000", "8.625", "7.000", "6.000", "45.000",
                                                        "7.000", "8.000", "14.375", "2.000"));
}

TEST_F(StateLabelsTest, ShowTheRangeOfAnAngleDrive) {
    Put_Labels_Angle(model, labels);
    EXPECT_THAT(Captions(labels.lbl_Initial),
                ElementsAre("Min Theta", "Max Theta", "Delta Theta", "Omega2", "", ""));
    EXPECT_THAT(Captions(labels.lbl_Unit), ElementsAre("deg", "deg", "deg", "rad/s", "", ""));
    EXPECT_THAT(Captions(labels.lbl_Linkout2), ElementsAre("0", "360", "10", "10", "", ""));
    Expect_Shown(0, 3);
}

TEST_F(StateLabelsTest, ShowTheRangeAndStartOfADriveOverTime) {
    model.Theta2One = 33.5F;
    Put_Labels_Time(model, labels);
    EXPECT_THAT(Captions(labels.lbl_Initial),
                ElementsAre("Start Time", "End Time", "Delta Time", "Theta0", "Omega0", "Alpha0"));
    EXPECT_THAT(Captions(labels.lbl_Unit), ElementsAre("sec", "sec", "sec", "deg", "rad/s", "rad/s/s"));
    EXPECT_THAT(Captions(labels.lbl_Linkout2), ElementsAre("0", "5", "0.05", "33.5", "10", "-5"));
    Expect_Shown(0, 5);
}

TEST_F(StateLabelsTest, HideTheRangeOfOnePosition) {
    model.Theta2One = 33.5F;
    Put_Labels_One(model, labels);
    EXPECT_THAT(Captions(labels.lbl_Linkout2), ElementsAre("", "", "", "33.5", "10", "-5"));
    Expect_Shown(3, 5);
}

TEST_F(StateLabelsTest, FollowTheModeThereAndBack) {
    const struct {
        int mode;
        const char *first, *fourth;
    } cases[] = {{1, "", "Theta0"},           {3, "Min Theta", "Omega2"},  {2, "Start Time", "Theta0"},
                 {1, "", "Theta0"},           {4, "Start Time", "Theta0"}, {3, "Min Theta", "Omega2"},
                 {5, "Start Time", "Theta0"}, {0, "Start Time", "Theta0"}, {6, "Start Time", "Theta0"}};
    for (const auto& [mode, first, fourth] : cases) {
        model.CalcMode = static_cast<std::int16_t>(mode);
        Put_Drive_Labels(model, labels);
        EXPECT_EQ(labels.lbl_Initial[0].caption, first) << mode;
        EXPECT_EQ(labels.lbl_Initial[0].visible, *first != '\0') << mode;
        EXPECT_EQ(labels.lbl_Initial[3].caption, fourth) << mode;
    }
}

TEST_F(StateLabelsTest, NameTheFrame) {
    Put_Coordinate_Labels(program->selections, labels);
    EXPECT_EQ(labels.lbl_Coord.caption, "Global");
    program->selections.LocalCoords = 2;
    Put_Coordinate_Labels(program->selections, labels);
    EXPECT_EQ(labels.lbl_Coord.caption, "Local Rotating");
}

}  // namespace
}  // namespace kervol
