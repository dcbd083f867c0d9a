// SPDX-License-Identifier: GPL-3.0-or-later
// The failure path: every text of the reporter, what follows its box, and faults that repeat in a sweep.
#include "core/report.h"

#include <cstdint>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "headless/recording_port.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

/// Notes the order of all calls.
class OrderPort : public RecordingPort {
  public:
    Answer Show_Message(const MessageBox& box) override {
        calls.push_back("box");
        return RecordingPort::Show_Message(box);
    }
    void Show_Screen(ScreenId screen, Modality modality) override {
        const std::string name = screen == ScreenId::frm_HomeScreen ? "home screen" : "another screen";
        calls.push_back(name + (modality == Modality::Modeless ? "" : ", modal"));
    }
    void Set_Pointer(Pointer shape) override {
        calls.push_back(shape == Pointer::Default ? "default pointer" : "busy pointer");
        RecordingPort::Set_Pointer(shape);
    }

    std::vector<std::string> calls;
};

class Report : public ::testing::Test {
  protected:
    OrderPort port;
    std::unique_ptr<Program> program = std::make_unique<Program>(port);
};

using Calls = std::vector<std::string>;

struct Advised {
    std::int32_t number;
    Icon icon;
    std::string text;
};

std::vector<Advised> All_Advice() {
    const std::string save =
        "You should try to save your model from the Home Screen's 'File' pulldown menu, \r";
    const std::string close =
        "It may help to close other programs that are running at the same time.\rGood luck! ";
    const std::string no_files = "There are no files with your chosen name in the selected directory";
    const Icon info = Icon::Information;
    return {
        {7, Icon::None,
         "Error 7   (Out of memory)  has occurred in Any\r\r" + save +
             "then Quit this program and restart it to clear the memory.\r" + close},
        {28, info,
         "Error 28   (Out of stack space)  has occurred in Any\r\r" + save +
             "then Quit this program and restart it to clear the stacks.\r" + close},
        {52, info,
         "Error 52   (Bad file name or number)  has occurred in Any\r\r"
         "The filename clicked on has a problem.  Try opening it from within the program."},
        {53, info, "Error 53   (File not found)  has occurred in Any\r\r" + no_files},
        {57, info,
         "Error 57   (Device I/O error)  has occurred in Any\r\r"
         "Device I/O error- bad drive or disk - please try another"},
        {61, info,
         "Error 61   (Disk full)  has occurred in Any\r\r"
         " The floppy disk in the drive is full - please substitute another"},
        {64, info, "Error 64   (Bad file name)  has occurred in Any\r\r" + no_files},
        {71, info,
         "Error 71   (Disk not ready)  has occurred in Any\r\r"
         "Disk not ready - is the drive empty or its door open?"},
        {32678, info,
         "Error 32678   (" + std::string(Fault_Description(32678)) + ")  has occurred in Any\r\r" +
             "Out of memory.  Close other programs and retry."},
        {5, info, "Error 5   (Invalid procedure call or argument)  has occurred in Any\r\r"},
        {6, info, "Error 6   (Overflow)  has occurred in Any\r\r"},
        {9, info, "Error 9   (Subscript out of range)  has occurred in Any\r\r"},
        {11, info, "Error 11   (Division by zero)  has occurred in Any\r\r"},
        {13, info, "Error 13   (Type mismatch)  has occurred in Any\r\r"},
        {62, info, "Error 62   (Input past end of file)  has occurred in Any\r\r"},
        {70, info, "Error 70   (Permission denied)  has occurred in Any\r\r"},
        {75, info, "Error 75   (Path/File access error)  has occurred in Any\r\r"},
        {76, info, "Error 76   (Path not found)  has occurred in Any\r\r"},
        {4711, info, "Error 4711   (" + std::string(Fault_Description(4711)) + ")  has occurred in Any\r\r"},
    };
}

TEST_F(Report, HasATextAndAnIconForEachNumber) {
    for (const Advised& advised : All_Advice()) {
        port.messages.clear();
        Report_Error(*program, advised.number, "Any");
        ASSERT_EQ(port.messages.size(), 1U) << advised.number;
        const MessageBox& box = port.messages[0].box;
        EXPECT_EQ(box.text, advised.text);
        EXPECT_EQ(box.icon, advised.icon) << advised.number;
        EXPECT_EQ(box.buttons, Buttons::OK) << advised.number;
    }
}

TEST_F(Report, NamesTheProcedureAsItStands) {
    Report_Error(*program, 53, " in Open_Clicked_File");
    Report_Error(*program, 62, "");
    EXPECT_EQ(port.messages.at(0).box.text,
              "Error 53   (File not found)  has occurred in  in Open_Clicked_File\r\r"
              "There are no files with your chosen name in the selected directory");
    EXPECT_EQ(port.messages.at(1).box.text, "Error 62   (Input past end of file)  has occurred in \r\r");
}

TEST_F(Report, ShowsTheHomeScreenBehindTheBoxAfterNumber7Alone) {
    Report_Error(*program, 7, "Any");
    EXPECT_EQ(port.calls, (Calls{"box", "home screen", "default pointer"}));
    for (const Advised& advised : All_Advice()) {
        if (advised.number == 7) continue;
        port.calls.clear();
        Report_Error(*program, advised.number, "Any");
        EXPECT_EQ(port.calls, (Calls{"box", "default pointer"})) << advised.number;
    }
}

TEST_F(Report, PutsTheBusyPointerBack) {
    port.Set_Pointer(Pointer::Busy);
    Report_Error(*program, 6, "Any");
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST_F(Report, KeepsARecordOfWhatItReported) {
    Report_Error(*program, 6, "First");
    Report_Error(*program, 11, "Second");
    Report_Error(*program, 6, "First");
    EXPECT_EQ(program->faults.entries,
              (std::vector<ReportedFault>{{6, "First"}, {11, "Second"}, {6, "First"}}));
}

TEST_F(Report, ShowsAFaultThatRepeatsOutsideASweepEachTime) {
    port.shows_repeated_faults = false;
    for (int i = 0; i < 3; ++i) Report_Error(*program, 6, "Any");
    EXPECT_EQ(port.messages.size(), 3U);
}

TEST_F(Report, ShowsAFaultThatRepeatsWithinASweepOnce) {
    port.shows_repeated_faults = false;
    const SweepFaultScope sweep(*program);
    for (int i = 0; i < 5; ++i) Report_Error(*program, 11, "Calculate");
    EXPECT_EQ(port.messages.size(), 1U);
    Report_Error(*program, 6, "Calculate");  // another number
    EXPECT_EQ(port.messages.size(), 2U);
    Report_Error(*program, 11, "Rotate");  // another name
    EXPECT_EQ(port.messages.size(), 3U);
    for (int i = 0; i < 5; ++i) {
        Report_Error(*program, 11, "Calculate");
        Report_Error(*program, 6, "Calculate");
        Report_Error(*program, 11, "Rotate");
    }
    EXPECT_EQ(port.messages.size(), 3U);
}

TEST_F(Report, PutsThePointerBackEvenWhereARepeatedFaultIsNotShown) {
    port.shows_repeated_faults = false;
    const SweepFaultScope sweep(*program);
    Report_Error(*program, 7, "Any");
    port.calls.clear();
    port.Set_Pointer(Pointer::Busy);
    Report_Error(*program, 7, "Any");
    EXPECT_EQ(port.calls, (Calls{"busy pointer", "default pointer"}));
}

TEST_F(Report, ShowsEachRepeatedFaultWhereThePortWantsThem) {
    port.shows_repeated_faults = true;
    const SweepFaultScope sweep(*program);
    for (int i = 0; i < 5; ++i) Report_Error(*program, 11, "Calculate");
    EXPECT_EQ(port.messages.size(), 5U);
    EXPECT_EQ(program->faults.entries.size(), 5U);
}

TEST_F(Report, CountsRepeatsFromTheBeginningOfEachSweepAnew) {
    port.shows_repeated_faults = false;
    Report_Error(*program, 11, "Calculate");
    for (int i = 0; i < 2; ++i) {
        const SweepFaultScope sweep(*program);
        Report_Error(*program, 11, "Calculate");
        Report_Error(*program, 11, "Calculate");
    }
    EXPECT_EQ(port.messages.size(), 3U);
    Report_Error(*program, 11, "Calculate");
    Report_Error(*program, 11, "Calculate");
    EXPECT_EQ(port.messages.size(), 5U);
}

TEST_F(Report, EndsItsSweepWhereAnExceptionLeavesIt) {
    port.shows_repeated_faults = false;
    try {
        const SweepFaultScope sweep(*program);
        Report_Error(*program, 11, "Calculate");
        throw std::runtime_error("left");
    } catch (const std::runtime_error&) {
        EXPECT_FALSE(program->faults.sweep_start.has_value());
    }
}

TEST_F(Report, ProcedureWithoutAFaultIsTrueAndSilent) {
    int runs = 0;
    EXPECT_TRUE(Procedure(*program, "Any", [&] { ++runs; }));
    EXPECT_EQ(runs, 1);
    EXPECT_TRUE(port.calls.empty());
}

TEST_F(Report, ProcedureReportsItsFaultUnderItsOwnNameAndIsLeft) {
    int reached = 0;
    EXPECT_FALSE(Procedure(*program, "Calculate", [&] {
        reached = 1;
        Raise(11);
        reached = 2;
    }));
    EXPECT_EQ(reached, 1);
    ASSERT_EQ(port.messages.size(), 1U);
    EXPECT_EQ(port.messages[0].box.text, "Error 11   (Division by zero)  has occurred in Calculate\r\r");
}

TEST_F(Report, ProcedureNamesTheRoutineThatRaised) {
    EXPECT_FALSE(Procedure(*program, "Calculate", [] { Routine("Cart_to_Polar", [] { Raise(6); }); }));
    ASSERT_EQ(port.messages.size(), 1U);
    EXPECT_EQ(port.messages[0].box.text, "Error 6   (Overflow)  has occurred in Cart_to_Polar\r\r");
    EXPECT_EQ(program->faults.entries, (std::vector<ReportedFault>{{6, "Cart_to_Polar"}}));
}

TEST_F(Report, AnAnnouncedProcedureSaysSoFirst) {
    EXPECT_TRUE(Announced_Procedure(*program, "chk_Torque_Click", [] {}));
    EXPECT_TRUE(port.calls.empty());
    EXPECT_FALSE(Announced_Procedure(*program, "chk_Torque_Click", [] { Raise(11); }));
    ASSERT_EQ(port.messages.size(), 2U);
    EXPECT_EQ(port.messages[0].box.text, "An error has occurred in the chk_Torque_Click routine");
    EXPECT_EQ(port.messages[0].box.icon, Icon::None);
    EXPECT_EQ(port.messages[1].box.text,
              "Error 11   (Division by zero)  has occurred in chk_Torque_Click\r\r");
}

TEST_F(Report, CallerOfAFailedProcedureGoesOn) {
    bool went_on = false;
    EXPECT_TRUE(Procedure(*program, "Outer", [&] {
        Procedure(*program, "Inner", [] { Raise(9); });
        went_on = true;
    }));
    EXPECT_TRUE(went_on);
    EXPECT_EQ(program->faults.entries, (std::vector<ReportedFault>{{9, "Inner"}}));
}

TEST_F(Report, ProcedureTakesALackOfMemoryAsFault7) {
    EXPECT_FALSE(Procedure(*program, "Readfile", [] { throw std::bad_alloc(); }));
    EXPECT_EQ(program->faults.entries, (std::vector<ReportedFault>{{7, "Readfile"}}));
    EXPECT_EQ(port.calls, (Calls{"box", "home screen", "default pointer"}));
}

TEST_F(Report, AnnouncedProcedureSaysThatThereWasAnErrorBeforeItReportsWhich) {
    EXPECT_TRUE(Announced_Procedure(*program, "Import", [] {}));
    EXPECT_TRUE(port.messages.empty());
    EXPECT_FALSE(Announced_Procedure(*program, "Import", [] { Raise(13); }));
    ASSERT_EQ(port.messages.size(), 2U);
    EXPECT_EQ(port.messages[0].box.text, "An error has occurred in the Import routine");
    EXPECT_EQ(port.messages[0].box.icon, Icon::None);
    EXPECT_EQ(port.messages[1].box.text, "Error 13   (Type mismatch)  has occurred in Import\r\r");
    EXPECT_FALSE(Announced_Procedure(*program, "Import", [] { throw std::bad_alloc(); }));
    EXPECT_EQ(program->faults.entries, (std::vector<ReportedFault>{{13, "Import"}, {7, "Import"}}));
}

}  // namespace
}  // namespace kervol
