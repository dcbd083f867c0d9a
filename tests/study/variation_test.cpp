// SPDX-License-Identifier: GPL-3.0-or-later
// The fields that a study varies: which, over which values, and what follows from them.
#include "study/variation.h"

#include "core/geometry.h"
#include "core/model_fields.h"
#include "study/study_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;

class VariationTest : public StudyTest {
  protected:
    std::vector<std::string> Values(const std::string& text) {
        const Variation variation = Vary(text);
        std::vector<std::string> values;
        for (std::uint64_t i = 0; i < variation.Count(); ++i) values.push_back(variation.Value_Text(i));
        return values;
    }
    void Set(const std::string& text) {
        const Variation variation = Vary(text);
        variation.Set(model, 0);
        variation.Follow(model);
        Derive_Geometry(model);
    }
};

TEST_F(VariationTest, ValuesGoFromTheFirstInStepsUpToTheLast) {
    using ::testing::ElementsAre;
    EXPECT_THAT(Values("Link2=1:3:1"), ElementsAre("1", "2", "3"));
    EXPECT_THAT(Values("Link2=1:2.5:1"), ElementsAre("1", "2"));
    EXPECT_THAT(Values("Link2=3:1:-1"), ElementsAre("3", "2", "1"));
    EXPECT_THAT(Values("Link2=5:5:1"), ElementsAre("5"));
    EXPECT_THAT(Values("OpenCross2=1:2:1"), ElementsAre("1", "2"));
}

TEST_F(VariationTest, DecimalStepsMeetTheEndOfTheRange) {
    // 0.3 / 0.1 is below 3 in double precision, and 3 times 0.1 above 0.3.
    EXPECT_THAT(Values("Link2=0:0.3:0.1"), ::testing::ElementsAre("0", "0.1", "0.2", "0.3"));
    EXPECT_EQ(Vary("Link2=0:100:0.01").Count(), 10001U);
    EXPECT_EQ(Vary("Link2=0:100:0.01").Value_Text(10000), "100");
    EXPECT_EQ(Vary("Link2=0:100:0.01").Value_Text(777), "7.77");
}

TEST_F(VariationTest, APivotBringsAllThatFollowsFromIt) {
    Set("O4Y=9.375:9.375:1");
    EXPECT_FLOAT_EQ(model.GroundAngleDeg, 45);
    EXPECT_FLOAT_EQ(model.Link1, 13.258252F);
    EXPECT_NEAR(model.O4LocalX, 13.258252, 1e-5);
    EXPECT_NEAR(model.O4LocalY, 0, 1e-5);
    // O6 at (14.375, 2), turned back by 45 degrees.
    EXPECT_NEAR(model.O6LocalX, (14.375 + 2) * 0.70710678, 1e-5);
    EXPECT_NEAR(model.O6LocalY, (2 - 14.375) * 0.70710678, 1e-5);
    EXPECT_NEAR(model.O4O6Length, std::hypot(14.375 - 9.375, 2 - 9.375), 1e-5);

    Set("O6X=20:20:1");
    EXPECT_FLOAT_EQ(model.O6X, 20);
    EXPECT_NEAR(model.O6LocalX, (20 + 2) * 0.70710678, 1e-5);
}

TEST_F(VariationTest, AnOffsetAngleBringsItsRadiansAndItsText) {
    Set("Delta3Deg=90:90:1");
    EXPECT_FLOAT_EQ(model.Delta3, 1.570796327F);
    EXPECT_EQ(model.Delta3Text, "90");
}

TEST_F(VariationTest, LinkDataAreNamedByTheirLink) {
    Set("LinkMass(4)=7:7:1");
    EXPECT_EQ(model.LinkMass(4), 7);
    Set("LinkCG(3,1)=0.5:0.5:1");
    EXPECT_EQ(model.LinkCG(3, 1), 0.5F);
    EXPECT_EQ(Vary("LinkCG(3,1)=0.5:0.5:1").Field(), "LinkCG(3,1)");
}

TEST_F(VariationTest, TellsWhatIsWrong) {
    const struct {
        const char *text, *objection;
    } cases[] = {
        {"", "is not FIELD=FROM:TO:STEP"},
        {"Link2", "is not FIELD=FROM:TO:STEP"},
        {"=1:2:1", "\"\" is no field"},
        {"link2=1:2:1", "\"link2\" is no field of a model"},
        {"Link7=1:2:1", "\"Link7\" is no field of a model"},
        {"Link1=1:2:1", "follows from others"},
        {"Theta3Rad=1:2:1", "follows from others"},
        {"ModelTitle=1:2:1", "is no number that is entered"},
        {"NumSteps=1:2:1", "is no number that is entered"},
        {"Link2=", "is not FROM:TO:STEP"},
        {"Link2=1", "is not FROM:TO:STEP"},
        {"Link2=1:2", "is not FROM:TO:STEP"},
        {"Link2=1:2:1:1", "is not FROM:TO:STEP"},
        {"Link2=1:x:1", "\"x\" is no number"},
        {"Link2=1::1", "\"\" is no number"},
        {"Link2=1:nan:1", "\"nan\" is no number"},
        {"Link2=1:1e99:1", "\"1e99\" is no number"},
        {"Link2=1:2:0", "a step of 0"},
        {"Link2=2:1:1", "the range is empty"},
        {"Link2=1:2:-1", "the range is empty"},
        {"Link2=0:1e30:1e-30", "too small"},
        {"OpenCross1=1:2:0.5", "no whole number"},
        {"OpenCross1=1:40000:1", "beyond what the field holds"},
        {"Link2(3)=1:2:1", "leave the index out"},
        {"LinkMass=1:2:1", "LinkMass(3)"},
        {"LinkMass(1)=1:2:1", "links are 2 to 6"},
        {"LinkMass(7)=1:2:1", "links are 2 to 6"},
        {"LinkMass(x)=1:2:1", "links are 2 to 6"},
        {"LinkMass(3=1:2:1", "closing bracket"},
        {"LinkMass(3,0)=1:2:1", "links are 2 to 6"},
        {"LinkCG(3)=1:2:1", "LinkCG(3,0)"},
        {"LinkCG(3,2)=1:2:1", "parts 0 distance and 1 angle"},
    };
    for (const auto& [text, objection] : cases)
        EXPECT_THAT(Variation().Parse(text), HasSubstr(objection)) << text;
}

TEST_F(VariationTest, NoFieldOfTheModelBreaksTheParser) {
    int taken = 0;
    for (const ModelField& field : Model_Fields())
        for (const char* index : {"", "(3)", "(3,1)"})
            taken += Variation().Parse(std::string(field.name) + index + "=1:2:1").empty();
    EXPECT_EQ(taken, 39);
}

}  // namespace
}  // namespace kervol
