// SPDX-License-Identifier: GPL-3.0-or-later
// The port without a person: what it records, how it answers, what it asks of the system.
#include "headless/recording_port.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

namespace kervol {
namespace {

TEST(RecordingPort, RecordsBoxesWithTheirAnswers) {
    RecordingPort port;
    EXPECT_EQ(port.Show_Message({"First"}), Answer::OK);
    EXPECT_EQ(port.Show_Message({"Second", Icon::Question, Buttons::YesNo, Answer::No}), Answer::No);
    ASSERT_EQ(port.messages.size(), 2U);
    EXPECT_EQ(port.messages[0].box.text, "First");
    EXPECT_EQ(port.messages[0].box.icon, Icon::None);
    EXPECT_EQ(port.messages[0].box.buttons, Buttons::OK);
    EXPECT_EQ(port.messages[0].answer, Answer::OK);
    EXPECT_EQ(port.messages[1].box.icon, Icon::Question);
    EXPECT_EQ(port.messages[1].box.buttons, Buttons::YesNo);
    EXPECT_EQ(port.messages[1].answer, Answer::No);
}

TEST(RecordingPort, AnswersByItsRule) {
    RecordingPort port;
    port.answer = [](const MessageBox& box) {
        return box.buttons == Buttons::AbortRetryIgnore ? Answer::Abort : Answer::None;
    };
    EXPECT_EQ(port.Show_Message({"Any", Icon::None, Buttons::AbortRetryIgnore, Answer::Ignore}),
              Answer::Abort);
    EXPECT_EQ(port.messages[0].answer, Answer::Abort);
}

TEST(RecordingPort, PressesThePresetButtonWhereItsRuleSaysNothing) {
    RecordingPort port;
    port.answer = [](const MessageBox&) { return Answer::None; };
    EXPECT_EQ(port.Show_Message({"Any", Icon::None, Buttons::YesNo, Answer::Yes}), Answer::Yes);
    EXPECT_EQ(port.messages[0].answer, Answer::Yes);
}

TEST(RecordingPort, NumbersAnswersAsHandlersTestThem) {
    EXPECT_EQ(static_cast<int>(Answer::OK), 1);
    EXPECT_EQ(static_cast<int>(Answer::Cancel), 2);
    EXPECT_EQ(static_cast<int>(Answer::Abort), 3);
    EXPECT_EQ(static_cast<int>(Answer::Retry), 4);
    EXPECT_EQ(static_cast<int>(Answer::Ignore), 5);
    EXPECT_EQ(static_cast<int>(Answer::Yes), 6);
    EXPECT_EQ(static_cast<int>(Answer::No), 7);
}

TEST(RecordingPort, RecordsScreensInTheirOrder) {
    RecordingPort port;
    port.Show_Screen(ScreenId::frm_Inputnew, Modality::Modal);
    port.Show_Screen(ScreenId::frm_HomeScreen, Modality::Modeless);
    EXPECT_EQ(port.screens, (std::vector<ScreenId>{ScreenId::frm_Inputnew, ScreenId::frm_HomeScreen}));
}

TEST(RecordingPort, KeepsThePointerThatWasSetLast) {
    RecordingPort port;
    EXPECT_EQ(port.pointer, Pointer::Default);
    port.Set_Pointer(Pointer::Busy);
    EXPECT_EQ(port.pointer, Pointer::Busy);
    port.Set_Pointer(Pointer::Default);
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST(RecordingPort, ShowsRepeatedFaultsUnlessToldOtherwise) {
    RecordingPort port;
    EXPECT_TRUE(port.Shows_Repeated_Faults());
    port.shows_repeated_faults = false;
    EXPECT_FALSE(port.Shows_Repeated_Faults());
}

/// A folder of its own for each test, gone with it.
class LongPath : public ::testing::Test {
  protected:
    LongPath() { std::filesystem::create_directories(folder / "sub"); }
    ~LongPath() override { std::filesystem::remove_all(folder); }

    RecordingPort port;
    const std::filesystem::path folder = std::filesystem::canonical(std::filesystem::temp_directory_path()) /
                                         ("kervol_long_path_" + std::to_string(::getpid()) + "_" +
                                          ::testing::UnitTest::GetInstance()->current_test_info()->name());
};

TEST_F(LongPath, OfAFileThatIsThereIsItsFullPath) {
    const std::filesystem::path file = folder / "my cr\u00E4nk.kvl";
    std::ofstream(file) << "x";
    EXPECT_EQ(port.Long_Path(file.string()), file.string());
    EXPECT_EQ(port.Long_Path((folder / "sub/../my cr\u00E4nk.kvl").string()), file.string());
    EXPECT_EQ(port.Long_Path(std::filesystem::relative(file).string()), file.string());
}

TEST_F(LongPath, OfAFileThatIsNotThereIsEmpty) {
    EXPECT_EQ(port.Long_Path((folder / "missing.kvl").string()), "");
    EXPECT_EQ(port.Long_Path(""), "");
}

TEST_F(LongPath, DoesNotTakeQuotesOff) {
    const std::filesystem::path file = folder / "crank.kvl";
    std::ofstream(file) << "x";
    EXPECT_EQ(port.Long_Path("\"" + file.string() + "\""), "");
}

/// The clock in the form of the port.
DateAndTime Now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, 40> date{}, time{};
    std::snprintf(date.data(), date.size(), "%04d-%02d-%02d", local.tm_year + 1900, local.tm_mon + 1,
                  local.tm_mday);
    std::snprintf(time.data(), time.size(), "%02d:%02d", local.tm_hour, local.tm_min);
    return {date.data(), time.data()};
}

TEST(RecordingPort, TellsTheDateAndTimeOfTheClock) {
    RecordingPort port;
    const DateAndTime before = Now();
    const DateAndTime told = port.Short_Date_And_Time();
    const DateAndTime after = Now();
    EXPECT_TRUE(told.date == before.date || told.date == after.date) << told.date;
    EXPECT_TRUE(told.time == before.time || told.time == after.time) << told.time;
}

}  // namespace
}  // namespace kervol
