// SPDX-License-Identifier: GPL-3.0-or-later
// Descriptions of fault numbers, and the name that a fault carries.
#include "core/fault.h"

#include <cstdint>
#include <stdexcept>
#include <string_view>

#include "core/thrown_fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

TEST(FaultDescription, IsTheCustomaryOne) {
    const struct {
        std::int32_t number;
        std::string_view description;
    } cases[] = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {7, "Out of memory"},
        {9, "Subscript out of range"},
        {11, "Division by zero"},
        {13, "Type mismatch"},
        {28, "Out of stack space"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {57, "Device I/O error"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {64, "Bad file name"},
        {70, "Permission denied"},
        {71, "Disk not ready"},
        {75, "Path/File access error"},
        {76, "Path not found"},
    };
    for (const auto& [number, description] : cases) EXPECT_EQ(Fault_Description(number), description);
}

TEST(FaultDescription, OfAnUnknownNumberIsOneTextThatNoKnownNumberHas) {
    const std::string_view unknown = Fault_Description(32678);
    EXPECT_FALSE(unknown.empty());
    for (const std::int32_t number : {0, -1, 8, 1000, 65536 + 6})
        EXPECT_EQ(Fault_Description(number), unknown);
    for (const std::int32_t number : {5, 6, 7, 9, 11, 13, 28, 52, 53, 57, 61, 62, 64, 70, 71, 75, 76})
        EXPECT_NE(Fault_Description(number), unknown);
}

TEST(FaultNumbers, AreThoseOfTheDescriptions) {
    EXPECT_EQ(fault::InvalidCall, 5);
    EXPECT_EQ(fault::Overflow, 6);
    EXPECT_EQ(fault::OutOfMemory, 7);
    EXPECT_EQ(fault::Subscript, 9);
    EXPECT_EQ(fault::DivisionByZero, 11);
    EXPECT_EQ(fault::TypeMismatch, 13);
    EXPECT_EQ(fault::OutOfStack, 28);
    EXPECT_EQ(fault::BadFileNameOrNumber, 52);
    EXPECT_EQ(fault::FileNotFound, 53);
    EXPECT_EQ(fault::DeviceIO, 57);
    EXPECT_EQ(fault::DiskFull, 61);
    EXPECT_EQ(fault::InputPastEnd, 62);
    EXPECT_EQ(fault::BadFileName, 64);
    EXPECT_EQ(fault::PermissionDenied, 70);
    EXPECT_EQ(fault::DiskNotReady, 71);
    EXPECT_EQ(fault::PathFileAccess, 75);
    EXPECT_EQ(fault::PathNotFound, 76);
    EXPECT_EQ(fault::ControlOutOfMemory, 32678);
}

TEST(Raise, ThrowsTheNumberWithoutAName) {
    Expect_Thrown(13, "", [] { Raise(13); });
}

TEST(Routine, GivesItsNameToANamelessFault) {
    Expect_Thrown(11, "Inner", [] { Routine("Inner", [] { Raise(11); }); });
}

TEST(Routine, LeavesTheNameOfAnInnerRoutine) {
    Expect_Thrown(11, "Inner", [] { Routine("Outer", [] { Routine("Inner", [] { Raise(11); }); }); });
}

TEST(Routine, HandsOnTheResultAndReferencesOfItsBody) {
    int value = 3;
    EXPECT_EQ(Routine("Any", [] { return 42; }), 42);
    Routine("Any", [&]() -> int& { return value; }) = 4;
    EXPECT_EQ(value, 4);
}

TEST(Routine, LeavesOtherExceptionsAlone) {
    EXPECT_THROW(Routine("Any", [] { throw std::runtime_error("not a fault"); }), std::runtime_error);
}

}  // namespace
}  // namespace kervol
