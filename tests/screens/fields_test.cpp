// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers in text fields: what is shown, what stands behind it, what a typed text means.
#include "screens/fields.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

TEST(FieldNumber, IsShownRoundedAndReadBackWhole) {
    TextField field;
    Put_Number(field, 8.75F, 1);
    EXPECT_EQ(field.text, "8.8");
    EXPECT_EQ(Number_In(field), 8.75F);
    Put_Number(field, 1234.5678F, 3);
    EXPECT_EQ(field.text, "1,234.568");
    EXPECT_EQ(Number_In(field), 1234.5678F);
}

TEST(FieldNumber, IsParsedOnceTheUserHasTouchedTheText) {
    TextField field;
    Put_Number(field, 8.75F, 1);
    field.put_value.reset();
    EXPECT_EQ(Number_In(field), 8.8F) << "the same text, but typed";
}

TEST(FieldNumber, IsShownAsPlainTextWhereTheDriveIs) {
    TextField field;
    for (const auto& [value, text] : {std::pair{0.05F, "0.05"},
                                      {-5.0F, "-5"},
                                      {360.0F, "360"},
                                      {1.5e-5F, "1.5E-05"},
                                      {2e7F, "2E+07"},
                                      {0.003F, "0.003"}}) {
        Put_Plain_Number(field, value);
        EXPECT_EQ(field.text, text);
        EXPECT_EQ(Number_In(field), value);
    }
}

TEST(FieldNumber, KeepsAGivenTextForItsValue) {
    TextField field;
    Put_Number_Text(field, "90.00", 90);
    EXPECT_EQ(field.text, "90.00");
    EXPECT_EQ(Number_In(field), 90);
}

TEST(TypedNumber, IsWhatTheTextStartsWith) {
    EXPECT_EQ(Typed_Number("12.5 in"), 12.5);
    EXPECT_EQ(Typed_Number("  -3"), -3);
    EXPECT_EQ(Typed_Number("\t+3."), 3);
    EXPECT_EQ(Typed_Number(".5"), 0.5);
    EXPECT_EQ(Typed_Number("1e3x"), 1000);
    EXPECT_EQ(Typed_Number("1E"), 1);
    EXPECT_EQ(Typed_Number("2.5.5"), 2.5);
    EXPECT_EQ(Typed_Number("- 3"), 0);
    EXPECT_EQ(Typed_Number("abc"), 0);
    EXPECT_EQ(Typed_Number(""), 0);
    EXPECT_EQ(Typed_Number("   "), 0);
    EXPECT_EQ(Typed_Number("nan"), 0);
    EXPECT_EQ(Typed_Number("inf"), 0);
    EXPECT_EQ(Typed_Number("0x10"), 0);
}

TEST(TypedNumber, MayBeGroupedAsTheProgramGroups) {
    EXPECT_EQ(Typed_Number("1,234.500"), 1234.5);
    EXPECT_EQ(Typed_Number("-1,234.500"), -1234.5);
    EXPECT_EQ(Typed_Number("12,345,678.25"), 12345678.25);
    EXPECT_EQ(Typed_Number(" 999,000.0 mm"), 999000);
    EXPECT_EQ(Typed_Number("1,234."), 1234);
}

TEST(TypedNumber, EndsAtACommaInAnyOtherForm) {
    EXPECT_EQ(Typed_Number("1,234"), 1) << "no point";
    EXPECT_EQ(Typed_Number("1,5"), 1) << "a decimal comma";
    EXPECT_EQ(Typed_Number("1,23.5"), 1) << "a group of two";
    EXPECT_EQ(Typed_Number("1,2345.5"), 1) << "a group of four";
    EXPECT_EQ(Typed_Number("1234,567.5"), 1234) << "a start of four";
    EXPECT_EQ(Typed_Number("0,123.5"), 0) << "a start with 0";
    EXPECT_EQ(Typed_Number("012,345.5"), 12) << "the same";
    EXPECT_EQ(Typed_Number("1,234,56.5"), 1) << "the last group short";
    EXPECT_EQ(Typed_Number("1,,234.5"), 1);
    EXPECT_EQ(Typed_Number(",234.5"), 0);
}

}  // namespace
}  // namespace kervol
